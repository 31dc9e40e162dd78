#include "toolkit/desktop_loader.h"

#include "platform/module.h"
#include "platform/screen.h"

namespace orrelix {

CDesktop* FindDesktop() {
    static CFindDesktopFunction* pFindDesktop = nullptr;
    if (!pFindDesktop && HasScreen())
        pFindDesktop =
            reinterpret_cast<CFindDesktopFunction*>(LoadNeighbour(kDesktopLibrary, kDesktopFunction));
    return pFindDesktop ? pFindDesktop() : nullptr;
}

} // namespace orrelix
