// Generated text, written so that one reads in the code what stands in the page:
//
//     return MakeHtml([&](CHtmlText& html) {
//         html.Line(R"(<td width="$" height="$">)", m_TextWidth, m_TextHeight);
//         html.Lines(R"(
//     <script>
//     start($)
//     </script>
//     )", m_Speed);
//     });
//
// Each "$" is a hole for a field: a text, or a whole number in decimal. Nothing is escaped, and a "$" within a
// field is no hole.
//
// The function that writes a text is called twice: once to measure it, once to write it into a text of
// exactly that size, so that every byte is copied once.
#pragma once

#include <algorithm>
#include <array>
#include <cassert>
#include <charconv>
#include <concepts>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

namespace orrelix {

// A literal cut at its holes while compiling, which fails where the fields are more or fewer. A line break in
// front, where a raw literal begins, is left out. A "$" of the text itself is one more field.
template <size_t nHoles>
class CHtmlPattern {
public:
    consteval CHtmlPattern(const char* pText) {
        std::string_view text = pText;
        if (std::count(text.begin(), text.end(), '$') != nHoles)
            throw "the text has to have a hole for each field";
        text.remove_prefix(text.starts_with('\n') ? 1 : 0);
        for (CPiece& piece : m_Pieces) {
            const std::string_view part = text.substr(0, text.find('$'));
            piece = {part.data(), static_cast<std::uint32_t>(part.size()),
                     static_cast<std::uint32_t>(std::count(part.begin(), part.end(), '\n'))};
            m_nLength += piece.m_nLength;
            m_nBreaks += piece.m_nBreaks;
            text.remove_prefix(std::min(part.size() + 1, text.size()));
        }
    }

private:
    friend class CHtmlText;

    // Small, as patterns are made anew where they are used.
    struct CPiece {
        const char* m_pText;
        std::uint32_t m_nLength;
        std::uint32_t m_nBreaks; // line breaks in it

        std::string_view View() const { return {m_pText, m_nLength}; }
    };

    std::array<CPiece, nHoles + 1> m_Pieces{};
    size_t m_nLength = 0; // of all pieces
    size_t m_nBreaks = 0;
};

class CHtmlText {
public:
    // The text as it is, line breaks too.
    template <class... TField>
    void Text(const CHtmlPattern<sizeof...(TField)>& pattern, const TField&... fields) {
        if (!m_pWrite) {
            m_nLength += (pattern.m_nLength + ... + LengthOf(fields));
            return;
        }
        auto pPiece = pattern.m_Pieces.begin();
        Write(pPiece->View());
        ((Write(fields), Write((++pPiece)->View())), ...);
    }

    // The text and the end of its line, CR LF.
    template <class... TField>
    void Line(const CHtmlPattern<sizeof...(TField)>& pattern, const TField&... fields) {
        Text(pattern, fields...);
        Text("\r\n");
    }

    // A text whose own line breaks, not those of the fields, become CR LF.
    template <class... TField>
    void Lines(const CHtmlPattern<sizeof...(TField)>& pattern, const TField&... fields) {
        if (!m_pWrite) {
            m_nLength += ((pattern.m_nLength + pattern.m_nBreaks) + ... + LengthOf(fields));
            return;
        }
        auto pPiece = pattern.m_Pieces.begin();
        WriteLines(pPiece->View(), pPiece->m_nBreaks);
        ((Write(fields), ++pPiece, WriteLines(pPiece->View(), pPiece->m_nBreaks)), ...);
    }

private:
    template <class TWrite>
    friend std::string MakeHtml(TWrite write);

    static size_t LengthOf(std::string_view text) { return text.size(); }

    template <std::integral TNumber>
    static size_t LengthOf(TNumber nNumber) {
        char digits[24];
        return static_cast<size_t>(std::to_chars(digits, std::end(digits), nNumber).ptr - digits);
    }

    void Write(std::string_view text) { m_pWrite = std::copy(text.begin(), text.end(), m_pWrite); }

    template <std::integral TNumber>
    void Write(TNumber nNumber) {
        m_pWrite = std::to_chars(m_pWrite, m_pEnd, nNumber).ptr;
    }

    void WriteLines(std::string_view lines, std::uint32_t nBreaks) {
        for (; nBreaks > 0; --nBreaks) {
            const size_t nEnd = lines.find('\n');
            Write(lines.substr(0, nEnd));
            Write("\r\n");
            lines.remove_prefix(nEnd + 1);
        }
        Write(lines);
    }

    size_t m_nLength = 0;
    char* m_pWrite = nullptr; // where the next byte goes; null while measuring
    char* m_pEnd = nullptr;   // of the text
};

// The most bytes of HTML that are made at once in this process; as many as there is memory for, at start. A short file
// can prescribe a text of any length: each of its items has the title in it.
std::size_t GetMostHtml();
void SetMostHtml(std::size_t nBytes);

// Throws CRefusal for a text of more bytes than that.
void CheckLength(std::size_t nBytes);

// The text that write(CHtmlText&) writes. It has to write the same both times.
template <class TWrite>
std::string MakeHtml(TWrite write) {
    CHtmlText html;
    write(html);
    CheckLength(html.m_nLength);
    std::string text(html.m_nLength, '\0');
    html.m_pWrite = text.data();
    html.m_pEnd = html.m_pWrite + text.size();
    write(html);
    assert(html.m_pWrite == html.m_pEnd);
    return text;
}

// A pattern with its fields as a text, line breaks as they are.
template <class... TField>
std::string Fill(const CHtmlPattern<sizeof...(TField)>& pattern, const TField&... fields) {
    return MakeHtml([&](CHtmlText& html) { html.Text(pattern, fields...); });
}

} // namespace orrelix
