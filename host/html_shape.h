// HTML without what it says: texts that a parser makes the same elements of become one, so that it need be asked only
// once for all of them.
//
// Why the elements stay the same: the tags stay, with the names of their attributes, and which elements come of tags
// depends on little else. That is whether text between them is more than blanks (tables), what stands in elements whose
// content is no HTML, the type of an input, and whether more than three formatting elements that are open have the same
// values. Of that, the first and the third stay, a script is a piece, a style sheet has no elements, and the others keep
// the whole text as it is, as does everything else that isn't known for certain.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orrelix {

// What stands in a shape in a piece's place, with its number from 1 behind it, in decimal. A shape that has pieces has it
// nowhere else.
inline constexpr std::string_view kPieceMark = "\uE000";

struct CHtmlShape {
    std::string m_Html;
    // Texts that are judged by themselves, as they stand in the HTML: scripts, handlers, and values with a "<".
    std::vector<std::string_view> m_Pieces;
};

// The shape of a text, in UTF-8, that begins and ends between elements. Its pieces are parts of the text.
CHtmlShape ShapeOfHtml(std::string_view html);

} // namespace orrelix
