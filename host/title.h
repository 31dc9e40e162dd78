// The titles of effects, which stand in names of the page's script.
#pragma once

#include <string>
#include <string_view>

namespace orrelix {

// A title of letters, digits and "_", no digit first, for a file's name or another title.
std::string TitleFrom(std::string_view text);

// What to say of titles that are none such.
inline constexpr char kTitleAdvice[] = "titles are of letters, digits and \"_\"";

} // namespace orrelix
