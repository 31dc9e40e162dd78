// Whether there is a screen to show windows on.
#pragma once

namespace orrelix {

// True when the process was given a screen and, as far as can be told without showing anything, somebody
// serves it. A window system that finds nobody there may end the process, so the settings alone don't count.
bool HasScreen();

} // namespace orrelix
