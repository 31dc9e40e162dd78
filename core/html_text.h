// Generated text, written so that one reads in the code what stands in the page:
//
//     return MakeHtml([&](CHtmlText& html) {
//         html.Line(R"(<td width=")", m_TextWidth, R"(" height=")", m_TextHeight, R"(">)");
//         html.Lines(R"(
//     <script>
//     start()
//     </script>
//     )");
//     });
//
// The function that writes a text is called twice: once to measure it, once to write it into a text of
// exactly that size, so that every byte is copied once. Nothing is escaped. Lines end in CR LF.
#pragma once

#include "platform/string.h"

#include <algorithm>
#include <cassert>
#include <charconv>
#include <concepts>
#include <iterator>
#include <string>
#include <string_view>

namespace orrelix {

class CHtmlText {
public:
    // Texts and whole numbers joined, the numbers in decimal.
    template <class... TPiece>
    void Text(const TPiece&... pieces) {
        (Add(pieces), ...);
    }

    // The same, and the end of the line.
    template <class... TPiece>
    void Line(const TPiece&... pieces) {
        Text(pieces..., std::string_view("\r\n"));
    }

    // Lines without fields, as a raw literal whose first line break is not part of it.
    void Lines(std::string_view block) {
        block.remove_prefix(block.starts_with('\n') ? 1 : 0);
        while (!block.empty()) {
            const size_t nEnd = block.find('\n');
            Line(block.substr(0, nEnd));
            block.remove_prefix(nEnd == std::string_view::npos ? block.size() : nEnd + 1);
        }
    }

private:
    template <class TWrite>
    friend CString MakeHtml(TWrite write);

    void Add(std::string_view text) {
        if (m_pWrite)
            m_pWrite = std::copy(text.begin(), text.end(), m_pWrite);
        else
            m_nLength += text.size();
    }

    template <std::integral TNumber>
    void Add(TNumber nNumber) {
        if (m_pWrite) {
            m_pWrite = std::to_chars(m_pWrite, m_pEnd, nNumber).ptr;
            return;
        }
        char digits[24];
        m_nLength += static_cast<size_t>(std::to_chars(digits, std::end(digits), nNumber).ptr - digits);
    }

    size_t m_nLength = 0;
    char* m_pWrite = nullptr; // where the next byte goes; null while measuring
    char* m_pEnd = nullptr;   // of the text
};

// The text that write(CHtmlText&) writes. It has to write the same both times.
template <class TWrite>
CString MakeHtml(TWrite write) {
    CHtmlText html;
    write(html);
    std::string text(html.m_nLength, '\0');
    html.m_pWrite = text.data();
    html.m_pEnd = html.m_pWrite + text.size();
    write(html);
    assert(html.m_pWrite == html.m_pEnd);
    return CString(std::move(text));
}

} // namespace orrelix
