#include "resources/animate_text_description.h"

namespace orrelix {

namespace {

using namespace describe;
using Id = AnimateTextId;

CDialogItem Messages() {
    return Group("Animate Text", {Edit(Id::EditText, "", STYLE_MULTI_LINE, "Message"),
                                  ListBox(Id::Messages, "", STYLE_NONE, "Messages"),
                                  Row({Button(Id::Add, "&Add"), Button(Id::Delete, "&Delete"),
                                       Button(Id::Modify, "&Modify")}),
                                  Row({Button(Id::MoveUp, "Move &Up"), Button(Id::MoveDown, "Move Do&wn"),
                                       Button(Id::Font, "&Font...")})});
}

CDialogItem Interval(int nId, const char* pTitle) {
    return Group(pTitle, {Slider(nId, pTitle, "Shortest", "Longest", 0, 1000, 100)});
}

CDialogItem Rectangle() {
    return Group("Text Showed Rectangle Properties",
                 {Number(Id::Top, "&Top:", 0, 5000, STYLE_DIGITS), Number(Id::Left, "&Left:", 0, 5000),
                  Number(Id::Height, "&Height:", 0, 5000), Number(Id::Width, "W&idth:", 0, 5000),
                  Number(Id::ScrollSize, "Text &Scroll Size:", 0, 5000, STYLE_DIGITS),
                  Number(Id::ScrollStart, "Text Scroll Sta&rt:", 0, 5000)});
}

CDialogItem Colours() {
    return Group("Color Properties",
                 {Colour(Id::FadeColor, "Text Fad&e Color:"), Colour(Id::TextColor, "Text Fo&nt Color:"),
                  Colour(Id::BackColor, "&Background Color:")});
}

} // namespace

const CDialogDescription& AnimateTextDescription() {
    static const CDialogDescription description{
        "Animate Text",
        Column({Row({Column({Messages(), Interval(Id::PopUpInterval, "Text Pop up Interval Time"),
                             Interval(Id::CirculateInterval, "Circulate Interval Time")}),
                     Column({Rectangle(), Colours()})}),
                Edit(Id::ScriptPath, "Specify animate.&js Remote Directory:"), OkAndCancel()})};
    return description;
}

} // namespace orrelix
