// Texts of code pages, converted as the system does it.
#pragma once

#include <string>
#include <string_view>

namespace orrelix {

// Whether the system can convert texts from and to an encoding, by the name that GetEncoding gives. Throws
// std::bad_alloc.
bool CanConvertPage(const std::string& encoding);

// The text in another encoding; "?" for each byte that is no text in the first and each character that the second
// hasn't. Throws std::system_error where the system can't convert them, and std::bad_alloc.
std::string ConvertPage(std::string_view text, const std::string& from, const std::string& to);

} // namespace orrelix
