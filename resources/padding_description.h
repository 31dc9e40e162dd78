// The dialog of four paddings.
#pragma once

#include "toolkit/dialog_description.h"

namespace orrelix {

struct PaddingId {
    enum : int { Left = 100, Right, Top, Bottom };
};
const CDialogDescription& PaddingDescription();

} // namespace orrelix
