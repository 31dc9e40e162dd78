// Text from one encoding to another, by iconv. Encodings go by the names that iconv has for them.
#pragma once

#include "platform/code_page.h"

#include <string>
#include <string_view>

namespace orrelix {

// Whether this system can convert text from and to an encoding.
bool IsConvertible(const std::string& encoding);

// The encoding that browsers take for a page's charset label, such as "CP936" for "gb2312". Empty for a label
// that they or this system don't know.
std::string EncodingOfLabel(std::string_view label);

struct CConvertedText {
    std::string m_Text;
    size_t m_nInvalid = 0; // bytes that are no text in the first encoding; each became U+FFFD
    size_t m_nUnfit = 0;   // characters that the second encoding hasn't; each became "&#N;"
};

CConvertedText ConvertText(std::string_view text, const std::string& from, const std::string& to);

// A text of the code page in force.
CConvertedText ToUtf8(std::string_view text);

} // namespace orrelix
