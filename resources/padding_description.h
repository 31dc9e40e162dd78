// The dialog of four paddings.
#pragma once

#include "toolkit/dialog_description.h"

struct PaddingId {
    enum : int { Left = 100, Right, Top, Bottom };
};
const CDialogDescription& PaddingDescription();
