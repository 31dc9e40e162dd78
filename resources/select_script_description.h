// The dialog that picks an effect.
#pragma once

#include "toolkit/dialog_description.h"

namespace orrelix {

struct SelectScriptId {
    enum : int { Names = 100, Description };
};
const CDialogDescription& SelectScriptDescription();

} // namespace orrelix
