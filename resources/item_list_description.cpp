#include "resources/item_list_description.h"

namespace orrelix {

using namespace describe;

CDialogItem ItemList(unsigned nStyle) {
    using Id = ItemListId;
    return Row(
        {ListView(Id::Items, "", STYLE_REPORT | nStyle, "Items"),
         Column({Button(Id::Add, "&Add..."), Button(Id::Delete, "&Delete"), Button(Id::Modify, "&Modify..."),
                 Button(Id::MoveUp, "Move &Up"), Button(Id::MoveDown, "Move Do&wn")})});
}

CDialogItem ItemImage() {
    using Id = ItemId;
    return Group("Insert an Image File", {Row({Edit(Id::ImageFile, "&File Name:", STYLE_PATH),
                                               Button(Id::ChooseImage, "...", "", "Choose an Image File")}),
                                          Row({Number(Id::ImageWidth, "&Width:", 0, 5000),
                                               Number(Id::ImageHeight, "&Height:", 0, 5000),
                                               Number(Id::ImageBorder, "&Border:", 0, 5000)})});
}

CDialogItem ItemUrl() {
    return Button(ItemId::Url, "...", "The informations of this &URL:");
}

} // namespace orrelix
