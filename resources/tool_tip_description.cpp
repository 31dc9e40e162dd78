#include "resources/tool_tip_description.h"

#include "resources/choices.h"

namespace orrelix {

namespace {

using namespace describe;
using Id = ToolTipId;

CDialogItem Texts() {
    return Column({Edit(Id::HtmlText, "HTML &Text:"),
                   Row({ComboBox(Id::HtmlTag, "HTML Ta&g:", {"a", "div", "p", "span", "td"}, STYLE_SORTED),
                        Button(Id::Url, "&Url.")}),
                   Edit(Id::TipText, "ToolTi&p Text:"),
                   Row({ComboBox(Id::TipTag, "T&oolTip Tag:", {"marquee", "span"}, STYLE_SORTED),
                        Button(Id::MarqueeWidth, "...", "", "Marquee Width")})});
}

CDialogItem Style() {
    return Group("ToolTip Style",
                 {Row({Column({ComboBox(Id::BorderStyle, "Border St&yle:", kBorderStyles),
                               Number(Id::BorderWidth, "Border &Width:", 0, 5000),
                               Button(Id::Font, "&Font..."), Button(Id::Image, "&image...")}),
                       Column({Colour(Id::BackColor, "&Color:"), Colour(Id::BorderColor, "&Border Color:"),
                               Colour(Id::TextColor, "Te&xt Color:")})})});
}

CDialogItem Times() {
    return Group("Time Properties", {Row({Number(Id::ShowTime, "&Show Time:", 0, 10000),
                                          Number(Id::DelayTime, "&Delay Time:", 0, 10000)})});
}

} // namespace

const CDialogDescription& ToolTipDescription() {
    static const CDialogDescription description{
        "ToolTip", Column({Texts(), Style(), Times(),
                           Edit(Id::ScriptPath, "Specify tooltip.&js Remote Directory:"), OkAndCancel()})};
    return description;
}

const CDialogDescription& InsertImageDescription() {
    using Id = InsertImageId;
    static const CDialogDescription description{
        "Insert an image File",
        Column({Row({Edit(Id::FileName, "&File Name:", STYLE_PATH),
                     Button(Id::Browse, "...", "", "Choose an image File")}),
                Number(Id::Width, "&Width:", 0, 5000), Number(Id::Height, "&Height:", 0, 5000),
                Number(Id::Border, "&Border:", 0, 5000), OkAndCancel()})};
    return description;
}

const CDialogDescription& MarqueeWidthDescription() {
    static const CDialogDescription description{
        "Marquee Width", Column({Number(MarqueeWidthId::Width, "&Marquee Width:", 0, 5000), OkAndCancel()})};
    return description;
}

} // namespace orrelix
