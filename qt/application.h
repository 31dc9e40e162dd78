// The QApplication that the windows need: the host's, or else one of our own.
#pragma once

namespace orrelix {

// True when there is one that windows can use on the calling thread. Makes it if the process has no Qt
// application yet; that one is kept to the end of the process.
bool EnsureApplication();

} // namespace orrelix
