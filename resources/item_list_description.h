// What the dialogs of effects with items have in common: the list of the items with its buttons, and what an item's
// own dialog asks about its image and its address.
#pragma once

#include "toolkit/dialog_description.h"

namespace orrelix {

struct ItemListId {
    enum : int { Items = 900, Add, Delete, Modify, MoveUp, MoveDown };
};
// The styles are those of the list.
CDialogItem ItemList(unsigned nStyle = STYLE_NONE);

struct ItemId {
    enum : int { ImageFile = 900, ChooseImage, ImageWidth, ImageHeight, ImageBorder, Url };
};
CDialogItem ItemImage();
CDialogItem ItemUrl();

} // namespace orrelix
