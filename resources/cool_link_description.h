// The dialogs of Link Select Table.
#pragma once

#include "resources/item_list_description.h"

namespace orrelix {

struct CoolLinkId {
    enum : int {
        Margin = 100,
        BorderWidth,
        BorderStyle,
        BorderColor,
        Top,
        Left,
        Width,
        Target,
        SelectedItem,
        NormalItem,
        ImagePath,
        ScriptPath,
    };
};
const CDialogDescription& CoolLinkDescription();

struct CoolLinkItemId : ItemId {
    enum : int { Text = 100 };
};
const CDialogDescription& CoolLinkItemDescription();

struct CoolLinkStyleId {
    enum : int { BorderWidth = 100, BorderStyle, BorderColor, BackColor, TextColor, Font, Padding };
};
const CDialogDescription& CoolLinkStyleDescription();

} // namespace orrelix
