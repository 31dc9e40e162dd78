// The dialogs that edit a font.
#pragma once

#include "toolkit/dialog_description.h"

namespace orrelix {

struct FontId {
    enum : int { Weight = 100, Style, Size, Align, Face, Families };
};
const CDialogDescription& FontPropertiesDescription();
const CDialogDescription& CalanderFontDescription();

} // namespace orrelix
