#include "toolkit/desktop_loader.h"

#include "platform/module.h"
#include "platform/screen.h"

CDesktop* FindWindows() {
    static CFindWindowsFunction* pFindWindows = nullptr;
    if (!pFindWindows && HasScreen())
        pFindWindows =
            reinterpret_cast<CFindWindowsFunction*>(LoadNeighbour(kWindowsLibrary, kWindowsFunction));
    return pFindWindows ? pFindWindows() : nullptr;
}
