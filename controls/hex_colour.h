// Colours as text: six hexadecimal digits, red, green, blue, without "#".
#pragma once

#include "toolkit/drawing.h"

#include <optional>
#include <string_view>

namespace orrelix {

// With lower-case letters.
CString HexText(CColour colour);

// The colour of exactly six digits, whose letters may be of either case; nothing for any other text.
std::optional<CColour> ParseHexColour(std::string_view text);

} // namespace orrelix
