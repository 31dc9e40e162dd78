#include "host/report.h"

#include <algorithm>
#include <fmt/format.h>
#include <iostream>

namespace orrelix {

void CReport::Error(const std::string& subject, const std::string& text) {
    m_nExitCode = std::max(m_nExitCode, kFailure);
    std::cerr << "orrelix: " << Printable(subject) << ": " << Printable(text) << '\n';
}

void CReport::Warning(const std::string& subject, const std::string& text) {
    std::cerr << "orrelix: " << Printable(subject) << ": warning: " << Printable(text) << '\n';
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

std::string Printable(const std::string& text) {
    std::string result;
    for (size_t i = 0; i < text.size(); ++i) {
        const auto code = static_cast<unsigned char>(text[i]);
        // U+0080 to U+009F are control characters too, of two bytes.
        const auto next = static_cast<unsigned char>(i + 1 < text.size() ? text[i + 1] : 0);
        const bool bTwoBytes = code == 0xC2 && next >= 0x80 && next < 0xA0;
        if (bTwoBytes || (code < ' ' && text[i] != '\t') || code == 0x7F)
            result += fmt::format("\\x{:02X}", bTwoBytes ? next : code);
        else
            result += text[i];
        i += bTwoBytes ? 1 : 0;
    }
    return result;
}

std::string Counted(size_t nCount, const std::string& noun) {
    return fmt::format("{} {}{}", nCount, noun, nCount == 1 ? "" : "s");
}

} // namespace orrelix
