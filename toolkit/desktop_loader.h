// Where real windows come from: a library of its own beside the component's, which is loaded when they are
// first wanted and there is a screen. The component itself stays free of any window system.
#pragma once

namespace orrelix {

class CDesktop;

// The desktop with real windows, null when there is no screen, no such library, or no way to show windows on
// the calling thread. It isn't ours to delete. Ask again each time: what the process can show may change.
CDesktop* FindDesktop();

// The library's one function, with C linkage. It gives the desktop or null and throws nothing.
using CFindDesktopFunction = CDesktop*();
constexpr const char* kDesktopLibrary = "VignelOrrelixQt";
constexpr const char* kDesktopFunction = "OrrelixDesktop";

} // namespace orrelix
