#include "host/page_text.h"

#include "host/html_scanner.h"
#include "platform/string.h"

#include <algorithm>
#include <charconv>

namespace orrelix {

namespace {

constexpr struct {
    std::string_view m_Mark;
    const char* m_pEncoding;
    size_t m_nUnitSize;
} kByteOrderMarks[] = {
    {"\xEF\xBB\xBF", "UTF-8", 1},
    {"\xFF\xFE", "UTF-16LE", 2},
    {"\xFE\xFF", "UTF-16BE", 2},
};

constexpr char kNoAscii = '\x80';

// The charset in a text such as "text/html; charset=gb2312".
std::string_view CharsetOfContentType(std::string_view content) {
    const CString lower = CString(content).MakeLower();
    const auto nCharset = lower.Find("charset");
    if (nCharset < 0)
        return {};
    std::string_view value = Trim(content.substr(static_cast<size_t>(nCharset) + 7));
    if (!value.starts_with('='))
        return {};
    value = Trim(value.substr(1));
    const size_t nBegin = std::min(value.find_first_not_of("\"'"), value.size());
    return value.substr(nBegin, value.find_first_of("\"'; \t\r\n", nBegin) - nBegin);
}

// The charset that a tag of a page declares; empty for any other piece.
std::string_view CharsetOf(const CHtmlPiece& piece, std::string_view page) {
    if (piece.m_Kind != CHtmlPiece::kTag || piece.m_Name != "meta")
        return {};
    const std::string_view charset = Trim(FindAttribute(page, piece, "charset"));
    if (charset.empty() && EqualsNoCase(FindAttribute(page, piece, "http-equiv"), "content-type"))
        return CharsetOfContentType(FindAttribute(page, piece, "content"));
    return charset;
}

struct CDeclaration {
    std::string_view m_Charset;
    size_t m_nEnd = 0;
};

// The XML declaration with which a page may begin.
CDeclaration XmlDeclaration(std::string_view page) {
    constexpr std::string_view kBegin = "<?xml";
    const size_t nEnd = page.find('>');
    if (!page.starts_with(kBegin) || nEnd == std::string_view::npos)
        return {};
    return {Trim(FindAttribute(page.substr(kBegin.size(), nEnd - kBegin.size()), "encoding")), nEnd + 1};
}

// Browsers take the first charset that they know, and without any the XML declaration's. They look for tags in the head and
// in the first 1024 bytes; one behind these tells at least what the page's author meant. One that they don't know is found
// where there is no other.
CDeclaration FindDeclaration(std::string_view page) {
    CDeclaration unknown;
    CHtmlScanner scanner(page);
    CHtmlPiece piece;
    while (scanner.Next(piece)) {
        const CDeclaration found{CharsetOf(piece, page), piece.m_nEnd};
        if (found.m_Charset.empty())
            continue;
        if (!EncodingOfLabel(found.m_Charset).empty())
            return found;
        if (unknown.m_Charset.empty())
            unknown = found;
    }
    const CDeclaration xml = XmlDeclaration(page);
    return unknown.m_Charset.empty() || !EncodingOfLabel(xml.m_Charset).empty() ? xml : unknown;
}

// In this encoding, bytes between an escape sequence and the next may be halves of characters, whatever they
// look like.
void MaskEscapedText(std::string& outline) {
    bool bAscii = true;
    for (size_t i = 0; i < outline.size(); ++i) {
        const std::string_view sequence = std::string_view(outline).substr(i, 3);
        const bool bToAscii = sequence == "\x1B(B" || sequence == "\x1B(J";
        if (bToAscii || sequence == "\x1B(I" || sequence == "\x1B$@" || sequence == "\x1B$B") {
            bAscii = bToAscii;
            i += 2;
        } else if (!bAscii) {
            outline[i] = kNoAscii;
        }
    }
}

struct CReference {
    unsigned m_nCharacter = 0;
    size_t m_nLength = 0; // from "&" to ";"
};

// The reference at the start of the text, such as "&#45;" or "&#x2d;"; all zero where there is none.
CReference ParseReference(std::string_view text) {
    constexpr size_t kLongest = sizeof "&#x0010FFFF;";
    const size_t nEnd = text.substr(0, kLongest).find(';');
    if (!text.starts_with("&#") || nEnd == std::string_view::npos)
        return {};
    std::string_view digits = text.substr(2, nEnd - 2);
    const bool bHex = digits.starts_with('x') || digits.starts_with('X');
    digits.remove_prefix(bHex ? 1 : 0);
    CReference reference{0, nEnd + 1};
    const char* pEnd = digits.data() + digits.size();
    const auto parsed = std::from_chars(digits.data(), pEnd, reference.m_nCharacter, bHex ? 16 : 10);
    return parsed.ec == std::errc() && parsed.ptr == pEnd ? reference : CReference{};
}

// Decodes references as far as the characters are ASCII or the text is UTF-8.
std::string WithoutReferences(std::string_view text, bool bUtf8) {
    std::string result;
    while (!text.empty()) {
        const CReference reference = ParseReference(text);
        if (reference.m_nCharacter == 0 || reference.m_nCharacter > (bUtf8 ? 0x10FFFFU : 0x7FU)) {
            const size_t nNext = std::min(text.find('&', 1), text.size());
            result += text.substr(0, nNext);
            text.remove_prefix(nNext);
            continue;
        }
        char units[4];
        for (size_t i = 0; i < sizeof units; ++i)
            units[i] = static_cast<char>(reference.m_nCharacter >> (8 * i));
        result += ConvertText({units, sizeof units}, "UTF-32LE", "UTF-8").m_Text;
        text.remove_prefix(reference.m_nLength);
    }
    return result;
}

} // namespace

CPageText::CPageText(std::string page) : m_Page(std::move(page)), m_CodePageEncoding(orrelix::GetEncoding()) {
    ReadByteOrderMark();
    MakeOutline();
    ReadCharset();
    if (m_Encoding == "ISO-2022-JP")
        MaskEscapedText(m_Outline);
}

void CPageText::ReadByteOrderMark() {
    for (const auto& row : kByteOrderMarks) {
        if (!m_Page.starts_with(row.m_Mark))
            continue;
        m_bMarked = true;
        m_Encoding = row.m_pEncoding;
        m_nUnitSize = row.m_nUnitSize;
    }
}

void CPageText::MakeOutline() {
    if (m_nUnitSize == 1) {
        m_Outline = m_Page;
        return;
    }
    const size_t nLow = m_Encoding == "UTF-16LE" ? 0 : 1;
    m_Outline.resize(m_Page.size() / 2);
    for (size_t i = 0; i < m_Outline.size(); ++i) {
        const char low = m_Page[2 * i + nLow];
        const bool bAscii = m_Page[2 * i + 1 - nLow] == 0 && static_cast<unsigned char>(low) < 0x80;
        m_Outline[i] = bAscii ? low : kNoAscii;
    }
}

void CPageText::ReadCharset() {
    const CDeclaration declaration = FindDeclaration(m_Outline);
    m_Charset = declaration.m_Charset;
    m_nCharsetEnd = declaration.m_nEnd;
    if (!m_bMarked)
        m_Encoding = EncodingOfLabel(m_Charset);
}

CConvertedText CPageText::ToPage(std::string_view text) const {
    return Converts() ? ConvertText(text, m_CodePageEncoding, m_Encoding) : CConvertedText{std::string(text)};
}

bool CPageText::Equals(std::string_view part, std::string_view text) const {
    if (part == text)
        return true;
    if (!Converts())
        return WithoutReferences(part, m_Encoding == "UTF-8") == text;
    // What comes back from the page's encoding may be another character, such as a wide form.
    if (part == ToPage(text).m_Text)
        return true;
    const std::string ours = ToUtf8(text).m_Text;
    const std::string theirs = ConvertText(part, m_Encoding, "UTF-8").m_Text;
    return theirs == ours || WithoutReferences(theirs, true) == ours;
}

} // namespace orrelix
