#include "platform/text_conversion.h"

#include <cerrno>
#include <iconv.h>
#include <new>
#include <system_error>

namespace orrelix {

namespace {

constexpr char kUtf8[] = "UTF-8";

struct CConverter {
    CConverter(const std::string& from, const std::string& to)
        : m_Handle(iconv_open(to.c_str(), from.c_str())) {
        if (!IsOpen() && errno == ENOMEM)
            throw std::bad_alloc();
    }
    ~CConverter() {
        if (IsOpen())
            iconv_close(m_Handle);
    }
    CConverter(const CConverter&) = delete;
    CConverter& operator=(const CConverter&) = delete;

    bool IsOpen() const { return m_Handle != reinterpret_cast<iconv_t>(-1); }

    const iconv_t m_Handle;
};

// Takes what can't be converted off the input: a byte, or a whole character of UTF-8.
void SkipCharacter(char*& pInput, size_t& nLeft, bool bUtf8) {
    do {
        ++pInput;
        --nLeft;
    } while (bUtf8 && nLeft > 0 && (static_cast<unsigned char>(*pInput) & 0xC0) == 0x80);
}

} // namespace

bool CanConvertPage(const std::string& encoding) {
    return CConverter(encoding, kUtf8).IsOpen() && CConverter(kUtf8, encoding).IsOpen();
}

std::string ConvertPage(std::string_view text, const std::string& from, const std::string& to) {
    const CConverter converter(from, to);
    if (!converter.IsOpen())
        throw std::system_error(errno, std::generic_category(), "texts can't be converted");
    std::string result;
    result.reserve(text.size() + text.size() / 2);
    char* pInput = const_cast<char*>(text.data());
    for (size_t nLeft = text.size(); nLeft > 0;) {
        char block[16 * 1024];
        char* pBlock = block;
        size_t nFree = sizeof block;
        const bool bStopped =
            iconv(converter.m_Handle, &pInput, &nLeft, &pBlock, &nFree) == static_cast<size_t>(-1);
        const int nError = errno;
        result.append(block, sizeof block - nFree);
        if (bStopped && nError != E2BIG) {
            result += '?';
            SkipCharacter(pInput, nLeft, from == kUtf8);
        }
    }
    return result;
}

} // namespace orrelix
