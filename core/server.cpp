#include "core/server.h"

#include "core/dispatch.h"
#include "core/inspector.h"
#include "core/orrelix.h"
#include "core/orrelix_members.h"

#include <atomic>

namespace orrelix {

namespace {

std::atomic<int> g_nLocks = 0;

// Keeps the library loaded while it lives.
class CServerLock {
public:
    CServerLock() { ++g_nLocks; }
    ~CServerLock() { --g_nLocks; }
    CServerLock(const CServerLock&) = delete;
    CServerLock& operator=(const CServerLock&) = delete;
};

// What a host holds: a COrrelix behind its interfaces. It ends with the last reference.
class CServerObject final : public IUnknown {
public:
    HRESULT ORRELIX_STDCALL QueryInterface(REFIID iid, void** ppObject) override {
        if (!ppObject)
            return E_POINTER;
        if (iid == IID_IUnknown)
            *ppObject = static_cast<IUnknown*>(this);
        else if (iid == IID_IDispatch || iid == VignelIidOrrelix)
            *ppObject = static_cast<IDispatch*>(&m_Automation);
        else if (iid == VignelIidInspector)
            *ppObject = GetInspection();
        else
            *ppObject = nullptr;
        if (!*ppObject)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }

    ULONG ORRELIX_STDCALL AddRef() override { return ++m_nReferences; }

    ULONG ORRELIX_STDCALL Release() override {
        const ULONG nLeft = --m_nReferences;
        if (nLeft == 0)
            delete this;
        return nLeft;
    }

private:
    ~CServerObject() = default;

    // Only for it the object keeps what files look like.
    IDispatch* GetInspection() {
        m_Orrelix.m_bKeepForm = true;
        return &m_Inspection;
    }

    CServerLock m_Lock;
    std::atomic<ULONG> m_nReferences = 1;
    COrrelix m_Orrelix;
    CInspector m_Inspector{m_Orrelix};
    CDispatch m_Automation{*this, &m_Orrelix, GetOrrelixMembers()};
    CDispatch m_Inspection{*this, &m_Inspector, GetInspectorMembers()};
};

class CFactory final : public IClassFactory {
public:
    HRESULT ORRELIX_STDCALL QueryInterface(REFIID iid, void** ppObject) override {
        if (!ppObject)
            return E_POINTER;
        const bool bKnown = iid == IID_IUnknown || iid == IID_IClassFactory;
        *ppObject = bKnown ? this : nullptr;
        if (bKnown)
            AddRef();
        return bKnown ? S_OK : E_NOINTERFACE;
    }

    // It is there as long as the library, whoever holds it.
    ULONG ORRELIX_STDCALL AddRef() override { return static_cast<ULONG>(++g_nLocks) + 1; }
    ULONG ORRELIX_STDCALL Release() override { return static_cast<ULONG>(--g_nLocks) + 1; }

    HRESULT ORRELIX_STDCALL CreateInstance(IUnknown* pOuter, REFIID iid, void** ppObject) override {
        if (!ppObject)
            return E_POINTER;
        *ppObject = nullptr;
        if (pOuter)
            return CLASS_E_NOAGGREGATION;
        return CodeOf([&] {
            auto* pObject = new CServerObject;
            const HRESULT result = pObject->QueryInterface(iid, ppObject);
            pObject->Release();
            return result;
        });
    }

    HRESULT ORRELIX_STDCALL LockServer(BOOL bLock) override {
        g_nLocks += bLock ? 1 : -1;
        return S_OK;
    }
};

CFactory g_factory;

} // namespace

HRESULT GetClassObject(REFCLSID clsid, REFIID iid, void** ppFactory) {
    if (!ppFactory)
        return E_POINTER;
    *ppFactory = nullptr;
    return clsid == VignelClsidOrrelix ? g_factory.QueryInterface(iid, ppFactory) : CLASS_E_CLASSNOTAVAILABLE;
}

bool CanUnload() {
    return g_nLocks == 0;
}

} // namespace orrelix
