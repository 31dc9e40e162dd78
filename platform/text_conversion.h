// Texts of code pages, converted as the system does it.
#pragma once

#include <string>
#include <string_view>

namespace orrelix {

// The text in another encoding; "?" for each byte that is no text in the first and each character that the second
// hasn't. Encodings go by the names that GetEncoding gives. All of it becomes "?" where the system doesn't know one.
std::string ConvertPage(std::string_view text, const std::string& from, const std::string& to);

} // namespace orrelix
