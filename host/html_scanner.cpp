#include "host/html_scanner.h"

#include "platform/string.h"

#include <algorithm>
#include <iterator>

namespace orrelix {

namespace {

constexpr size_t kNowhere = std::string_view::npos;
constexpr std::string_view kBlanks = " \t\r\n\f";

// Elements whose content is text up to their own end tag, whatever it looks like.
constexpr std::string_view kRawTextElements[] = {"script",  "style",    "textarea", "title",    "xmp",
                                                 "noembed", "noframes", "iframe",   "noscript", "plaintext"};

bool IsLetter(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

// The length of a comment that ends where it begins, "<!-->" or "<!--->"; else 0.
size_t EmptyCommentLength(std::string_view text) {
    for (std::string_view comment : {"<!-->", "<!--->"}) {
        if (text.starts_with(comment))
            return comment.size();
    }
    return 0;
}

// The length of code that a server runs, of which browsers get to see nothing; else 0. Its end may be the page's. What a
// name follows, such as "<?xml", is none.
size_t ServerCodeLength(std::string_view text) {
    const bool bPhp = text.starts_with("<?") &&
                      (text.size() == 2 || !IsLetter(text[2]) || EqualsNoCase(text.substr(2, 3), "php"));
    if (!bPhp && !text.starts_with("<%"))
        return 0;
    const size_t nEnd = text.find(bPhp ? "?>" : "%>", 1);
    return nEnd == kNowhere ? text.size() : nEnd + 2;
}

} // namespace

bool CHtmlScanner::Next(CHtmlPiece& piece) {
    while ((m_nPosition = m_Page.find('<', m_nPosition)) != kNowhere) {
        const std::string_view rest = m_Page.substr(m_nPosition);
        if (const size_t nPassed = std::max(EmptyCommentLength(rest), ServerCodeLength(rest))) {
            m_nPosition += nPassed;
            continue;
        }
        if (rest.starts_with("<!--"))
            return ReadComment(piece);
        const bool bEndTag = rest.starts_with("</");
        const size_t nName = bEndTag ? 2 : 1;
        if (rest.size() > nName && IsLetter(rest[nName]))
            return ReadTag(piece);
        // "<!DOCTYPE>" and the like end at the next ">"; any other "<" is text.
        const bool bDeclaration = bEndTag || rest.starts_with("<!") || rest.starts_with("<?");
        m_nPosition = bDeclaration ? std::min(m_Page.find('>', m_nPosition), m_Page.size()) : m_nPosition + 1;
    }
    m_nPosition = m_Page.size();
    return false;
}

bool CHtmlScanner::ReadComment(CHtmlPiece& piece) {
    const size_t nInner = m_nPosition + 4;
    for (size_t nClose = nInner; (nClose = m_Page.find("--", nClose)) != kNowhere; ++nClose) {
        for (std::string_view close : {"-->", "--!>"}) {
            if (m_Page.substr(nClose).starts_with(close)) {
                piece = {CHtmlPiece::kComment, "", m_nPosition, nClose + close.size(), nInner, nClose};
                m_nPosition = piece.m_nEnd;
                return true;
            }
        }
    }
    m_nPosition = m_Page.size();
    return false;
}

bool CHtmlScanner::ReadTag(CHtmlPiece& piece) {
    const bool bEndTag = m_Page[m_nPosition + 1] == '/';
    const size_t nName = m_nPosition + (bEndTag ? 2 : 1);
    const size_t nNameEnd = std::min(m_Page.find_first_of(" \t\r\n\f/>", nName), m_Page.size());
    const size_t nEnd = FindTagEnd(nNameEnd);
    const CString name = CString(m_Page.substr(nName, nNameEnd - nName)).MakeLower();
    piece = {bEndTag ? CHtmlPiece::kEndTag : CHtmlPiece::kTag,
             std::string(name.View()),
             m_nPosition,
             nEnd,
             nNameEnd,
             nEnd - 1};
    m_nPosition = nEnd;
    if (nEnd == kNowhere)
        return false;
    if (!bEndTag)
        SkipRawText(piece.m_Name);
    return true;
}

// The position behind the ">" that ends a tag; one within quotes doesn't, where the quote opens a value.
size_t CHtmlScanner::FindTagEnd(size_t nStart) const {
    for (size_t i = nStart; i < m_Page.size(); ++i) {
        if (m_Page[i] == '>')
            return i + 1;
        if (m_Page[i] != '=')
            continue;
        const size_t nValue = m_Page.find_first_not_of(kBlanks, i + 1);
        if (nValue == kNowhere)
            return kNowhere;
        i = nValue - 1;
        if (m_Page[nValue] == '"' || m_Page[nValue] == '\'')
            i = m_Page.find(m_Page[nValue], nValue + 1);
        if (i == kNowhere)
            return kNowhere;
    }
    return kNowhere;
}

void CHtmlScanner::SkipRawText(const std::string& name) {
    if (std::find(std::begin(kRawTextElements), std::end(kRawTextElements), name) ==
        std::end(kRawTextElements))
        return;
    while ((m_nPosition = m_Page.find("</", m_nPosition)) != kNowhere) {
        const size_t nBehind = m_nPosition + 2 + name.size();
        if (EqualsNoCase(m_Page.substr(m_nPosition + 2, name.size()), name) &&
            (nBehind >= m_Page.size() || !IsLetter(m_Page[nBehind])))
            return;
        m_nPosition += 2;
    }
    m_nPosition = m_Page.size();
}

std::string_view FindAttribute(std::string_view attributes, std::string_view name) {
    for (size_t nStart = 0; nStart < attributes.size();) {
        const size_t nName = attributes.find_first_not_of(" \t\r\n\f/", nStart);
        if (nName == kNowhere)
            break;
        const size_t nNameEnd = std::min(attributes.find_first_of(" \t\r\n\f/=", nName), attributes.size());
        const std::string_view found = attributes.substr(nName, nNameEnd - nName);
        size_t nValue = attributes.find_first_not_of(kBlanks, nNameEnd);
        nStart = std::max(nNameEnd, nName + 1);
        std::string_view value;
        if (nValue != kNowhere && attributes[nValue] == '=') {
            nValue = std::min(attributes.find_first_not_of(kBlanks, nValue + 1), attributes.size());
            const char quote = nValue < attributes.size() ? attributes[nValue] : '"';
            const bool bQuoted = quote == '"' || quote == '\'';
            nValue = std::min(nValue + (bQuoted ? 1 : 0), attributes.size());
            const size_t nValueEnd =
                std::min(bQuoted ? attributes.find(quote, nValue) : attributes.find_first_of(kBlanks, nValue),
                         attributes.size());
            value = attributes.substr(nValue, nValueEnd - nValue);
            nStart = nValueEnd + (bQuoted ? 1 : 0);
        }
        if (EqualsNoCase(found, name))
            return value;
    }
    return {};
}

std::string_view FindAttribute(std::string_view page, const CHtmlPiece& tag, std::string_view name) {
    return FindAttribute(page.substr(tag.m_nInnerBegin, tag.m_nInnerEnd - tag.m_nInnerBegin), name);
}

std::vector<std::string_view> TextsOfElements(std::string_view html, std::string_view name) {
    std::vector<std::string_view> texts;
    CHtmlScanner scanner(html);
    CHtmlPiece piece;
    while (scanner.Next(piece)) {
        if (piece.m_Kind != CHtmlPiece::kTag || piece.m_Name != name)
            continue;
        const size_t nBegin = piece.m_nEnd;
        const size_t nEnd = scanner.Next(piece) ? piece.m_nBegin : html.size();
        texts.push_back(html.substr(nBegin, nEnd - nBegin));
    }
    return texts;
}

} // namespace orrelix
