// The dialogs of Color Link.
#pragma once

#include "toolkit/dialog_description.h"

namespace orrelix {

struct DanceTextId {
    enum : int {
        LinkText = 100,
        Colors,
        Add,
        Delete,
        Modify,
        MoveUp,
        MoveDown,
        Delay,
        TextDecoration,
        LinkTarget,
        Font,
        Url,
    };
};
const CDialogDescription& DanceTextDescription();

struct ColorId {
    enum : int {
        Color = 100,
    };
};
const CDialogDescription& ColorDescription();

} // namespace orrelix
