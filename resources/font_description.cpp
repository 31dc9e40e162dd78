#include "resources/font_description.h"

#include "resources/choices.h"

namespace orrelix {

namespace {

using namespace describe;
using Id = FontId;

CDialogItem Weight() {
    return ComboBox(Id::Weight, "Font &Weight:", kFontWeights);
}

CDialogItem Style() {
    return ComboBox(Id::Style, "Font St&yle:", kFontStyles, STYLE_SORTED);
}

CDialogItem Size() {
    return Number(Id::Size, "Font &Size:", 0, 5000);
}

CDialogItem Families() {
    return ListBox(Id::Families, "&Double Click to Insert into above:", STYLE_SORTED);
}

} // namespace

const CDialogDescription& FontPropertiesDescription() {
    static const CDialogDescription description{
        "Font Properties", Column({Weight(), Style(), Size(), Edit(Id::Face, "Specify the Font &Face:"),
                                   Families(), OkAndCancel()})};
    return description;
}

const CDialogDescription& CalanderFontDescription() {
    static const CDialogDescription description{
        "Calender Font Style",
        Column({Weight(), Style(), Size(),
                ComboBox(Id::Align, "Text &Align:", {"left", "center", "right", "justify"}),
                Edit(Id::Face, "Specify the &Font:"), Families(), OkAndCancel()})};
    return description;
}

} // namespace orrelix
