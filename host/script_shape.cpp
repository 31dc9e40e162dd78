#include "host/script_shape.h"

#include <algorithm>
#include <cctype>
#include <map>

namespace orrelix {

namespace {

constexpr std::string_view kLineEnds = "\r\n";

// Longer than any word of the language.
constexpr size_t kLongWord = 14;

bool IsDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

// Whether it may be a part of a name: each character beyond ASCII counts as one.
bool IsWord(char byte) {
    return IsDigit(byte) || isalpha(static_cast<unsigned char>(byte)) || byte == '_' || byte == '$' ||
           static_cast<unsigned char>(byte) >= 0x80;
}

// Whether a backslash in front of it is an escape, and a right one.
bool IsEscaped(char byte) {
    return byte == 'n' || byte == 'r' || byte == 't' || (byte > ' ' && byte < 0x7F && !IsWord(byte));
}

class CScriptShaper {
public:
    explicit CScriptShaper(std::string_view script) : m_Script(script) { m_Shape.reserve(script.size()); }

    bool Run() {
        while (m_nAt < m_Script.size()) {
            const char byte = m_Script[m_nAt];
            if (byte == '"' || byte == '\'') {
                if (!TakeString())
                    return false;
            } else if (byte == '\\' || byte == '`' || byte == '\0') {
                return false;
            } else if (IsWord(byte)) {
                TakeWord();
            } else if (Starts("//")) {
                m_Shape += "//";
                m_nAt = LineEnd();
            } else if (byte == '/') {
                return false;
            } else if (Starts("<!--") || Starts("-->")) {
                if (!KeepLine())
                    return false;
            } else {
                m_Shape += byte;
                ++m_nAt;
            }
        }
        return true;
    }

    std::string m_Shape;

private:
    bool Starts(std::string_view text) const { return m_Script.substr(m_nAt).starts_with(text); }
    size_t LineEnd() const { return std::min(m_Script.find_first_of(kLineEnds, m_nAt), m_Script.size()); }

    bool TakeString() {
        const size_t nBegin = m_nAt;
        const char quote = m_Script[m_nAt];
        for (++m_nAt; m_nAt < m_Script.size() && m_Script[m_nAt] != quote; ++m_nAt) {
            const char byte = m_Script[m_nAt];
            if (byte == '\0' || kLineEnds.find(byte) != kLineEnds.npos)
                return false;
            if (byte == '\\' && (++m_nAt == m_Script.size() || !IsEscaped(m_Script[m_nAt])))
                return false;
        }
        if (m_nAt == m_Script.size())
            return false;
        ++m_nAt;
        const std::string_view text = m_Script.substr(nBegin + 1, m_nAt - nBegin - 2);
        // Those that mean something to a compiler: "use strict", "__proto__".
        const bool bKept = text.starts_with("use ") || text.find("proto") != text.npos;
        (m_Shape += quote).append(bKept ? text : "") += quote;
        return true;
    }

    void TakeWord() {
        const size_t nBegin = m_nAt;
        while (m_nAt < m_Script.size() && IsWord(m_Script[m_nAt]))
            ++m_nAt;
        const bool bFraction = nBegin > 0 && m_Script[nBegin - 1] == '.';
        std::string_view word = m_Script.substr(nBegin, m_nAt - nBegin);
        if (IsNumber(word) && !bFraction && TakeFraction())
            m_Shape += '1';
        else if (IsName(word))
            m_Shape += NameFor(word);
        else
            m_Shape += word;
    }

    static bool IsNumber(std::string_view word) {
        return std::all_of(word.begin(), word.end(), IsDigit) && (word.size() == 1 || word.front() != '0');
    }

    // Takes what follows a number's digits; nothing when it isn't a fraction.
    bool TakeFraction() {
        if (m_nAt == m_Script.size() || m_Script[m_nAt] != '.')
            return true;
        size_t nEnd = m_nAt + 1;
        while (nEnd < m_Script.size() && IsDigit(m_Script[nEnd]))
            ++nEnd;
        const bool bEnds = nEnd == m_Script.size() || (!IsWord(m_Script[nEnd]) && m_Script[nEnd] != '.');
        if (nEnd == m_nAt + 1 || !bEnds)
            return false;
        m_nAt = nEnd;
        return true;
    }

    // No word of the language is as long, or has a digit or a capital letter in it.
    static bool IsName(std::string_view word) {
        const bool bAscii = std::all_of(word.begin(), word.end(),
                                        [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
        const bool bOwn = word.size() > kLongWord || std::any_of(word.begin(), word.end(), [](char byte) {
                              return IsDigit(byte) || isupper(static_cast<unsigned char>(byte));
                          });
        return bAscii && bOwn && !IsDigit(word.front()) && word.find("proto") == word.npos;
    }

    // All of these have a digit: none is a word of the script's that stays.
    std::string NameFor(std::string_view word) {
        return std::to_string(m_Names.try_emplace(word, m_Names.size()).first->second).insert(0, 1, 'v');
    }

    bool KeepLine() {
        const std::string_view line = m_Script.substr(m_nAt, LineEnd() - m_nAt);
        m_Shape += line;
        m_nAt += line.size();
        return line.find_first_of("\\`") == line.npos && line.find("/*") == line.npos;
    }

    const std::string_view m_Script;
    size_t m_nAt = 0;
    std::map<std::string_view, size_t> m_Names;
};

} // namespace

std::string ShapeOfScript(std::string_view script) {
    CScriptShaper shaper(script);
    return shaper.Run() ? std::move(shaper.m_Shape) : std::string(script);
}

} // namespace orrelix
