// The library's four entry points.
#include "core/registration.h"
#include "core/server.h"

using namespace orrelix;

namespace {

template <class TAct>
HRESULT Guarded(TAct act) noexcept {
    try {
        return act();
    } catch (...) {
        return E_OUTOFMEMORY; // nothing else is thrown there
    }
}

} // namespace

extern "C" {

__attribute__((visibility("default"))) HRESULT DllGetClassObject(REFCLSID clsid, REFIID iid,
                                                                 void** ppFactory);
__attribute__((visibility("default"))) HRESULT DllCanUnloadNow();
__attribute__((visibility("default"))) HRESULT DllRegisterServer();
__attribute__((visibility("default"))) HRESULT DllUnregisterServer();

HRESULT DllGetClassObject(REFCLSID clsid, REFIID iid, void** ppFactory) {
    return GetClassObject(clsid, iid, ppFactory);
}

HRESULT DllCanUnloadNow() {
    return CanUnload() ? S_OK : S_FALSE;
}

HRESULT DllRegisterServer() {
    return Guarded(RegisterServer);
}

HRESULT DllUnregisterServer() {
    return Guarded(UnregisterServer);
}
}
