#include "resources/calander_description.h"

#include "resources/choices.h"

namespace orrelix {

namespace {

using namespace describe;
using Id = CalanderId;

CDialogItem TimeBox() {
    return Group("Time Box Properties", {Number(Id::BoxWidth, "Box &Width:", 0, 5000),
                                         Number(Id::BoxHeight, "Box &Height:", 0, 5000)});
}

CDialogItem Colours() {
    return Group("Color Properties",
                 {Colour(Id::BackgroundColor, "&Background:"), Colour(Id::CurrentDayColor, "&Current Day:"),
                  Colour(Id::GreetColor, "G&reet Text:"), Colour(Id::TitleColor, "&Title Text:"),
                  Colour(Id::TimeColor, "Ti&me Text:"), Colour(Id::DateColor, "&Date Text:")});
}

CDialogItem Fonts() {
    return Group("Font Properties",
                 {Button(Id::GreetFont, "Gr&eet Text..."), Button(Id::TitleFont, "Tit&le Text..."),
                  Button(Id::TimeFont, "T&ime Text..."), Button(Id::DateFont, "Date Te&xt...")});
}

CDialogItem Borders() {
    return Group("Border Style", {Row({Button(Id::CalanderBorder, "Cale&nder Border..."),
                                       Button(Id::CellBorder, "Date Cell B&order...")})});
}

} // namespace

const CDialogDescription& CalanderDescription() {
    static const CDialogDescription description{
        "Calender",
        Column({ComboBox(Id::CalanderAlign, "Calender &Align:", kAligns), Edit(Id::GreetText, "&Greet Text:"),
                Row({Column({TimeBox(), Fonts()}), Column({Colours(), Borders()})}),
                Edit(Id::ClassWebPath, "&Specify calander2.js Remote Directory:"), OkAndCancel()})};
    return description;
}

} // namespace orrelix
