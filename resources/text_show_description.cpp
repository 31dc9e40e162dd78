#include "resources/text_show_description.h"

namespace orrelix {

const CDialogDescription& TextShowDescription() {
    using namespace describe;
    using Id = TextShowId;
    static const CDialogDescription description{
        "Slide Text",
        Column({Row({Group("Table", {Number(Id::TableWidth, "&Width:", 0, 5000),
                                     Number(Id::TableHeight, "&Height:", 0, 5000),
                                     Number(Id::TableBorder, "&Border:", 0, 5000)}),
                     Group("Text Title Area",
                           {Number(Id::TitleWidth, "W&idth:", 0, 5000),
                            Number(Id::TitleHeight, "H&eight:", 0, 5000), Colour(Id::TitleColor, "&Color:")}),
                     Group("Text Area",
                           {Number(Id::TextWidth, "Wi&dth:", 0, 5000),
                            Number(Id::TextHeight, "Hei&ght:", 0, 5000), Colour(Id::TextColor, "Co&lor:")})}),
                Group("Slide Speed", {Slider(Id::Speed, "Slide Speed", "Fastest", "Slowest", 0, 1000, 100)}),
                Edit(Id::TitleText, "Te&xt Title:"), Edit(Id::Text, "&Slide Text:", STYLE_MULTI_LINE),
                Group("Font Properties", {Row({Button(Id::TitleFont, "&Title Font..."),
                                               Button(Id::TextFont, "Text &Font...")})}),
                OkAndCancel()})};
    return description;
}

} // namespace orrelix
