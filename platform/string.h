// CString: a counted string of bytes in the system's code page, copied by value.
//
//     CString path = "\\home\\ann\\page.cfg";
//     CString name = path.Mid(path.ReverseFind('\\') + 1);    // "page.cfg"
//
// Positions are byte positions. Searches for characters below 0x80 honour the code page in force: they never
// stop at the second byte of a two-byte character (see platform/code_page.h). A text may hold any byte, zero
// bytes too.
#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>

namespace orrelix {

class CString {
public:
    using Position = std::ptrdiff_t;

    CString() = default;
    CString(const char* pText) : m_Text(pText ? pText : "") {}
    CString(std::string_view text) : m_Text(text) {}
    CString(std::string text) : m_Text(std::move(text)) {}

    Position GetLength() const { return static_cast<Position>(m_Text.size()); }
    bool IsEmpty() const { return m_Text.empty(); }
    void Empty() { m_Text.clear(); }

    // The text up to its first zero byte, for whoever wants a C string; valid until the string changes.
    const char* GetString() const { return m_Text.c_str(); }
    operator const char*() const { return m_Text.c_str(); }

    // All the bytes; valid until the string changes.
    std::string_view View() const { return m_Text; }
    operator std::string_view() const { return m_Text; }

    // The byte at the position, which must lie within the text.
    char operator[](Position nIndex) const { return m_Text[static_cast<size_t>(nIndex)]; }

    // The position of the first occurrence at or behind nStart, or -1.
    Position Find(std::string_view text, Position nStart = 0) const;
    Position Find(char character, Position nStart = 0) const { return Find({&character, 1}, nStart); }

    // The position of the last occurrence, or -1.
    Position ReverseFind(char character) const;

    // Parts of the text. Counts and positions outside of it are cut to it.
    CString Left(Position nCount) const;
    CString Right(Position nCount) const;
    CString Mid(Position nFirst) const;
    CString Mid(Position nFirst, Position nCount) const;

    // Replaces every occurrence, case-sensitively, from left to right, not looking again at what it has put
    // in. The result is the number of replacements. An empty `from` replaces nothing.
    int Replace(std::string_view from, std::string_view to);

    // Lower-cases A to Z and nothing else.
    CString& MakeLower();

    CString& operator+=(std::string_view text) {
        m_Text += text;
        return *this;
    }
    CString& operator+=(char character) {
        m_Text += character;
        return *this;
    }

    friend CString operator+(CString left, const CString& right) { return std::move(left += right); }
    friend CString operator+(CString left, const char* pRight) { return std::move(left += pRight); }
    friend CString operator+(CString left, char right) { return std::move(left += right); }
    friend CString operator+(const char* pLeft, const CString& right) { return CString(pLeft) += right; }

    friend bool operator==(const CString& left, const CString& right) { return left.m_Text == right.m_Text; }
    friend bool operator==(const CString& left, const char* pRight) { return left.m_Text == pRight; }
    friend bool operator==(const CString& left, const std::string& right) { return left.m_Text == right; }
    friend bool operator==(const CString& left, std::string_view right) { return left.m_Text == right; }
    friend auto operator<=>(const CString& left, const CString& right) {
        return left.m_Text <=> right.m_Text;
    }

    friend std::ostream& operator<<(std::ostream& out, const CString& text) { return out << text.m_Text; }

private:
    std::string m_Text;
};

// Blanks, tabs, CR, LF, vertical tabs and form feeds, off both ends.
std::string_view Trim(std::string_view text);

// Whether two texts are equal but for the case of A to Z.
bool EqualsNoCase(std::string_view left, std::string_view right);

// The position of the first occurrence of `text` that begins a character of the code page in force, at or
// behind nStart, which must begin a character itself. std::string_view::npos when there is none.
size_t FindCharacters(std::string_view in, std::string_view text, size_t nStart = 0);

// The leading decimal number, after white space and with a sign, as C's atoi gives it; 0 when there is none.
// A number beyond 32 bits keeps its low 32 bits.
int ToInteger(std::string_view text);

// Decimal digits.
CString ToText(long long nNumber);

} // namespace orrelix
