// Remote directories: where a published page finds its script and image files.
#pragma once

#include "platform/string.h"

namespace orrelix {

// A directory as a person typed it, in the form that effects keep: with slashes and one at its end. Empty
// stays empty.
CString RemoteDirectory(CString typed);

} // namespace orrelix
