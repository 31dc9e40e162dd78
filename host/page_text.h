// The text of a page in whatever encoding it is, and the effect's text on its way into it and back.
#pragma once

#include "host/text_encoding.h"

#include <string>
#include <string_view>

namespace orrelix {

class CPageText {
public:
    // Finds out the encoding: by a byte order mark, or else by the charset that the page declares, as browsers do.
    explicit CPageText(std::string page);

    const std::string& GetBytes() const { return m_Page; }

    // The page with one byte for each unit of its encoding, so that its tags can be found: ASCII is itself,
    // everything else is no ASCII. A position in it is one in the page, times GetUnitSize().
    const std::string& GetOutline() const { return m_Outline; }
    size_t GetUnitSize() const { return m_nUnitSize; }

    // The name of the page's encoding; empty when it isn't known.
    const std::string& GetEncoding() const { return m_Encoding; }

    // The charset that the page declares; empty when it declares none. Browsers pass over those that they don't know.
    const std::string& GetCharset() const { return m_Charset; }
    // Behind what declares it, in the outline.
    size_t GetCharsetEnd() const { return m_nCharsetEnd; }
    // Whether nothing else tells the encoding, so that browsers have to come across it.
    bool NeedsCharset() const { return !m_bMarked && !m_Charset.empty(); }

    // A text of the code page as the page has it. The bytes stay as they are when the page is in the code
    // page itself or its encoding isn't known.
    CConvertedText ToPage(std::string_view text) const;

    // Whether a part of the page is the same text as one of the code page. The page may have any of its
    // characters as "&#N;".
    bool Equals(std::string_view part, std::string_view text) const;

private:
    void ReadByteOrderMark();
    void MakeOutline();
    void ReadCharset();
    bool Converts() const { return !m_Encoding.empty() && m_Encoding != m_CodePageEncoding; }

    std::string m_Page;
    std::string m_Outline;
    std::string m_Charset;
    size_t m_nCharsetEnd = 0;
    bool m_bMarked = false; // by a byte order mark
    std::string m_Encoding;
    std::string m_CodePageEncoding;
    size_t m_nUnitSize = 1;
};

} // namespace orrelix
