// The library's one entry.
#include "qt/application.h"
#include "qt/qt_desktop.h"
#include "toolkit/desktop_loader.h"

namespace orrelix {

extern "C" CFindDesktopFunction OrrelixDesktop;

CDesktop* OrrelixDesktop() {
    try {
        if (!EnsureApplication())
            return nullptr;
        // Outlives the host's last dialog, whenever that is.
        static CQtDesktop* const pDesktop = new CQtDesktop;
        return pDesktop;
    } catch (...) {
        return nullptr;
    }
}

} // namespace orrelix
