// Late-bound calls: a table says which members a class has by which names, and the types of their arguments and
// results follow from the C++ functions.
//
//     constexpr CMember kMembers[] = {
//         Property<&COrrelix::GetTitle, &COrrelix::SetTitle>("Title"),
//         Method<&COrrelix::GetHTMLBody>("GetHTMLBody"),
//     };
//
// A member's number is its place in the table, from 1. Types cross as CString: VT_BSTR, CPath: VT_BSTR with a
// path of the host's, short: VT_I2, int: VT_I4, bool: VT_BOOL, double: VT_DATE, CItems: VT_BSTR.
#pragma once

#include "platform/array.h"
#include "platform/automation.h"
#include "platform/paths.h"
#include "platform/refusal.h"

#include <cerrno>
#include <new>
#include <span>
#include <system_error>
#include <tuple>

namespace orrelix {

// A list as one text: each item with a zero behind it.
struct CItems {
    CStringArray m_Items;
};

// What act() gives, or the code for what it throws. The caller's errno stays: a call that has succeeded may have met
// errors of the system, such as of a file that isn't there yet.
template <class TAct>
HRESULT CodeOf(TAct act) noexcept {
    struct CKeep {
        ~CKeep() { errno = m_nError; }
        const int m_nError = errno;
    } keep;
    try {
        return act();
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (const std::system_error& error) {
        return error.code() == std::errc::not_enough_memory ? E_OUTOFMEMORY : E_UNEXPECTED;
    } catch (...) {
        return E_UNEXPECTED;
    }
}

// A result of a member, to a variant that is empty.
void StoreResult(VARIANT& result, const CString& text);
void StoreResult(VARIANT& result, const CPath& path);
void StoreResult(VARIANT& result, const CItems& items);
void StoreResult(VARIANT& result, short number);
void StoreResult(VARIANT& result, int number);
void StoreResult(VARIANT& result, bool value);
void StoreResult(VARIANT& result, double date);

// An argument, converted where its type is another one; else the code that says why not.
HRESULT TakeArgument(const VARIANT& argument, CString& text);
HRESULT TakeArgument(const VARIANT& argument, CPath& path);
HRESULT TakeArgument(const VARIANT& argument, CItems& items);
HRESULT TakeArgument(const VARIANT& argument, short& number);
HRESULT TakeArgument(const VARIANT& argument, int& number);
HRESULT TakeArgument(const VARIANT& argument, double& date);

// The arguments of one call, by their place in the C++ function.
class CArguments {
public:
    CArguments(const DISPPARAMS& given, UINT* pnWrong) : m_Given(given), m_pnWrong(pnWrong) {}

    template <class TValue>
    HRESULT Take(UINT nPlace, TValue& value) const {
        const UINT nGiven = m_Given.cArgs - 1 - nPlace;
        const HRESULT result = TakeArgument(m_Given.rgvarg[nGiven], value);
        if (FAILED(result) && m_pnWrong)
            *m_pnWrong = nGiven;
        return result;
    }

private:
    const DISPPARAMS& m_Given;
    UINT* m_pnWrong;
};

// Calls a function of an object of the table's class.
using CallFunction = HRESULT (*)(void* pObject, const CArguments& arguments, VARIANT& result);

struct CMember {
    const char* m_pName;
    UINT m_nArguments;    // of the method; a property has none to get and one to put
    CallFunction m_pCall; // the method, or what gets the property
    CallFunction m_pPut;  // null for a method
};

template <auto pFunction>
struct CCall;

template <auto pFunction, class TObject, class TResult, class... TParameters>
struct CTypedCall {
    static constexpr UINT kArguments = sizeof...(TParameters);

    static HRESULT Call(void* pObject, const CArguments& arguments, VARIANT& result) {
        std::tuple<std::remove_cvref_t<TParameters>...> values;
        const auto take = [&](auto&... value) {
            [[maybe_unused]] UINT nPlace = 0;
            HRESULT code = S_OK;
            static_cast<void>((!FAILED(code = arguments.Take(nPlace++, value)) && ...));
            return code;
        };
        if (const HRESULT code = std::apply(take, values); FAILED(code))
            return code;
        const auto call = [&](auto&... value) -> TResult {
            return (static_cast<TObject*>(pObject)->*pFunction)(value...);
        };
        if constexpr (std::is_void_v<TResult>)
            std::apply(call, values);
        else
            StoreResult(result, std::apply(call, values));
        return S_OK;
    }
};

template <class TObject, class TResult, class... TParameters, TResult (TObject::*pFunction)(TParameters...)>
struct CCall<pFunction> : CTypedCall<pFunction, TObject, TResult, TParameters...> {};

template <class TObject, class TResult, class... TParameters,
          TResult (TObject::*pFunction)(TParameters...) const>
struct CCall<pFunction> : CTypedCall<pFunction, TObject, TResult, TParameters...> {};

template <auto pMethod>
constexpr CMember Method(const char* pName) {
    return {pName, CCall<pMethod>::kArguments, CCall<pMethod>::Call, nullptr};
}

template <auto pGet, auto pSet>
constexpr CMember Property(const char* pName) {
    return {pName, 0, CCall<pGet>::Call, CCall<pSet>::Call};
}

// One dispatch interface of an object: the names and calls of a table. References are counted by the object.
class CDispatch final : public IDispatch {
public:
    // All of them outlive it.
    CDispatch(IUnknown& object, void* pTarget, std::span<const CMember> members)
        : m_Object(object), m_pTarget(pTarget), m_Members(members) {}

    HRESULT ORRELIX_STDCALL QueryInterface(REFIID iid, void** ppObject) override;
    ULONG ORRELIX_STDCALL AddRef() override;
    ULONG ORRELIX_STDCALL Release() override;
    HRESULT ORRELIX_STDCALL GetTypeInfoCount(UINT* pnCount) override;
    HRESULT ORRELIX_STDCALL GetTypeInfo(UINT nInfo, LCID nLocale, ITypeInfo** ppInfo) override;
    HRESULT ORRELIX_STDCALL GetIDsOfNames(REFIID iid, OLECHAR** ppNames, UINT nNames, LCID nLocale,
                                          DISPID* pIds) override;
    HRESULT ORRELIX_STDCALL Invoke(DISPID nMember, REFIID iid, LCID nLocale, WORD flags,
                                   DISPPARAMS* pArguments, VARIANT* pResult, EXCEPINFO* pException,
                                   UINT* pnWrongArgument) override;

private:
    HRESULT Call(DISPID nMember, WORD flags, const DISPPARAMS& given, VARIANT& result, UINT* pnWrong);

    IUnknown& m_Object;
    void* m_pTarget;
    std::span<const CMember> m_Members;
};

} // namespace orrelix
