// The dialogs of Fade Select Box.
#pragma once

#include "resources/item_list_description.h"

namespace orrelix {

struct FadeSelectId {
    enum : int {
        BoxWidth = 100,
        BoxHeight,
        BoxMargin,
        BorderWidth,
        BorderStyle,
        BorderColor,
        Padding,
        BoxColor,
        FadeSteps,
        FadeMsec,
        Top,
        Left,
        SelectedItem,
        DropTable,
        DropButton,
        ImagePath,
        ScriptPath,
    };
};
const CDialogDescription& FadeSelectDescription();

struct FadeItemId : ItemId {
    enum : int { Text = 100, ToolTip, FontColor, Font };
};
const CDialogDescription& FadeItemDescription();

struct SelectedItemId {
    enum : int { BorderWidth = 100, BorderStyle, BorderColor, ItemColor, TextColor, Target, Font };
};
const CDialogDescription& SelectedItemDescription();

struct DropTableId {
    enum : int { BackColor = 100, BorderWidth, BorderColor, BorderStyle, ItemPadding };
};
const CDialogDescription& DropTableDescription();

struct DropButtonId {
    enum : int {
        Width = 100,
        Height,
        Padding,
        ArrowSize,
        TableBorderWidth,
        TableBorderStyle,
        TableBorderColor,
        ButtonBorderWidth,
        ButtonBorderStyle,
        ButtonBorderColor,
        ButtonColor,
    };
};
const CDialogDescription& DropButtonDescription();

} // namespace orrelix
