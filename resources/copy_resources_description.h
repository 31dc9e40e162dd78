// The dialogs that settle name clashes when files are copied.
#pragma once

#include "toolkit/dialog_description.h"

namespace orrelix {

struct CopyResourcesId {
    enum : int { Destination = 100, Clashes, Browse, Rename, Explanation };
};
const CDialogDescription& CopyResourcesDescription();

struct BrowseFilesId {
    enum : int { Heading = 100, Files };
};
const CDialogDescription& BrowseFilesDescription();

} // namespace orrelix
