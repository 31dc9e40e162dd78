// Any calls of the object's two interfaces with any arguments: each has a code that hosts are told of, and the object
// is good for use afterwards.
//
// Input: calls. A call is a piece such as "mo2GetHTMLBody": "m"ethod, "g"et, "p"ut or "?"; "o"bject or "i"nspector; how
// many arguments; the name, or the number. Each argument is a piece behind it: its type by one letter and its value.
#include "core/server.h"
#include "fuzz/fuzzing.h"
#include "platform/wide_text.h"

#include <algorithm>
#include <cstring>
#include <deque>
#include <memory>
#include <vector>

namespace orrelix {

namespace {

struct CReleased {
    void operator()(IUnknown* pObject) const { pObject->Release(); }
};
using CObjectPtr = std::unique_ptr<IDispatch, CReleased>;

// Strings and references live as long as this.
class CGivenArguments {
public:
    ~CGivenArguments() {
        for (VARIANT& value : m_Values)
            VariantClear(&value);
    }

    void Add(std::string piece, bool bFileToWrite) {
        piece += '\0';
        const char* pText = piece.c_str() + 1;
        const int nNumber = std::atoi(pText);
        VARIANT& value = m_Values.emplace_back();
        switch (VariantInit(&value); piece[0]) {
        case 'i':
            value.vt = VT_I4, value.lVal = nNumber;
            break;
        case 'h':
            value.vt = VT_I2, value.iVal = static_cast<short>(nNumber);
            break;
        case 'd':
            value.vt = VT_R8, value.dblVal = std::atof(pText);
            break;
        case 't':
            value.vt = VT_DATE, value.date = std::atof(pText);
            break;
        case 'b':
            value.vt = VT_BOOL, value.boolVal = static_cast<VARIANT_BOOL>(nNumber);
            break;
        case 'e':
            value.vt = VT_ERROR, value.scode = nNumber;
            break;
        case 'n':
            value.vt = VT_NULL;
            break;
        case '0':
            break;
        case 'x':
            value.vt = static_cast<VARTYPE>(nNumber), value.vt &= 0x3FFF, value.vt += value.vt == VT_BSTR;
            break;
        default:
            value.vt = VT_BSTR,
            value.bstrVal = piece[0] == 'z' ? nullptr : AllocText(Written(pText, bFileToWrite));
        }
        Pass(value, piece[0]);
    }

    DISPPARAMS Given(bool bPut) {
        return {m_Given.data(), bPut ? &m_nNameOfPut : nullptr, static_cast<UINT>(m_Given.size()), bPut};
    }

private:
    // Nothing is written but in the folder.
    static std::string Written(const char* pText, bool bFileToWrite) {
        return bFileToWrite ? (FuzzFolder() / ("_" + Without(pText, "/\\", '_').substr(0, 100))).native()
                            : pText;
    }

    // The last argument comes first; some as references.
    void Pass(VARIANT& value, char kind) {
        VARIANT given = value;
        if (kind == 'r') {
            given.vt = VT_BSTR | VT_BYREF;
            given.pbstrVal = &value.bstrVal;
        } else if (kind == 'v') {
            given.vt = VT_VARIANT | VT_BYREF;
            given.pvarVal = &value;
        }
        m_Given.insert(m_Given.begin(), given);
    }

    std::deque<VARIANT> m_Values;
    std::vector<VARIANT> m_Given;
    DISPID m_nNameOfPut = DISPID_PROPERTYPUT;
};

CObjectPtr Create() {
    void *pFactory = nullptr, *pObject = nullptr;
    GetClassObject(VignelClsidOrrelix, VignelIidClassFactory, &pFactory);
    static_cast<IClassFactory*>(pFactory)->CreateInstance(nullptr, VignelIidDispatch, &pObject);
    static_cast<IClassFactory*>(pFactory)->Release();
    return CObjectPtr(static_cast<IDispatch*>(pObject));
}

CObjectPtr InspectorOf(const CObjectPtr& object) {
    void* pInspector = nullptr;
    object->QueryInterface(VignelIidInspector, &pInspector);
    return CObjectPtr(static_cast<IDispatch*>(pInspector));
}

DISPID NumberOf(const CObjectPtr& object, const std::string& name) {
    BSTR wide = AllocText(name);
    DISPID nMember = DISPID_UNKNOWN;
    const HRESULT code = object->GetIDsOfNames(VignelIidNull, &wide, 1, 0, &nMember);
    SysFreeString(wide);
    Require(code == S_OK ? nMember > 0 : code == DISP_E_UNKNOWNNAME && nMember == DISPID_UNKNOWN,
            "a name has a number or none");
    return code == S_OK ? nMember : std::atoi(name.c_str());
}

constexpr HRESULT kCodes[] = {S_OK,
                              DISP_E_MEMBERNOTFOUND,
                              DISP_E_BADPARAMCOUNT,
                              DISP_E_TYPEMISMATCH,
                              DISP_E_OVERFLOW,
                              DISP_E_PARAMNOTOPTIONAL,
                              DISP_E_NONAMEDARGS,
                              E_INVALIDARG,
                              DISP_E_EXCEPTION};

// The result's text, if it has one.
std::string Call(const CObjectPtr& object, DISPID nMember, WORD flags, CGivenArguments& arguments) {
    DISPPARAMS given = arguments.Given(flags == DISPATCH_PROPERTYPUT);
    VARIANT result;
    VariantInit(&result);
    EXCEPINFO exception{};
    UINT nWrong = 0xFFFF;
    const HRESULT code =
        object->Invoke(nMember, VignelIidNull, 0, flags, &given, &result, &exception, &nWrong);
    Require(std::find(std::begin(kCodes), std::end(kCodes), code) != std::end(kCodes),
            "a code that hosts are told of");
    Require(code == S_OK || result.vt == VT_EMPTY, "a call that fails has no result");
    Require((code == DISP_E_EXCEPTION) == (SysStringLen(exception.bstrDescription) > 0),
            "a refusal says why");
    Require((code != DISP_E_TYPEMISMATCH && code != DISP_E_OVERFLOW) || nWrong < given.cArgs,
            "a wrong argument is told");
    const std::string text(result.vt == VT_BSTR ? TextOf(result.bstrVal).View() : std::string_view());
    SysFreeString(exception.bstrDescription);
    VariantClear(&result);
    return text;
}

std::string Call(const CObjectPtr& object, const char* pName, WORD flags,
                 std::initializer_list<const char*> values) {
    CGivenArguments arguments;
    for (const char* pValue : values)
        arguments.Add(pValue, false);
    return Call(object, NumberOf(object, pName), flags, arguments);
}

// What holds for the process, as it would be for the first input too.
constexpr const char* kOfProcess[][2] = {{"CodePage", "i65001"},
                                         {"RawTexts", "i0"},
                                         {"MostHTML", "i0"},
                                         {"ScriptFolder", "s"},
                                         {"OwnerWindow", "s"}};

void RequireUsable(const CObjectPtr& object) {
    const CObjectPtr inspector = InspectorOf(object);
    for (const auto& [pName, pValue] : kOfProcess)
        Call(inspector, pName, DISPATCH_PROPERTYPUT, {pValue});
    Call(inspector, "Effect", DISPATCH_PROPERTYPUT, {"sColor Link"});
    Call(object, "Title", DISPATCH_PROPERTYPUT, {"sprobe"});
    Require(Call(object, "Title", DISPATCH_PROPERTYGET, {}) == "probe", "the object keeps a title");
    Require(Call(object, "GetHTMLBody", DISPATCH_METHOD, {"i0", "i1"}).ends_with("\r\n"),
            "the object gives HTML");
}

void FuzzCalls(CPieces pieces) {
    const CObjectPtr object = Create(), inspector = InspectorOf(object);
    while (pieces.AreLeft()) {
        const std::string head = pieces.Next() + "   ";
        const CObjectPtr& called = head[1] == 'i' ? inspector : object;
        const DISPID nMember = NumberOf(called, std::string(Trim(std::string_view(head).substr(3))));
        const WORD flags = head[0] == 'm'   ? DISPATCH_METHOD
                           : head[0] == 'g' ? DISPATCH_PROPERTYGET
                           : head[0] == 'p' ? DISPATCH_PROPERTYPUT
                                            : static_cast<WORD>(head[0]);
        CGivenArguments arguments;
        const bool bWrites = &called == &object && (nMember == NumberOf(object, "WriteConfigFile") ||
                                                    nMember == NumberOf(object, "WriteConfigFileEx"));
        for (int nArgument = (head[2] - '0') & 7; nArgument > 0; --nArgument)
            arguments.Add(pieces.Next(), bWrites);
        Call(called, nMember, flags, arguments);
    }
    RequireUsable(object);
}

} // namespace

} // namespace orrelix

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    for (const char* pScreen : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        unsetenv(pScreen);
    std::filesystem::current_path(orrelix::FuzzFolder()); // what a relative path is counted from
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, size_t nSize) {
    orrelix::FuzzCalls({pData, nSize});
    orrelix::Require(orrelix::CanUnload(), "nothing is left of an object");
    return 0;
}
