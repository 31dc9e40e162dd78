#include "platform/wide_text.h"

#include "platform/code_page.h"
#include "platform/text_conversion.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <new>

namespace orrelix {

namespace {

BSTR AllocUtf8(std::string_view text) {
    BSTR result = VignelFromUtf8(text.data(), text.size());
    if (!result)
        throw std::bad_alloc();
    return result;
}

std::string Utf8Of(BSTR text) {
    size_t nBytes = 0;
    const std::unique_ptr<char, void (*)(void*)> pBytes(VignelToUtf8(text, &nBytes), std::free);
    if (!pBytes)
        throw std::bad_alloc();
    return {pBytes.get(), nBytes};
}

bool g_bRawTexts = false;

bool IsConverted() {
    return GetCodePage() != kUtf8CodePage && !g_bRawTexts;
}

bool IsLow(char16_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

// Whether the string stands for bytes of a path without loss.
bool CanBePath(BSTR text) {
    const size_t nUnits = SysStringLen(text);
    for (size_t nAt = 0; nAt < nUnits; ++nAt) {
        if (text[nAt] >= 0xD800 && text[nAt] < 0xDC00) {
            if (nAt + 1 == nUnits || !IsLow(text[++nAt]))
                return false;
        } else if (text[nAt] == 0 || (IsLow(text[nAt]) && (text[nAt] < 0xDC80 || text[nAt] > 0xDCFF))) {
            return false;
        }
    }
    return true;
}

} // namespace

bool HasRawTexts() {
    return g_bRawTexts;
}

void SetRawTexts(bool bRaw) {
    g_bRawTexts = bRaw;
}

BSTR AllocText(std::string_view text) {
    return IsConverted() ? AllocUtf8(ConvertPage(text, GetEncoding(), "UTF-8")) : AllocUtf8(text);
}

CString TextOf(BSTR text) {
    return IsConverted() ? ConvertPage(Utf8Of(text), "UTF-8", GetEncoding()) : Utf8Of(text);
}

CPath FullPath(std::string_view path) {
    std::string system(path);
    std::replace(system.begin(), system.end(), '\\', '/');
    if (!system.empty() && system.front() != '/')
        system = (std::filesystem::current_path() / system).string();
    return FromSystemPath(system);
}

bool PathOf(BSTR text, CPath& path) {
    if (!CanBePath(text))
        return false;
    path = FullPath(Utf8Of(text));
    return true;
}

BSTR AllocPath(const CString& path) {
    return AllocUtf8(SystemSpelling(path));
}

} // namespace orrelix
