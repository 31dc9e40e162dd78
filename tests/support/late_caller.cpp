#include "tests/support/late_caller.h"

#include "platform/wide_text.h"

#include <cerrno>
#include <deque>
#include <sstream>
#include <vector>

namespace orrelix {

namespace {

const struct {
    HRESULT m_nCode;
    const char* m_pName;
} kCodes[] = {
    {E_INVALIDARG, "E_INVALIDARG"},
    {E_OUTOFMEMORY, "E_OUTOFMEMORY"},
    {E_UNEXPECTED, "E_UNEXPECTED"},
    {DISP_E_UNKNOWNNAME, "DISP_E_UNKNOWNNAME"},
    {DISP_E_MEMBERNOTFOUND, "DISP_E_MEMBERNOTFOUND"},
    {DISP_E_TYPEMISMATCH, "DISP_E_TYPEMISMATCH"},
    {DISP_E_OVERFLOW, "DISP_E_OVERFLOW"},
    {DISP_E_BADPARAMCOUNT, "DISP_E_BADPARAMCOUNT"},
    {DISP_E_PARAMNOTOPTIONAL, "DISP_E_PARAMNOTOPTIONAL"},
    {DISP_E_NONAMEDARGS, "DISP_E_NONAMEDARGS"},
    {DISP_E_EXCEPTION, "DISP_E_EXCEPTION"},
};

// The variants of one call, and what references refer to.
class CVariants {
public:
    ~CVariants() {
        for (BSTR text : m_Texts)
            SysFreeString(text);
    }

    VARIANT Parse(const std::string& text) {
        if (text.starts_with("&&"))
            return Reference(VT_VARIANT, &m_Referred.emplace_back(Parse(text.substr(2))));
        if (text.starts_with("&")) {
            VARIANT& value = m_Referred.emplace_back(Parse(text.substr(1)));
            return Reference(value.vt, &value.iVal);
        }
        VARIANT value{};
        if (text.starts_with('"')) {
            value.vt = VT_BSTR;
            value.bstrVal = m_Texts.emplace_back(ParseText(text.substr(1, text.size() - 2)));
        } else if (text == "true" || text == "false") {
            value.vt = VT_BOOL;
            value.boolVal = text == "true" ? VARIANT_TRUE : VARIANT_FALSE;
        } else if (text == "null" || text == "missing") {
            value.vt = text == "null" ? VT_NULL : VT_ERROR;
            value.scode = DISP_E_PARAMNOTFOUND;
        } else if (text.ends_with('s')) {
            value.vt = VT_I2;
            value.iVal = static_cast<short>(std::stoi(text));
        } else if (text.find('.') != text.npos) {
            value.vt = text.ends_with('d') ? VT_DATE : VT_R8;
            value.dblVal = std::stod(text);
        } else if (text != "empty") {
            value.vt = VT_I4;
            value.lVal = std::stoi(text);
        }
        return value;
    }

private:
    static VARIANT Reference(VARTYPE type, void* pValue) {
        VARIANT reference{};
        reference.vt = static_cast<VARTYPE>(VT_BYREF | type);
        reference.pvarVal = static_cast<VARIANT*>(pValue);
        return reference;
    }

    static BSTR ParseText(const std::string& text) {
        std::u16string units;
        for (size_t nAt = 0; nAt < text.size(); ++nAt) {
            const bool bEscape = text.compare(nAt, 2, "\\u") == 0;
            units +=
                static_cast<char16_t>(bEscape ? std::stoi(text.substr(nAt + 2, 4), nullptr, 16) : text[nAt]);
            nAt += bEscape ? 5 : 0;
        }
        return SysAllocStringLen(units.data(), static_cast<UINT>(units.size()));
    }

    std::deque<VARIANT> m_Referred;
    std::vector<BSTR> m_Texts;
};

std::string Shown(BSTR text) {
    std::ostringstream shown;
    for (UINT nAt = 0; nAt < SysStringLen(text); ++nAt) {
        char escape[8];
        snprintf(escape, sizeof escape, "\\u%04X", static_cast<unsigned>(text[nAt]));
        text[nAt]<' ' || text[nAt]> '~' ? shown << escape : shown << static_cast<char>(text[nAt]);
    }
    return '"' + shown.str() + '"';
}

std::string Shown(const VARIANT& value) {
    std::ostringstream shown;
    switch (value.vt) {
    case VT_EMPTY:
        return "nothing";
    case VT_BSTR:
        return Shown(value.bstrVal);
    case VT_BOOL:
        return value.boolVal == VARIANT_TRUE ? "true" : "false";
    case VT_I2:
        shown << value.iVal << "s";
        break;
    case VT_I4:
        shown << value.lVal;
        break;
    case VT_DATE:
        shown << value.date << "d";
        break;
    default:
        shown << "variant " << value.vt;
    }
    return shown.str();
}

std::string NameOf(HRESULT code) {
    for (const auto& row : kCodes) {
        if (row.m_nCode == code)
            return row.m_pName;
    }
    return "code " + std::to_string(code);
}

// Takes it off the front of a text, if it is there.
bool Take(std::string& text, std::string_view front) {
    const bool bThere = text.starts_with(front);
    text.erase(0, bThere ? front.size() : 0);
    return bThere;
}

// Arguments stand between commas, which texts may hold.
std::vector<std::string> SplitArguments(const std::string& list) {
    std::vector<std::string> arguments;
    bool bInText = false, bInside = false;
    for (char character : list) {
        bInText ^= character == '"';
        const bool bPart = bInText || (character != ',' && character != ' ');
        if (bPart && !bInside)
            arguments.emplace_back();
        if (bPart)
            arguments.back() += character;
        bInside = bPart;
    }
    return arguments;
}

} // namespace

std::string CLateCaller::Answer(const std::string& question) const {
    std::string rest = question;
    void* pInterface = nullptr;
    m_Object.QueryInterface(Take(rest, "inspector ") ? REFIID(VignelIidInspector) : REFIID(VignelIidOrrelix),
                            &pInterface);
    auto* pObject = static_cast<IDispatch*>(pInterface);
    WORD flags = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
    if (Take(rest, "get "))
        flags = DISPATCH_PROPERTYGET;
    else if (Take(rest, "method "))
        flags = DISPATCH_METHOD;
    bool bPut = Take(rest, "put ");
    const std::string name = rest.substr(0, rest.find_first_of(" ("));
    rest.erase(0, name.size());
    if (Take(rest, " = "))
        bPut = true;
    else if (Take(rest, "("))
        rest.pop_back();
    if (bPut)
        flags = DISPATCH_PROPERTYPUT;

    CVariants variants;
    std::deque<VARIANT> given;
    for (const std::string& argument : SplitArguments(rest))
        given.push_front(variants.Parse(argument));
    std::vector<VARIANT> reversed(given.begin(), given.end());
    DISPID nNamePut = DISPID_PROPERTYPUT, nMember = 0;
    DISPPARAMS arguments{reversed.data(), bPut ? &nNamePut : nullptr, static_cast<UINT>(reversed.size()),
                         bPut};
    HRESULT code = S_OK;
    if (name.starts_with('#')) {
        nMember = std::stoi(name.substr(1));
    } else {
        BSTR wide = AllocText(name);
        code = pObject->GetIDsOfNames(IID_NULL, &wide, 1, 0, &nMember);
        SysFreeString(wide);
    }
    VARIANT result{};
    EXCEPINFO exception{};
    UINT nWrong = 99;
    errno = 0;
    if (!FAILED(code))
        code = pObject->Invoke(nMember, IID_NULL, 0, flags, &arguments, &result, &exception, &nWrong);
    const int nErrno = errno;
    pObject->Release();
    std::string answer = FAILED(code) ? NameOf(code) : Shown(result);
    if (nErrno != 0)
        answer += ", errno " + std::to_string(nErrno);
    if (nWrong != 99)
        answer += ", argument " + std::to_string(nWrong);
    if (exception.bstrDescription)
        answer += ": " + Shown(exception.bstrDescription);
    SysFreeString(exception.bstrDescription);
    VariantClear(&result);
    return answer + "\n";
}

} // namespace orrelix
