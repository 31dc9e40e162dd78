#include "resources/today_ca_description.h"

#include "resources/choices.h"

namespace orrelix {

using namespace describe;

const CDialogDescription& TodayCaDescription() {
    using Id = TodayCaId;
    static const CDialogDescription description{
        "Cool Calender",
        Column(
            // A column of its own: the labels below are too long to align with.
            {Column({Row({ComboBox(Id::Align, "&Calender Align:", kAligns),
                          ComboBox(Id::TitleStyle, "&Title Style:",
                                   {kTitleStyles[0].m_Name, kTitleStyles[1].m_Name, kTitleStyles[2].m_Name},
                                   STYLE_LIST_ONLY)})}),
             Group("Calender Border Style", {Row({Number(Id::BorderWidth, "Border &Width:", 0, 5000),
                                                  ComboBox(Id::BorderStyle, "Border St&yle:", kBorderStyles),
                                                  Colour(Id::BorderColor, "Border C&olor:")})}),
             Group("Extensive Style",
                   {Row({Column({Button(Id::ClickButton, "Click &Button..."),
                                 Button(Id::CurrentDay, "Current &Day..."),
                                 Button(Id::YearMonth, "Year/&Month...")}),
                         Column({Button(Id::DayTitle, "W&eekDay Title..."),
                                 Button(Id::SatTitle, "&Saturday Title..."),
                                 Button(Id::SunTitle, "S&unday Title...")}),
                         Column({Button(Id::DayCell, "Wee&kDay..."), Button(Id::SatCell, "Satu&rday..."),
                                 Button(Id::SunCell, "Su&nday...")})})}),
             Edit(Id::ScriptPath, "Specify todayca.&js Remote Directory:"), OkAndCancel()})};
    return description;
}

const CDialogDescription& ClickButtonDescription() {
    using Id = ClickButtonId;
    static const CDialogDescription description{
        "Click Button Area Style",
        Column({Row({Number(Id::Width, "Button &Width ", 0, 5000),
                     Number(Id::Height, "Button &Height:", 0, 5000)}),
                Group("Button Text",
                      {Row({Edit(Id::YearLeft, "Year &Left:"), Edit(Id::YearRight, "Year &Right:")}),
                       Row({Edit(Id::MonthLeft, "&Month Left:"), Edit(Id::MonthRight, "M&onth Right:")})}),
                Colour(Id::ButtonColor, "&Button Color:"), Colour(Id::TextColor, "&Text Color:"),
                Colour(Id::AreaColor, "B&K Color:"), Button(Id::Font, "&Font..."), OkAndCancel()})};
    return description;
}

const CDialogDescription& CurrentDayDescription() {
    using Id = CurrentDayId;
    static const CDialogDescription description{
        "Current Day input Style",
        Column({Edit(Id::Text, "&Today Text:"), Number(Id::AreaSize, "Input Area &Size:", 0, 5000),
                Colour(Id::AreaColor, "Input &Area Color:"), Number(Id::BoxWidth, "Day Box &Width:", 0, 5000),
                Number(Id::BoxHeight, "Day Box &Height:", 0, 5000), Colour(Id::TextColor, "Text &Color"),
                Colour(Id::BoxColor, "&Background Color:"), Button(Id::Font, "&Font.."), OkAndCancel()})};
    return description;
}

const CDialogDescription& YearMonthDescription() {
    using Id = YearMonthId;
    static const CDialogDescription description{
        "Year/Month Input Box Style",
        Column({Number(Id::AreaSize, "Input Area &Size:", 0, 5000),
                Colour(Id::AreaColor, "Input &Area Color:"),
                Group("Input Box Style",
                      {Row({Colour(Id::BoxColor, "Box &Color:"), Colour(Id::TextColor, "&Text Color:")}),
                       Row({Number(Id::YearWidth, "&Year Box Width:", 0, 5000),
                            Number(Id::YearHeight, "Year Box &Height:", 0, 5000)}),
                       Row({Number(Id::MonthWidth, "&Month Box Width:", 0, 5000),
                            Number(Id::MonthHeight, "Month B&ox Height:", 0, 5000)})}),
                Button(Id::Font, "&Font..."), OkAndCancel()})};
    return description;
}

const CDialogDescription& TitleStyleDescription() {
    using Id = ColumnStyleId;
    static const CDialogDescription description{
        "Calender Title Style",
        Column({Number(Id::Width, "Box &Width:", 0, 5000), Number(Id::Height, "Box &Height:", 0, 5000),
                Colour(Id::CellColor, "Box &Color:"), Colour(Id::TextColor, "&Text Color:"),
                Button(Id::Font, "&Font.."), OkAndCancel()})};
    return description;
}

const CDialogDescription& DateStyleDescription() {
    using Id = ColumnStyleId;
    static const CDialogDescription description{
        "Calender Date Style",
        Column({Number(Id::Width, "Box &Width:", 0, 5000), Number(Id::Height, "Box &Height:", 0, 5000),
                Colour(Id::CellColor, "&Input Color:"), Colour(Id::TextColor, "&Text Color:"),
                Colour(Id::BoxColor, "Box &Color:"), Button(Id::Font, "&Font.."), OkAndCancel()})};
    return description;
}

} // namespace orrelix
