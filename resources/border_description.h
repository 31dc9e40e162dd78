// The dialog that edits a border.
#pragma once

#include "toolkit/dialog_description.h"

namespace orrelix {

struct BorderId {
    enum : int { Style = 100, Color, Width };
};
const CDialogDescription& BorderDescription();

} // namespace orrelix
