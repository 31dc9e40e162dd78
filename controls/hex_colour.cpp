#include "controls/hex_colour.h"

#include <charconv>

namespace orrelix {

CString HexText(CColour colour) {
    constexpr std::string_view digits = "0123456789abcdef";
    CString text;
    for (unsigned nPart : {RedOf(colour), GreenOf(colour), BlueOf(colour)}) {
        text += digits[nPart >> 4];
        text += digits[nPart & 0xf];
    }
    return text;
}

std::optional<CColour> ParseHexColour(std::string_view text) {
    if (text.size() != 6 || text.find_first_not_of("0123456789abcdefABCDEF") != std::string_view::npos)
        return std::nullopt;
    unsigned nNumber = 0;
    std::from_chars(text.data(), text.data() + text.size(), nNumber, 16);
    return MakeColour(nNumber >> 16, nNumber >> 8 & 0xff, nNumber & 0xff);
}

} // namespace orrelix
