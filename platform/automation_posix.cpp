#include "platform/automation.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <optional>
#include <string>

namespace orrelix {

namespace {

std::u16string_view ViewOf(BSTR text) {
    return text ? std::u16string_view(text, SysStringLen(text)) : std::u16string_view();
}

// The ASCII characters of a short text without outer blanks; nothing where it has others.
std::optional<std::string> ToAscii(std::u16string_view text) {
    const size_t nFirst = text.find_first_not_of(u" \t\r\n");
    if (nFirst == text.npos || text.size() > 400)
        return std::nullopt;
    text = text.substr(nFirst, text.find_last_not_of(u" \t\r\n") + 1 - nFirst);
    std::string ascii;
    for (char16_t unit : text) {
        if (unit >= 0x80)
            return std::nullopt;
        ascii += static_cast<char>(unit);
    }
    return ascii;
}

HRESULT ParseNumber(std::string_view text, double& number) {
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    const auto [pEnd, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc::result_out_of_range)
        return DISP_E_OVERFLOW;
    const bool bWhole = error == std::errc() && pEnd == text.data() + text.size();
    return bWhole && std::isfinite(number) ? S_OK : DISP_E_TYPEMISMATCH;
}

bool EqualsWord(std::string_view text, std::string_view word) {
    return text.size() == word.size() && strncasecmp(text.data(), word.data(), word.size()) == 0;
}

// What is no text goes through a number on its way to any other type; every type in use fits a double.
HRESULT ToNumber(const VARIANT& source, double& number) {
    switch (source.vt) {
    case VT_EMPTY:
        number = 0;
        return S_OK;
    case VT_I2:
        number = source.iVal;
        return S_OK;
    case VT_I4:
        number = source.lVal;
        return S_OK;
    case VT_BOOL:
        number = source.boolVal;
        return S_OK;
    case VT_R8:
        number = source.dblVal;
        return S_OK;
    case VT_DATE:
        number = source.date;
        return S_OK;
    case VT_BSTR: {
        const auto text = ToAscii(ViewOf(source.bstrVal));
        return text ? ParseNumber(*text, number) : DISP_E_TYPEMISMATCH;
    }
    default:
        return DISP_E_TYPEMISMATCH;
    }
}

HRESULT ToBool(const VARIANT& source, VARIANT_BOOL& value) {
    if (source.vt == VT_BSTR) {
        const auto text = ToAscii(ViewOf(source.bstrVal));
        const bool bTrue = text && (EqualsWord(*text, "true") || EqualsWord(*text, "#true#"));
        if (bTrue || (text && (EqualsWord(*text, "false") || EqualsWord(*text, "#false#")))) {
            value = bTrue ? VARIANT_TRUE : VARIANT_FALSE;
            return S_OK;
        }
    }
    double number = 0;
    const HRESULT result = ToNumber(source, number);
    value = number != 0 ? VARIANT_TRUE : VARIANT_FALSE;
    return result;
}

template <class TInteger>
HRESULT ToWhole(const VARIANT& source, TInteger& value) {
    double number = 0;
    if (const HRESULT result = ToNumber(source, number); FAILED(result))
        return result;
    number = std::nearbyint(number); // halves to even, as the process's rounding is unless a host changes it
    if (!(number >= std::numeric_limits<TInteger>::min() && number <= std::numeric_limits<TInteger>::max()))
        return DISP_E_OVERFLOW;
    value = static_cast<TInteger>(number);
    return S_OK;
}

HRESULT ToBstr(const VARIANT& source, BSTR& text) {
    char digits[40];
    char* pEnd = digits;
    if (source.vt == VT_BSTR) {
        const std::u16string_view view = ViewOf(source.bstrVal);
        text = SysAllocStringLen(view.data(), static_cast<UINT>(view.size()));
        return text ? S_OK : E_OUTOFMEMORY;
    }
    if (source.vt != VT_EMPTY) {
        double number = 0;
        if (const HRESULT result = ToNumber(source, number); FAILED(result))
            return result;
        constexpr int kDigits = 15; // what a double is sure of
        pEnd = std::to_chars(digits, digits + sizeof digits, number, std::chars_format::general, kDigits).ptr;
    }
    const std::u16string wide(digits, pEnd);
    text = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    return text ? S_OK : E_OUTOFMEMORY;
}

// Of a value in a variant; 0 for a type that isn't in use.
size_t SizeOf(VARTYPE type) {
    switch (type) {
    case VT_I2:
    case VT_BOOL:
        return sizeof(VARIANT::iVal);
    case VT_I4:
    case VT_ERROR:
        return sizeof(VARIANT::lVal);
    case VT_R8:
    case VT_DATE:
        return sizeof(VARIANT::dblVal);
    case VT_BSTR:
        return sizeof(VARIANT::bstrVal);
    default:
        return 0;
    }
}

// What a reference refers to, as a value that is somebody else's.
HRESULT Follow(const VARIANT& source, VARIANT& value) {
    value = source;
    if (!(source.vt & VT_BYREF))
        return S_OK;
    if (!source.pvarVal)
        return E_INVALIDARG;
    value = {};
    value.vt = static_cast<VARTYPE>(source.vt & ~VT_BYREF);
    if (value.vt == VT_VARIANT) {
        if (source.pvarVal->vt == (VT_BYREF | VT_VARIANT))
            return DISP_E_TYPEMISMATCH; // or it could go in a circle
        return Follow(*source.pvarVal, value);
    }
    const size_t nSize = SizeOf(value.vt);
    memcpy(&value.widest, source.pvarVal, nSize);
    return nSize > 0 ? S_OK : DISP_E_TYPEMISMATCH;
}

HRESULT Convert(const VARIANT& source, VARTYPE type, VARIANT& value) {
    if (source.vt == VT_NULL || source.vt == VT_ERROR || type == VT_NULL || type == VT_ERROR) {
        value = source;
        return source.vt == type ? S_OK : DISP_E_TYPEMISMATCH;
    }
    switch (type) {
    case VT_EMPTY:
        return source.vt == VT_EMPTY ? S_OK : DISP_E_TYPEMISMATCH;
    case VT_I2:
        return ToWhole(source, value.iVal);
    case VT_I4:
        return ToWhole(source, value.lVal);
    case VT_R8:
        return ToNumber(source, value.dblVal);
    case VT_DATE:
        return ToNumber(source, value.date);
    case VT_BOOL:
        return ToBool(source, value.boolVal);
    case VT_BSTR:
        return ToBstr(source, value.bstrVal);
    default:
        return DISP_E_TYPEMISMATCH;
    }
}

} // namespace

bool operator==(REFGUID left, REFGUID right) {
    return memcmp(&left, &right, sizeof(GUID)) == 0;
}

HRESULT VariantChangeType(VARIANT* pResult, const VARIANT* pSource, USHORT, VARTYPE type) {
    VARIANT source{};
    HRESULT result = Follow(*pSource, source);
    if (FAILED(result))
        return result;
    VARIANT value{};
    result = Convert(source, type, value);
    if (!FAILED(result)) {
        value.vt = type;
        *pResult = value;
    }
    return result;
}

} // namespace orrelix
