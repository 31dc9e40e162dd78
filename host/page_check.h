// What there may be in a page that keeps an effect from working or from looking as its author chose.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orrelix {

// Whether a policy that the page itself has (Content-Security-Policy) forbids inline scripts or handlers. The
// page has one byte for each unit, like CHtmlScanner's.
bool ForbidsInlineScripts(std::string_view page);

// The address from which a page's relative ones count because it says so (<base>); empty where it doesn't.
std::string_view BaseOf(std::string_view page);

// The selectors, such as ".brnout", of style rules that two texts have and that say different things in them: both
// texts' elements look as the later rule says.
std::vector<std::string> DisputedStyles(std::string_view html, std::string_view otherHtml);

} // namespace orrelix
