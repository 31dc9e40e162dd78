#include "platform/string.h"

#include "platform/code_page.h"

#include <algorithm>
#include <cstdint>

namespace orrelix {

namespace {

constexpr std::string_view kWhiteSpace = " \t\r\n\v\f";

char LowerCase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

size_t CharacterLength(std::string_view text, size_t nPosition) {
    return nPosition + 1 < text.size() && IsTwoByteCharacter(static_cast<unsigned char>(text[nPosition]),
                                                             static_cast<unsigned char>(text[nPosition + 1]))
               ? 2
               : 1;
}

size_t Cut(CString::Position nCount, size_t nLength) {
    return nCount < 0 ? 0 : std::min(static_cast<size_t>(nCount), nLength);
}

} // namespace

std::string_view Trim(std::string_view text) {
    const size_t nFirst = text.find_first_not_of(kWhiteSpace);
    if (nFirst == std::string_view::npos)
        return {};
    return text.substr(nFirst, text.find_last_not_of(kWhiteSpace) - nFirst + 1);
}

bool EqualsNoCase(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return LowerCase(a) == LowerCase(b); });
}

size_t FindCharacters(std::string_view in, std::string_view text, size_t nStart) {
    size_t nFound = in.find(text, nStart);
    if (!HasTrailBytes())
        return nFound;
    // Each candidate is reached character by character from the last place known to begin one, so the whole
    // search walks the text once.
    for (size_t nCharacter = nStart; nFound != std::string_view::npos; nFound = in.find(text, nFound + 1)) {
        while (nCharacter < nFound)
            nCharacter += CharacterLength(in, nCharacter);
        if (nCharacter == nFound)
            break;
    }
    return nFound;
}

int ToInteger(std::string_view text) {
    const size_t nFirst = text.find_first_not_of(kWhiteSpace);
    text.remove_prefix(nFirst == std::string_view::npos ? text.size() : nFirst);
    const bool bNegative = text.starts_with('-');
    if (bNegative || text.starts_with('+'))
        text.remove_prefix(1);
    std::uint32_t nNumber = 0;
    for (char digit : text) {
        if (digit < '0' || digit > '9')
            break;
        nNumber = nNumber * 10 + static_cast<std::uint32_t>(digit - '0');
    }
    return static_cast<int>(bNegative ? 0 - nNumber : nNumber);
}

CString ToText(long long nNumber) {
    return CString(std::to_string(nNumber));
}

CString::Position CString::Find(std::string_view text, Position nStart) const {
    if (nStart < 0 || nStart > GetLength())
        return -1;
    return static_cast<Position>(FindCharacters(m_Text, text, static_cast<size_t>(nStart)));
}

CString::Position CString::ReverseFind(char character) const {
    if (!HasTrailBytes())
        return static_cast<Position>(m_Text.rfind(character));
    Position nLast = -1;
    for (size_t nPosition = 0; nPosition < m_Text.size(); nPosition += CharacterLength(m_Text, nPosition)) {
        if (m_Text[nPosition] == character)
            nLast = static_cast<Position>(nPosition);
    }
    return nLast;
}

CString CString::Left(Position nCount) const {
    return CString(View().substr(0, Cut(nCount, m_Text.size())));
}

CString CString::Right(Position nCount) const {
    return CString(View().substr(m_Text.size() - Cut(nCount, m_Text.size())));
}

CString CString::Mid(Position nFirst) const {
    return CString(View().substr(Cut(nFirst, m_Text.size())));
}

CString CString::Mid(Position nFirst, Position nCount) const {
    return CString(View().substr(Cut(nFirst, m_Text.size()), Cut(nCount, m_Text.size())));
}

int CString::Replace(std::string_view from, std::string_view to) {
    if (from.empty())
        return 0;
    size_t nFound = FindCharacters(m_Text, from);
    if (nFound == std::string::npos)
        return 0;
    std::string result;
    result.reserve(m_Text.size());
    int nReplaced = 0;
    size_t nCopied = 0;
    for (; nFound != std::string::npos; nFound = FindCharacters(m_Text, from, nCopied)) {
        result.append(m_Text, nCopied, nFound - nCopied).append(to);
        nCopied = nFound + from.size();
        ++nReplaced;
    }
    m_Text = std::move(result.append(m_Text, nCopied));
    return nReplaced;
}

CString& CString::MakeLower() {
    for (size_t nPosition = 0; nPosition < m_Text.size(); nPosition += CharacterLength(m_Text, nPosition))
        m_Text[nPosition] = LowerCase(m_Text[nPosition]);
    return *this;
}

} // namespace orrelix
