#include "resources/fade_select_description.h"

#include "resources/choices.h"

namespace orrelix {

using namespace describe;

const CDialogDescription& FadeSelectDescription() {
    using Id = FadeSelectId;
    static const CDialogDescription description{
        "Fade Select Box",
        Column({ItemList(STYLE_MULTIPLE_SELECTION),
                Row({Group("General Parameters",
                           {Row({Number(Id::BoxWidth, "Box W&idth:", 0, 5000),
                                 Number(Id::BoxHeight, "Box &Height:", 0, 5000)}),
                            Row({Number(Id::BoxMargin, "Box Mari&gn:", 0, 5000),
                                 Number(Id::BorderWidth, "B&order Width:", 0, 5000)}),
                            Row({ComboBox(Id::BorderStyle, "Border St&yle:", kBorderStyles),
                                 Colour(Id::BorderColor, "Border &Color:")}),
                            Row({Number(Id::Padding, "&Padding:", 0, 5000),
                                 Colour(Id::BoxColor, "Bo&x Color:")})}),
                     Column({Group("Fade Parameters", {Number(Id::FadeSteps, "&Fade Step:", 0, 5000),
                                                       Number(Id::FadeMsec, "Inter&val Time:", 0, 5000)}),
                             Group("Position Properties:", {Number(Id::Top, "Box &Top:", 0, 5000),
                                                            Number(Id::Left, "Box &Left:", 0, 5000)})})}),
                Group("Extensive Style", {Row({Button(Id::SelectedItem, "&Selected Item..."),
                                               Button(Id::DropTable, "Drop Tabl&e..."),
                                               Button(Id::DropButton, "Drop &Button...")})}),
                Edit(Id::ImagePath, "Specify Image Files &Remote Directory:"),
                Edit(Id::ScriptPath, "Specify fade.&js and fadeselect.js Remote Directory:"),
                OkAndCancel()})};
    return description;
}

const CDialogDescription& FadeItemDescription() {
    using Id = FadeItemId;
    static const CDialogDescription description{
        "Item Properties", Column({Edit(Id::Text, "Item &Text:"), Edit(Id::ToolTip, "Item T&oolTip:"),
                                   Colour(Id::FontColor, "Font &Color:"), Button(Id::Font, "Fo&nt More..."),
                                   ItemImage(), ItemUrl(), OkAndCancel()})};
    return description;
}

const CDialogDescription& SelectedItemDescription() {
    using Id = SelectedItemId;
    static const CDialogDescription description{
        "Selected Item Style",
        Column({Group("Border Style", {Number(Id::BorderWidth, "&Width:", 0, 5000),
                                       ComboBox(Id::BorderStyle, "&Style:", kBorderStyles),
                                       Colour(Id::BorderColor, "&Color:")}),
                Colour(Id::ItemColor, "&Item Color:"), Colour(Id::TextColor, "Te&xt Color:"),
                ComboBox(Id::Target, "&Link Target:", kLinkTargets, STYLE_LIST_ONLY),
                Button(Id::Font, "Font..", "Text &Font:"), OkAndCancel()})};
    return description;
}

const CDialogDescription& DropTableDescription() {
    using Id = DropTableId;
    static const CDialogDescription description{
        "Drop Down Table Style",
        Column({Colour(Id::BackColor, "&Background Color:"),
                Group("Border Style:", {Number(Id::BorderWidth, "Border &Width:", 0, 5000),
                                        Colour(Id::BorderColor, "Border &Color:"),
                                        ComboBox(Id::BorderStyle, "Border &Style:", kBorderStyles)}),
                Button(Id::ItemPadding, "...", "Item &Padding Style:"), OkAndCancel()})};
    return description;
}

const CDialogDescription& DropButtonDescription() {
    using Id = DropButtonId;
    static const CDialogDescription description{
        "Drop Button Style",
        Column({Group("Click Button Layout Style",
                      {Row({Number(Id::Width, "&Width:", 0, 5000), Number(Id::Height, "&Height:", 0, 5000)}),
                       Row({Number(Id::Padding, "&Padding:", 0, 5000),
                            Number(Id::ArrowSize, "&Arrow Size:", 0, 5000)})}),
                Row({Group("Fade Select Box Border Style",
                           {Number(Id::TableBorderWidth, "W&idth:", 0, 5000),
                            ComboBox(Id::TableBorderStyle, "&Style:", kBorderStyles),
                            Colour(Id::TableBorderColor, "&Color:")}),
                     Group("Click Button Arrow Border Style",
                           {Number(Id::ButtonBorderWidth, "Wi&dth:", 0, 5000),
                            ComboBox(Id::ButtonBorderStyle, "S&tyle:", kBorderStyles),
                            Colour(Id::ButtonBorderColor, "C&olor:")})}),
                Colour(Id::ButtonColor, "Click &Button Color:"), OkAndCancel()})};
    return description;
}

} // namespace orrelix
