// The part of the component object model that this component needs, by its own names. On Windows they are the
// system's; elsewhere the shapes are those that hosts get in include/vignel_server.h, and the functions are ours.
#pragma once

#include "include/vignel_server.h"

#include <cstddef>
#include <cstdint>

#ifdef _WIN32
#define ORRELIX_STDCALL STDMETHODCALLTYPE
#else
#define ORRELIX_STDCALL

namespace orrelix {

using GUID = VignelGuid;
using REFGUID = VignelGuidRef;
using REFIID = VignelGuidRef;
using REFCLSID = VignelGuidRef;
using HRESULT = VignelResult;
using OLECHAR = VignelChar;
using BSTR = VignelString;
using VARIANT = VignelVariant;
using DISPPARAMS = VignelArguments;
using EXCEPINFO = VignelException;
using IUnknown = VignelUnknown;
using IClassFactory = VignelClassFactory;
using IDispatch = VignelDispatch;
using ITypeInfo = void;
using BOOL = std::int32_t;
using DISPID = std::int32_t;
using LCID = std::uint32_t;
using LONG = std::int32_t;
using SCODE = std::int32_t;
using UINT = std::uint32_t;
using ULONG = std::uint32_t;
using USHORT = std::uint16_t;
using VARIANT_BOOL = std::int16_t;
using VARTYPE = std::uint16_t;
using WORD = std::uint16_t;
using DATE = double;

inline constexpr HRESULT S_OK = VIGNEL_S_OK;
inline constexpr HRESULT S_FALSE = VIGNEL_S_FALSE;
inline constexpr HRESULT E_UNEXPECTED = VIGNEL_E_UNEXPECTED;
inline constexpr HRESULT E_NOTIMPL = VIGNEL_E_NOTIMPL;
inline constexpr HRESULT E_NOINTERFACE = VIGNEL_E_NOINTERFACE;
inline constexpr HRESULT E_POINTER = VIGNEL_E_POINTER;
inline constexpr HRESULT E_FAIL = VIGNEL_E_FAIL;
inline constexpr HRESULT E_OUTOFMEMORY = VIGNEL_E_OUTOFMEMORY;
inline constexpr HRESULT E_INVALIDARG = VIGNEL_E_INVALIDARG;
inline constexpr HRESULT DISP_E_UNKNOWNINTERFACE = VIGNEL_E_UNKNOWNINTERFACE;
inline constexpr HRESULT DISP_E_MEMBERNOTFOUND = VIGNEL_E_MEMBERNOTFOUND;
inline constexpr HRESULT DISP_E_PARAMNOTFOUND = VIGNEL_E_PARAMNOTFOUND;
inline constexpr HRESULT DISP_E_TYPEMISMATCH = VIGNEL_E_TYPEMISMATCH;
inline constexpr HRESULT DISP_E_UNKNOWNNAME = VIGNEL_E_UNKNOWNNAME;
inline constexpr HRESULT DISP_E_NONAMEDARGS = VIGNEL_E_NONAMEDARGS;
inline constexpr HRESULT DISP_E_EXCEPTION = VIGNEL_E_EXCEPTION;
inline constexpr HRESULT DISP_E_OVERFLOW = VIGNEL_E_OVERFLOW;
inline constexpr HRESULT DISP_E_BADINDEX = VIGNEL_E_BADINDEX;
inline constexpr HRESULT DISP_E_BADPARAMCOUNT = VIGNEL_E_BADPARAMCOUNT;
inline constexpr HRESULT DISP_E_PARAMNOTOPTIONAL = VIGNEL_E_PARAMNOTOPTIONAL;
inline constexpr HRESULT CLASS_E_NOAGGREGATION = VIGNEL_E_NOAGGREGATION;
inline constexpr HRESULT CLASS_E_CLASSNOTAVAILABLE = VIGNEL_E_CLASSNOTAVAILABLE;
inline constexpr HRESULT REGDB_E_CLASSNOTREG = VIGNEL_E_CLASSNOTREG;

inline constexpr VARTYPE VT_EMPTY = VIGNEL_EMPTY;
inline constexpr VARTYPE VT_NULL = VIGNEL_NULL;
inline constexpr VARTYPE VT_I2 = VIGNEL_I2;
inline constexpr VARTYPE VT_I4 = VIGNEL_I4;
inline constexpr VARTYPE VT_R8 = VIGNEL_R8;
inline constexpr VARTYPE VT_DATE = VIGNEL_DATE;
inline constexpr VARTYPE VT_BSTR = VIGNEL_BSTR;
inline constexpr VARTYPE VT_ERROR = VIGNEL_ERROR;
inline constexpr VARTYPE VT_BOOL = VIGNEL_BOOL;
inline constexpr VARTYPE VT_VARIANT = VIGNEL_VARIANT;
inline constexpr VARTYPE VT_BYREF = VIGNEL_BYREF;

inline constexpr VARIANT_BOOL VARIANT_TRUE = -1;
inline constexpr VARIANT_BOOL VARIANT_FALSE = 0;

inline constexpr WORD DISPATCH_METHOD = VIGNEL_METHOD;
inline constexpr WORD DISPATCH_PROPERTYGET = VIGNEL_GET;
inline constexpr WORD DISPATCH_PROPERTYPUT = VIGNEL_PUT;
inline constexpr WORD DISPATCH_PROPERTYPUTREF = VIGNEL_PUT_REFERENCE;
inline constexpr DISPID DISPID_UNKNOWN = VIGNEL_UNKNOWN_ID;
inline constexpr DISPID DISPID_PROPERTYPUT = VIGNEL_NAME_OF_PUT;

inline constexpr GUID IID_NULL = VignelIidNull;
inline constexpr GUID IID_IUnknown = VignelIidUnknown;
inline constexpr GUID IID_IClassFactory = VignelIidClassFactory;
inline constexpr GUID IID_IDispatch = VignelIidDispatch;

bool operator==(REFGUID left, REFGUID right);

inline bool FAILED(HRESULT result) {
    return result < 0;
}

inline BSTR SysAllocStringLen(const OLECHAR* pText, UINT nCount) {
    return VignelAllocString(pText, nCount);
}
inline UINT SysStringLen(BSTR text) {
    return static_cast<UINT>(VignelStringLength(text));
}
inline void SysFreeString(BSTR text) {
    VignelFreeString(text);
}

inline void VariantInit(VARIANT* pVariant) {
    *pVariant = {};
}
inline HRESULT VariantClear(VARIANT* pVariant) {
    VignelClearVariant(pVariant);
    return S_OK;
}

// `source` as another type, into an empty `result` that is the caller's to clear. DISP_E_TYPEMISMATCH where there
// is no such conversion or a text isn't such a value, DISP_E_OVERFLOW where it doesn't fit. Numbers in texts have no
// locale: a point, no groups; a text becomes a date only where it is a number. Rounds to the nearest, halves to
// even. References are followed.
HRESULT VariantChangeType(VARIANT* pResult, const VARIANT* pSource, USHORT flags, VARTYPE type);

// What hosts of other languages and compilers count on.
static_assert(sizeof(VARIANT) == 8 + 2 * sizeof(void*) && offsetof(VARIANT, bstrVal) == 8);
static_assert(sizeof(GUID) == 16 && sizeof(DISPPARAMS) == 2 * sizeof(void*) + 8);

} // namespace orrelix
#endif
