// The library's four entry points.
#include "core/dispatch.h"
#include "core/registration.h"
#include "core/server.h"

using namespace orrelix;

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
    return CodeOf(RegisterServer);
}

HRESULT DllUnregisterServer() {
    return CodeOf(UnregisterServer);
}
}
