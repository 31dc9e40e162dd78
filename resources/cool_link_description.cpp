#include "resources/cool_link_description.h"

#include "resources/choices.h"

namespace orrelix {

using namespace describe;

const CDialogDescription& CoolLinkDescription() {
    using Id = CoolLinkId;
    static const CDialogDescription description{
        "Link Select Table",
        Column({ItemList(),
                Row({Group("Layout Style", {Number(Id::Margin, "Mari&gn Size:", 0, 5000),
                                            Number(Id::BorderWidth, "&Border Width:", 0, 5000),
                                            ComboBox(Id::BorderStyle, "Border St&yle:", kBorderStyles),
                                            Colour(Id::BorderColor, "Border &Color:")}),
                     Group("General Parameters",
                           {Number(Id::Top, "&Top:", 0, 5000), Number(Id::Left, "&Left:", 0, 5000),
                            Number(Id::Width, "W&idth:", 0, 5000),
                            ComboBox(Id::Target, "Lin&k Target:", kLinkTargets, STYLE_LIST_ONLY)})}),
                Group("Item Style", {Row({Button(Id::SelectedItem, "&Selected Item..."),
                                          Button(Id::NormalItem, "&Normal Item...")})}),
                Edit(Id::ImagePath, "Specify Image Files &Remote Directory:"),
                Edit(Id::ScriptPath, "Specify select.&js Remote Directory:"), OkAndCancel()})};
    return description;
}

const CDialogDescription& CoolLinkItemDescription() {
    static const CDialogDescription description{
        "Item Properties",
        Column({Edit(CoolLinkItemId::Text, "Item &Text:"), ItemImage(), ItemUrl(), OkAndCancel()})};
    return description;
}

const CDialogDescription& CoolLinkStyleDescription() {
    using Id = CoolLinkStyleId;
    static const CDialogDescription description{
        "Item Style",
        Column({Group("Border Style", {Number(Id::BorderWidth, "&Width:", 0, 5000),
                                       ComboBox(Id::BorderStyle, "&Style:", kBorderStyles),
                                       Colour(Id::BorderColor, "&Color:")}),
                Colour(Id::BackColor, "&BackGround Color:"), Colour(Id::TextColor, "&Text Color:"),
                Group("More Style", {Row({Button(Id::Font, "&Font.."), Button(Id::Padding, "&Padding..")})}),
                OkAndCancel()})};
    return description;
}

} // namespace orrelix
