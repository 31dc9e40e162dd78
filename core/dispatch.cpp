#include "core/dispatch.h"

#include "platform/string.h"
#include "platform/wide_text.h"

namespace orrelix {

namespace {

// A variant of our own.
class CVariant : public VARIANT {
public:
    CVariant() { VariantInit(this); }
    ~CVariant() { VariantClear(this); }
    CVariant(const CVariant&) = delete;
    CVariant& operator=(const CVariant&) = delete;
};

// Calls take(variant) with the argument as the type.
template <class TTake>
HRESULT TakeAs(const VARIANT& argument, VARTYPE type, TTake take) {
    if (argument.vt == type)
        return take(argument);
    CVariant converted;
    const HRESULT result = VariantChangeType(&converted, &argument, 0, type);
    return FAILED(result) ? result : take(converted);
}

template <class TNumber>
HRESULT TakeNumber(const VARIANT& argument, VARTYPE type, TNumber VARIANT::*pMember, TNumber& number) {
    return TakeAs(argument, type, [&](const VARIANT& given) {
        number = given.*pMember;
        return S_OK;
    });
}

// A name of a member, of which letters count in either case.
bool IsName(const OLECHAR* pGiven, const char* pName) {
    for (; *pName && *pGiven; ++pName, ++pGiven) {
        const char given = *pGiven < 0x80 ? static_cast<char>(*pGiven) : '\0';
        const bool bSameLetter =
            (given | 0x20) == (*pName | 0x20); // or two characters that aren't both letters
        if (given != *pName && (!bSameLetter || !EqualsNoCase({&given, 1}, {pName, 1})))
            return false;
    }
    return !*pName && !*pGiven;
}

// Nothing that is thrown reaches the host, but for a refusal's sentence.
template <class TAct>
HRESULT Guarded(EXCEPINFO* pException, TAct act) noexcept {
    return CodeOf([&] {
        try {
            return act();
        } catch (const CRefusal& refusal) {
            if (pException) {
                *pException = {};
                pException->scode = E_INVALIDARG;
                pException->bstrDescription = AllocText(refusal.what());
            }
            return DISP_E_EXCEPTION;
        }
    });
}

void StoreText(VARIANT& result, BSTR text) {
    result.vt = VT_BSTR;
    result.bstrVal = text;
}

} // namespace

void StoreResult(VARIANT& result, const CString& text) {
    StoreText(result, AllocText(text));
}

void StoreResult(VARIANT& result, const CPath& path) {
    StoreText(result, AllocPath(path));
}

void StoreResult(VARIANT& result, const CItems& items) {
    std::string joined;
    for (CStringArray::Index nItem = 0; nItem < items.m_Items.GetSize(); ++nItem)
        (joined += items.m_Items[nItem].View()) += '\0';
    StoreText(result, AllocText(joined));
}

void StoreResult(VARIANT& result, short number) {
    result.vt = VT_I2;
    result.iVal = number;
}

void StoreResult(VARIANT& result, int number) {
    result.vt = VT_I4;
    result.lVal = number;
}

void StoreResult(VARIANT& result, bool value) {
    result.vt = VT_BOOL;
    result.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
}

void StoreResult(VARIANT& result, double date) {
    result.vt = VT_DATE;
    result.date = date;
}

HRESULT TakeArgument(const VARIANT& argument, CString& text) {
    return TakeAs(argument, VT_BSTR, [&](const VARIANT& given) {
        text = TextOf(given.bstrVal);
        return S_OK;
    });
}

HRESULT TakeArgument(const VARIANT& argument, CPath& path) {
    return TakeAs(argument, VT_BSTR,
                  [&](const VARIANT& given) { return PathOf(given.bstrVal, path) ? S_OK : E_INVALIDARG; });
}

HRESULT TakeArgument(const VARIANT& argument, CItems& items) {
    CString joined;
    const HRESULT result = TakeArgument(argument, joined);
    std::string_view left = joined;
    while (!left.empty()) {
        const std::string_view item = left.substr(0, left.find('\0'));
        items.m_Items.Add(item);
        left.remove_prefix(std::min(item.size() + 1, left.size()));
    }
    return result;
}

HRESULT TakeArgument(const VARIANT& argument, short& number) {
    return TakeNumber(argument, VT_I2, &VARIANT::iVal, number);
}

HRESULT TakeArgument(const VARIANT& argument, int& number) {
    return TakeNumber(argument, VT_I4, &VARIANT::lVal, number);
}

HRESULT TakeArgument(const VARIANT& argument, double& date) {
    return TakeNumber(argument, VT_DATE, &VARIANT::date, date);
}

HRESULT CDispatch::QueryInterface(REFIID iid, void** ppObject) {
    return m_Object.QueryInterface(iid, ppObject);
}

ULONG CDispatch::AddRef() {
    return m_Object.AddRef();
}

ULONG CDispatch::Release() {
    return m_Object.Release();
}

HRESULT CDispatch::GetTypeInfoCount(UINT* pnCount) {
    if (!pnCount)
        return E_POINTER;
    *pnCount = 0;
    return S_OK;
}

HRESULT CDispatch::GetTypeInfo(UINT, LCID, ITypeInfo** ppInfo) {
    if (!ppInfo)
        return E_POINTER;
    *ppInfo = nullptr;
    return DISP_E_BADINDEX;
}

// Behind a member's name stand names of its arguments, of which no member has any.
HRESULT CDispatch::GetIDsOfNames(REFIID iid, OLECHAR** ppNames, UINT nNames, LCID, DISPID* pIds) {
    if (!(iid == IID_NULL))
        return DISP_E_UNKNOWNINTERFACE;
    if (!ppNames || !pIds || nNames == 0)
        return E_INVALIDARG;
    for (UINT nName = 0; nName < nNames; ++nName)
        pIds[nName] = DISPID_UNKNOWN;
    for (size_t nMember = 0; ppNames[0] && nMember < m_Members.size(); ++nMember) {
        if (IsName(ppNames[0], m_Members[nMember].m_pName))
            pIds[0] = static_cast<DISPID>(nMember + 1);
    }
    return pIds[0] == DISPID_UNKNOWN || nNames > 1 ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT CDispatch::Invoke(DISPID nMember, REFIID iid, LCID, WORD flags, DISPPARAMS* pArguments,
                          VARIANT* pResult, EXCEPINFO* pException, UINT* pnWrongArgument) {
    if (!(iid == IID_NULL))
        return DISP_E_UNKNOWNINTERFACE;
    if (!pArguments || (pArguments->cArgs > 0 && !pArguments->rgvarg) ||
        (pArguments->cNamedArgs > 0 && !pArguments->rgdispidNamedArgs))
        return E_INVALIDARG;
    if (pResult)
        VariantInit(pResult);
    return Guarded(pException, [&] {
        CVariant unwanted;
        // The last reference may go while a dialog of the call is open.
        struct CKeep {
            explicit CKeep(IUnknown& object) : m_Object(object) { m_Object.AddRef(); }
            ~CKeep() { m_Object.Release(); }
            IUnknown& m_Object;
        } keep(m_Object);
        return Call(nMember, flags, *pArguments, pResult ? *pResult : unwanted, pnWrongArgument);
    });
}

HRESULT CDispatch::Call(DISPID nMember, WORD flags, const DISPPARAMS& given, VARIANT& result, UINT* pnWrong) {
    if (nMember < 1 || static_cast<size_t>(nMember) > m_Members.size())
        return DISP_E_MEMBERNOTFOUND;
    const CMember& member = m_Members[static_cast<size_t>(nMember) - 1];
    const CArguments arguments(given, pnWrong);
    if (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) {
        if (!member.m_pPut || !(flags & DISPATCH_PROPERTYPUT))
            return DISP_E_MEMBERNOTFOUND;
        if (given.cNamedArgs == 0)
            return DISP_E_PARAMNOTOPTIONAL;
        if (given.cNamedArgs != 1 || given.rgdispidNamedArgs[0] != DISPID_PROPERTYPUT)
            return DISP_E_NONAMEDARGS;
        return given.cArgs == 1 ? member.m_pPut(m_pTarget, arguments, result) : DISP_E_BADPARAMCOUNT;
    }
    if (!(flags & (member.m_pPut ? DISPATCH_METHOD | DISPATCH_PROPERTYGET : DISPATCH_METHOD)))
        return DISP_E_MEMBERNOTFOUND;
    if (given.cNamedArgs > 0)
        return DISP_E_NONAMEDARGS;
    return given.cArgs == member.m_nArguments ? member.m_pCall(m_pTarget, arguments, result)
                                              : DISP_E_BADPARAMCOUNT;
}

} // namespace orrelix
