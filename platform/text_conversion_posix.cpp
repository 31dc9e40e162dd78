#include "platform/text_conversion.h"

#include <cerrno>
#include <iconv.h>
#include <new>

namespace orrelix {

namespace {

// Takes what can't be converted off the input: a byte, or a whole character of UTF-8.
void SkipCharacter(char*& pInput, size_t& nLeft, bool bUtf8) {
    do {
        ++pInput;
        --nLeft;
    } while (bUtf8 && nLeft > 0 && (static_cast<unsigned char>(*pInput) & 0xC0) == 0x80);
}

} // namespace

std::string ConvertPage(std::string_view text, const std::string& from, const std::string& to) {
    const iconv_t converter = iconv_open(to.c_str(), from.c_str());
    if (converter == reinterpret_cast<iconv_t>(-1)) {
        if (errno == ENOMEM)
            throw std::bad_alloc();
        return std::string(text.size(), '?');
    }
    struct CCloser {
        ~CCloser() { iconv_close(m_Converter); }
        iconv_t m_Converter;
    } closer{converter};
    std::string result;
    result.reserve(text.size() + text.size() / 2);
    char* pInput = const_cast<char*>(text.data());
    for (size_t nLeft = text.size(); nLeft > 0;) {
        char block[16 * 1024];
        char* pBlock = block;
        size_t nFree = sizeof block;
        const bool bStopped = iconv(converter, &pInput, &nLeft, &pBlock, &nFree) == static_cast<size_t>(-1);
        const int nError = errno;
        result.append(block, sizeof block - nFree);
        if (bStopped && nError != E2BIG) {
            result += '?';
            SkipCharacter(pInput, nLeft, from == "UTF-8");
        }
    }
    return result;
}

} // namespace orrelix
