// The dialog that picks an effect.
#pragma once

#include "toolkit/dialog_description.h"

struct SelectScriptId {
    enum : int { Names = 100, Description };
};
const CDialogDescription& SelectScriptDescription();
