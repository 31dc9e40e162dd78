// The dialog of Animate Text.
#pragma once

#include "toolkit/dialog_description.h"

namespace orrelix {

struct AnimateTextId {
    enum : int {
        EditText = 100,
        Messages,
        Add,
        Delete,
        Modify,
        MoveUp,
        MoveDown,
        Font,
        PopUpInterval,
        CirculateInterval,
        Top,
        Left,
        Height,
        Width,
        ScrollSize,
        ScrollStart,
        FadeColor,
        TextColor,
        BackColor,
        ScriptPath,
    };
};
const CDialogDescription& AnimateTextDescription();

} // namespace orrelix
