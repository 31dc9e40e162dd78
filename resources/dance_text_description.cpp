#include "resources/dance_text_description.h"

#include "resources/choices.h"

namespace orrelix {

namespace {

using namespace describe;
using Id = DanceTextId;

CDialogItem Colors() {
    return Group("Color", {ListBox(Id::Colors, "", STYLE_NONE, "Colors"),
                           Row({Button(Id::Add, "&Add..."), Button(Id::Delete, "&Delete"),
                                Button(Id::Modify, "&Modify...")}),
                           Row({Button(Id::MoveUp, "Move &Up"), Button(Id::MoveDown, "Move Do&wn")})});
}

CDialogItem Speed() {
    return Group("Color Change Speed",
                 {Slider(Id::Delay, "Color Change Speed", "Fastest", "Slowest", 0, 100, 10)});
}

CDialogItem Style() {
    return Group("Extensive Style", {ComboBox(Id::TextDecoration, "Text D&ecoration:", kDecorations),
                                     ComboBox(Id::LinkTarget, "&Link Target:", kLinkTargets, STYLE_LIST_ONLY),
                                     Button(Id::Font, "&Font..."), Button(Id::Url, "U&rl...")});
}

} // namespace

const CDialogDescription& DanceTextDescription() {
    static const CDialogDescription description{
        "Color Link", Column({Edit(Id::LinkText, "&Text of the Url:"),
                              Row({Colors(), Column({Speed(), Style()})}), OkAndCancel()})};
    return description;
}

const CDialogDescription& ColorDescription() {
    static const CDialogDescription description{"Color",
                                                Column({Colour(ColorId::Color, "&Color:"), OkAndCancel()})};
    return description;
}

} // namespace orrelix
