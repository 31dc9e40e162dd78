#include "host/report.h"

#include <algorithm>
#include <bit>
#include <fmt/format.h>
#include <iostream>
#include <iterator>

namespace orrelix {

namespace {

// Those that steer a terminal, and those that turn the direction of what stands beside them.
constexpr struct {
    char32_t m_First;
    char32_t m_Last;
} kUnprintable[] = {{0, 0x1F},        {0x7F, 0x9F},     {0x61C, 0x61C},
                    {0x200E, 0x200F}, {0x202A, 0x202E}, {0x2066, 0x2069}};

bool IsPrintable(char32_t character) {
    return std::none_of(std::begin(kUnprintable), std::end(kUnprintable), [character](const auto& range) {
        return character >= range.m_First && character <= range.m_Last;
    });
}

// The length of the character that the text begins with, in UTF-8; 0 where it begins with none.
size_t DecodeFirst(std::string_view text, char32_t& character) {
    constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000}; // of so many bytes
    const auto first = static_cast<unsigned char>(text.front());
    const auto nOnes = static_cast<size_t>(std::countl_one(first));
    const size_t nBytes = nOnes == 0 ? 1 : nOnes;
    if (nOnes == 1 || nBytes > 4 || nBytes > text.size())
        return 0;
    character = first & (0xFFU >> (nOnes == 0 ? 0 : nOnes + 1));
    for (const char byte : text.substr(1, nBytes - 1)) {
        if ((byte & 0xC0) != 0x80)
            return 0;
        character = character << 6 | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    const bool bSurrogate = character >= 0xD800 && character < 0xE000;
    return character < kLeast[nBytes] || character > 0x10FFFF || bSurrogate ? 0 : nBytes;
}

// The text with what escape(character, its bytes) gives for what mustn't be printed. A byte that is no UTF-8 is one
// of those.
template <class TEscape>
std::string Escaped(std::string_view text, TEscape escape) {
    std::string result;
    while (!text.empty()) {
        char32_t character = static_cast<unsigned char>(text.front());
        const size_t nDecoded = DecodeFirst(text, character);
        const size_t nBytes = std::max<size_t>(nDecoded, 1);
        if (nDecoded > 0 && IsPrintable(character))
            result += text.substr(0, nBytes);
        else
            result += escape(nDecoded > 0 ? character : static_cast<unsigned char>(text.front()), nBytes);
        text.remove_prefix(nBytes);
    }
    return result;
}

// In one piece, for those who write to the same terminal.
void Print(const std::string& subject, const char* pKind, const std::string& text) {
    std::cerr << "orrelix: " + Printable(subject) + pKind + Printable(text) + '\n';
}

} // namespace

void CReport::Error(const std::string& subject, const std::string& text) {
    m_nExitCode = std::max(m_nExitCode, kFailure);
    Print(subject, ": ", text);
}

void CReport::Warning(const std::string& subject, const std::string& text) {
    Print(subject, ": warning: ", text);
}

void CReport::WarnOfInvalidBytes(const std::string& subject, size_t nBytes) {
    if (nBytes > 0)
        Warning(subject, fmt::format("{} of the effect's text are none of the code page's; if it was made in "
                                     "another one, name that with --code-page",
                                     Counted(nBytes, "byte")));
}

void CReport::WrongUsage(const std::string& subject, const std::string& text) {
    Error(subject, text);
    m_nExitCode = kWrongUsage;
}

std::string Printable(std::string_view text) {
    return Escaped(text, [](char32_t character, size_t nBytes) {
        if (nBytes == 1 || character < 0x100)
            return character == '\t' ? "\t" : fmt::format("\\x{:02X}", static_cast<unsigned>(character));
        return fmt::format("\\u{:04X}", static_cast<unsigned>(character));
    });
}

std::string PrintableJson(std::string_view json) {
    return Escaped(json, [](char32_t character, size_t) {
        return character == '\n' ? "\n" : fmt::format("\\u{:04x}", static_cast<unsigned>(character));
    });
}

void PrintWritten(const std::filesystem::path& file) {
    std::cout << Printable(file.native()) << '\n';
}

std::string Counted(size_t nCount, const std::string& noun) {
    return fmt::format("{} {}{}", nCount, noun, nCount == 1 ? "" : "s");
}

} // namespace orrelix
