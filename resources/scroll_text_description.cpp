#include "resources/scroll_text_description.h"

#include "resources/choices.h"

namespace orrelix {

namespace {

using namespace describe;
using Id = ScrollTextId;

CDialogItem Texts() {
    return Group("Scroll Text", {Edit(Id::EditText, "", STYLE_MULTI_LINE, "Text"),
                                 ListBox(Id::Texts, "", STYLE_NONE, "Texts"),
                                 Row({Button(Id::TextUp, "Move &Up", "", "Move Up the text"),
                                      Button(Id::TextDown, "Move Do&wn", "", "Move Down the text"),
                                      Button(Id::ModifyText, "Modi&fy", "", "Modify the text")})});
}

CDialogItem Urls() {
    return Group("Text Url",
                 {Edit(Id::EditUrl, "", STYLE_LEVEL, "Url"), ListBox(Id::Urls, "", STYLE_NONE, "Urls"),
                  Row({Button(Id::UrlUp, "Move U&p", "", "Move Up the url"),
                       Button(Id::UrlDown, "Move Dow&n", "", "Move Down the url"),
                       Button(Id::ModifyUrl, "Modif&y", "", "Modify the url")})});
}

CDialogItem Scrolling() {
    return Group("Scroll Properties:", {Number(Id::LayerSpeed, "Layer &Speed:", 0, 5000),
                                        Number(Id::DelayTime, "Delay Ti&me:", 0, 5000),
                                        Number(Id::ScrollWidth, "S&croll Width:", 0, 5000),
                                        Number(Id::ScrollHeight, "Scroll &Height:", 0, 5000)});
}

CDialogItem Table() {
    return Group("Table Properties:", {ComboBox(Id::TableAlign, "Table Ali&gn:", kAligns),
                                       Number(Id::BorderWidth, "&Border Width:", 0, 5000),
                                       Number(Id::TableWidth, "&Table Width:", 0, 5000),
                                       ComboBox(Id::BorderStyle, "Bo&rder Style:", kBorderStyles)});
}

CDialogItem Colours() {
    return Group("Color Properties",
                 {Colour(Id::LayerColor, "&Layer Color:"), Colour(Id::BorderColor, "Bord&er Color:")});
}

CDialogItem Styles() {
    return Group("Link Style",
                 {Row({Button(Id::MouseOver, "Mouse O&ver..."), Button(Id::MouseOut, "Mouse &Out..."),
                       Button(Id::MouseClick, "Mouse Clic&k...")})});
}

} // namespace

const CDialogDescription& ScrollTextDescription() {
    static const CDialogDescription description{
        "Scroll Text",
        Column({Row({Texts(), Urls()}),
                Row({Button(Id::Add, "&Add new text..."), Button(Id::Delete, "&Delete a text")}),
                Row({Scrolling(), Table(), Column({Colours(), Styles()})}),
                Edit(Id::ScriptPath, "Specify scrolltext.&js Remote Directory:"), OkAndCancel()})};
    return description;
}

const CDialogDescription& AddTextDescription() {
    static const CDialogDescription description{
        "Add a Text",
        Column({Edit(AddTextId::Text, "Link &Text:", STYLE_MULTI_LINE),
                Button(AddTextId::Url, "...", "The &informations of this URL:"), OkAndCancel()})};
    return description;
}

const CDialogDescription& LinkStyleDescription() {
    using Id = LinkStyleId;
    static const CDialogDescription description{
        "Link Style", Column({ComboBox(Id::Decoration, "Text &Decoration:", kDecorations),
                              ComboBox(Id::Cursor, "&Mouse Cursor:", {"default", "hand"}),
                              Colour(Id::Color, "Text &Color:"), Button(Id::Font, "Font...", "Text &Font:"),
                              OkAndCancel()})};
    return description;
}

} // namespace orrelix
