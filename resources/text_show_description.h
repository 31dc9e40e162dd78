// The dialog of Slide Text.
#pragma once

#include "toolkit/dialog_description.h"

namespace orrelix {

struct TextShowId {
    enum : int {
        TableWidth = 100,
        TableHeight,
        TableBorder,
        TitleWidth,
        TitleHeight,
        TitleColor,
        TextWidth,
        TextHeight,
        TextColor,
        Speed,
        TitleText,
        Text,
        TitleFont,
        TextFont,
    };
};
const CDialogDescription& TextShowDescription();

} // namespace orrelix
