// The tags and comments of an HTML page, one after the other, as far as one has to know them to find places
// in it. What looks like a tag within a comment, a script, an attribute's value or a server's code is none.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orrelix {

struct CHtmlPiece {
    enum EKind { kTag, kEndTag, kComment };

    EKind m_Kind;
    std::string m_Name; // a tag's, in lower case
    // The piece with its angle brackets, and what stands within: a tag's attributes or a comment's text.
    size_t m_nBegin;
    size_t m_nEnd;
    size_t m_nInnerBegin;
    size_t m_nInnerEnd;
};

class CHtmlScanner {
public:
    // One byte for each unit of the page. Those that aren't ASCII may be anything from 0x80 on. The text has
    // to outlive the scanner.
    explicit CHtmlScanner(std::string_view page) : m_Page(page) {}

    // False at the page's end.
    bool Next(CHtmlPiece& piece);

    // Goes on from a position outside of any piece.
    void ContinueAt(size_t nPosition) { m_nPosition = nPosition; }

private:
    bool ReadComment(CHtmlPiece& piece);
    bool ReadTag(CHtmlPiece& piece);
    size_t FindTagEnd(size_t nStart) const;
    void SkipRawText(const std::string& name);

    std::string_view m_Page;
    size_t m_nPosition = 0;
};

// The value of an attribute in the text of a tag; empty when it isn't there.
std::string_view FindAttribute(std::string_view attributes, std::string_view name);

// That of a tag of the page.
std::string_view FindAttribute(std::string_view page, const CHtmlPiece& tag, std::string_view name);

// What stands in the elements of a name whose content is text, such as "script".
std::vector<std::string_view> TextsOfElements(std::string_view html, std::string_view name);

} // namespace orrelix
