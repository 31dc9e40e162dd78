// The dialogs of ToolTip.
#pragma once

#include "toolkit/dialog_description.h"

namespace orrelix {

struct ToolTipId {
    enum : int {
        HtmlText = 100,
        HtmlTag,
        Url,
        TipText,
        TipTag,
        MarqueeWidth,
        BorderStyle,
        BorderWidth,
        BackColor,
        BorderColor,
        TextColor,
        Font,
        Image,
        ShowTime,
        DelayTime,
        ScriptPath,
    };
};
const CDialogDescription& ToolTipDescription();

struct InsertImageId {
    enum : int {
        FileName = 100,
        Browse,
        Width,
        Height,
        Border,
    };
};
const CDialogDescription& InsertImageDescription();

struct MarqueeWidthId {
    enum : int {
        Width = 100,
    };
};
const CDialogDescription& MarqueeWidthDescription();

} // namespace orrelix
