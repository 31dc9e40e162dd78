// The dialogs of Scroll Text.
#pragma once

#include "toolkit/dialog_description.h"

namespace orrelix {

struct ScrollTextId {
    enum : int {
        EditText = 100,
        Texts,
        TextUp,
        TextDown,
        ModifyText,
        EditUrl,
        Urls,
        UrlUp,
        UrlDown,
        ModifyUrl,
        Add,
        Delete,
        LayerSpeed,
        DelayTime,
        ScrollWidth,
        ScrollHeight,
        TableAlign,
        BorderWidth,
        TableWidth,
        BorderStyle,
        LayerColor,
        BorderColor,
        MouseOver,
        MouseOut,
        MouseClick,
        ScriptPath,
    };
};
const CDialogDescription& ScrollTextDescription();

struct AddTextId {
    enum : int {
        Text = 100,
        Url,
    };
};
const CDialogDescription& AddTextDescription();

struct LinkStyleId {
    enum : int {
        Decoration = 100,
        Cursor,
        Color,
        Font,
    };
};
const CDialogDescription& LinkStyleDescription();

} // namespace orrelix
