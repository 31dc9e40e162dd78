#include "gadgets/today_ca.h"

namespace orrelix {

namespace {

constexpr CStringArray::Index kTitles = 7;
constexpr CStringArray::Index kSaturday = 5;
constexpr CStringArray::Index kSunday = 6;
constexpr int kFullRows = 5;

void WriteTitleCell(CHtmlText& html, const CTodayCaStyle& style, const CString& title) {
    html.Line(R"(<th bgcolor="#)", style.m_BoxColor, R"(" style="height:)", style.m_Height,
              "; width:", style.m_Width, "; color:#", style.m_TextColor, ";font-family:", style.m_FontFamily,
              ";font-weight:", style.m_FontWeight, ";font-size:", style.m_FontSize,
              ";font-style:", style.m_FontStyle, R"(;">)", title, "</th>");
}

void WriteDayCell(CHtmlText& html, const CTodayCaStyle& style, const CString& boxColor) {
    html.Line(R"(<td  bgcolor="#)", style.m_BoxColor,
              R"("><input readonly type=text style="background-color:#)", boxColor,
              "; height:", style.m_Height, "; width:", style.m_Width, "; color:#", style.m_TextColor,
              ";font-family:", style.m_FontFamily, ";font-weight:", style.m_FontWeight,
              ";font-size:", style.m_FontSize, ";font-style:", style.m_FontStyle, R"(;"></td>)");
}

} // namespace

#define STYLE(style)                                                                                         \
    {                                                                                                        \
        FIELD(style.m_BoxColor), Masked(FIELD(style.m_FontFamily)), FIELD(style.m_FontSize),                 \
            FIELD(style.m_FontStyle), FIELD(style.m_FontWeight), FIELD(style.m_Height),                      \
            FIELD(style.m_TextColor), FIELD(style.m_Width)                                                   \
    }

void CTodayCa::ExchangeParameters(CParameterExchange& exchange) {
    exchange.Fields("TodaycaButtonPara",
                    {FIELD(m_ButtonColor), Masked(FIELD(m_ButtonFontFamily)), FIELD(m_ButtonFontSize),
                     FIELD(m_ButtonFontStyle), FIELD(m_ButtonFontWeight), FIELD(m_ButtonHeight),
                     FIELD(m_YearLeftText), FIELD(m_MonthLeftText), FIELD(m_MonthRightText),
                     FIELD(m_YearRightText), FIELD(m_ButtonTextColor), FIELD(m_ButtonWidth),
                     FIELD(m_ButtonAreaColor)});
    exchange.Fields("TodaycaDayPara", STYLE(m_DayTitle));
    exchange.Fields("TodaycaInputPara",
                    {FIELD(m_InputAreaColor), FIELD(m_InputAreaSize), FIELD(m_InputBoxColor),
                     Masked(FIELD(m_InputFontFamily)), FIELD(m_InputFontSize), FIELD(m_InputFontStyle),
                     FIELD(m_InputFontWeight), FIELD(m_InputTextColor), FIELD(m_YearBoxHeight),
                     FIELD(m_YearBoxWidth), FIELD(m_MonthBoxHeight), FIELD(m_MonthBoxWidth)});
    exchange.Fields("TodaycaNumDayPara", STYLE(m_DayCell));
    exchange.Fields("TodaycaNumWeekPara", STYLE(m_SunCell));
    exchange.Fields("TodaycaNumWeekDayPara", STYLE(m_SatCell));
    exchange.Fields("TodaycaWeekDayPara", STYLE(m_SatTitle));
    exchange.Fields("TodaycaWeekPara", STYLE(m_SunTitle));
    exchange.Fields("TodaycaGeneralPara", {FIELD(m_CalanderAlign), FIELD(m_ClassWebPath), FIELD(m_Border),
                                           FIELD(m_BorderColor), FIELD(m_BorderStyle), FIELD(m_BorderWidth)});
    exchange.Fields("TodaycaTextPara", {FIELD(m_TodayText)});
    exchange.Fields("TodaycaGreetPara",
                    {FIELD(m_TodayTextColor), Masked(FIELD(m_TodayFontFamily)), FIELD(m_TodayFontSize),
                     FIELD(m_TodayFontStyle), FIELD(m_TodayFontWeight), FIELD(m_TodayBoxHeight),
                     FIELD(m_TodayBoxWidth), FIELD(m_TodayAreaColor), FIELD(m_TodayAreaSize)});
    exchange.Fields("TodaycaColorMorePara", {FIELD(m_TodayBoxColor), FIELD(m_SundayBoxColor),
                                             FIELD(m_SaturdayBoxColor), FIELD(m_WeekDayBoxColor)});
    exchange.FixedItems("TodaycaTitlePara", Masked(FIELD(m_Titles)), kTitles);
}

#undef STYLE

void CTodayCa::WriteButtonCell(CHtmlText& html, const CString& caption, const char* pCall) const {
    html.Line(R"(<td style="background-color:#)", m_ButtonAreaColor,
              R"(;" cellpadding=0 cellspacing=0><input type=button style="background-color:#)", m_ButtonColor,
              "; color: #", m_ButtonTextColor, "; height:", m_ButtonHeight, "; width:", m_ButtonWidth,
              "; font-family:", m_ButtonFontFamily, "; font-style:", m_ButtonFontStyle,
              "; font-weight:", m_ButtonFontWeight, "; font-size:", m_ButtonFontSize, R"(;" value=")",
              caption, R"(" onClick=")", pCall, R"("></td>)");
}

// The year's colour stands behind its sizes, the month's in front of them.
void CTodayCa::WriteYearCell(CHtmlText& html) const {
    BeginInputCell(html);
    html.Text("; height:", m_YearBoxHeight, "; width:", m_YearBoxWidth, "; color: #", m_InputTextColor);
    EndInputCell(html, "1993");
}

void CTodayCa::WriteMonthCell(CHtmlText& html) const {
    BeginInputCell(html);
    html.Text("; color: #", m_InputTextColor, "; height:", m_MonthBoxHeight, "; width:", m_MonthBoxWidth);
    EndInputCell(html, "January");
}

void CTodayCa::BeginInputCell(CHtmlText& html) const {
    html.Text("<th cellpadding=0 cellspacing=0 bgcolor=#", m_InputAreaColor, " colspan=", m_InputAreaSize,
              R"( align=center><input readonly style="background-color:#)", m_InputBoxColor);
}

void CTodayCa::EndInputCell(CHtmlText& html, const char* pText) const {
    html.Line(";font-family:", m_InputFontFamily, "; font-style:", m_InputFontStyle,
              "; font-weight:", m_InputFontWeight, "; font-size:", m_InputFontSize, R"(;" type=text value=")",
              pText, R"("></th>)");
}

void CTodayCa::WriteTitleRow(CHtmlText& html) const {
    const auto title = [&](CStringArray::Index i) {
        return i < m_Titles.GetSize() ? m_Titles[i] : CString();
    };
    html.Line("<tr>");
    WriteTitleCell(html, m_SunTitle, title(kSunday));
    for (CStringArray::Index i = 0; i < kSaturday; ++i)
        WriteTitleCell(html, m_DayTitle, title(i));
    WriteTitleCell(html, m_SatTitle, title(kSaturday));
    html.Line("</tr>");
}

void CTodayCa::WriteFullRow(CHtmlText& html) const {
    html.Line("<tr>");
    WriteDayCell(html, m_SunCell, m_SundayBoxColor);
    for (int i = 0; i < kSaturday; ++i)
        WriteDayCell(html, m_DayCell, m_WeekDayBoxColor);
    WriteDayCell(html, m_SatCell, m_SaturdayBoxColor);
    html.Line("</tr>");
}

// A month needs no more than two boxes here; today's date takes the rest.
void CTodayCa::WriteLastRow(CHtmlText& html) const {
    html.Line("<tr>");
    WriteDayCell(html, m_SunCell, m_SundayBoxColor);
    WriteDayCell(html, m_DayCell, m_WeekDayBoxColor);
    html.Line(R"(<td  bgcolor="#)", m_TodayAreaColor, R"(" colspan=)", m_TodayAreaSize,
              R"(><input readonly type=text style="background-color:#)", m_TodayBoxColor,
              "; font-family:", m_TodayFontFamily, "; font-size:", m_TodayFontSize,
              "; font-weight:", m_TodayFontWeight, "; font-style:", m_TodayFontStyle,
              "; height:", m_TodayBoxHeight, "; width:", m_TodayBoxWidth, "; color:#", m_TodayTextColor,
              R"(;"></td>)");
    html.Line("</tr>");
}

// Fills the year, the month and today's date, and has the days filled.
void CTodayCa::WriteScript(CHtmlText& html) const {
    html.Lines(R"html(
<script language="JavaScript">
<!-- 
myDate = new Date();
var Month = parseInt(myDate.getMonth());
document.brndfncalform.elements[1].value =myDate.getFullYear();
document.brndfncalform.elements[4].value = PadSpaces(Months[Month]);
)html");
    html.Line(
        R"(document.brndfncalform.elements[43].value = ")", m_TodayText,
        R"html( " +Months[Month].substring(0,3) + " " +myDate.getDate() + ", " + (myDate.getFullYear());)html");
    html.Lines(R"html(
FillCalendar();
-->
</script>
)html");
}

void CTodayCa::WriteCalendar(CHtmlText& html) const {
    html.Line("<", m_CalanderAlign, ">");
    html.Line(R"(<table border=1 bgcolor="#000000" cellpadding=1 cellspacing=1>)");
    html.Line(R"(<table style=")", m_Border, R"(" cellpadding=0 cellspacing=0>)");
    html.Line(R"(<form name="brndfncalform">)");
    html.Line("<tr>");
    WriteButtonCell(html, m_YearLeftText, "IncDecYear(-1)");
    WriteYearCell(html);
    WriteButtonCell(html, m_YearRightText, "IncDecYear(1)");
    html.Line("</tr>");
    html.Line("<tr>");
    WriteButtonCell(html, m_MonthLeftText, "IncDecMonth(-1)");
    WriteMonthCell(html);
    WriteButtonCell(html, m_MonthRightText, "IncDecMonth(1)");
    html.Line("</tr>");
    WriteTitleRow(html);
    for (int i = 0; i < kFullRows; ++i)
        WriteFullRow(html);
    WriteLastRow(html);
    html.Line("</form>");
    html.Line("</table>");
    html.Line("</table>");
    html.Line("</", m_CalanderAlign, ">");
    WriteScript(html);
}

CString CTodayCa::GetHTMLBody(CVignelConfig& config, short mode, short position) {
    if (position != 0 && RefersToScripts(mode))
        return ScriptInclude(DirectoryOfMode(config, mode, m_ClassWebPath), "todayca.js");
    return MakeHtml([&](CHtmlText& html) { WriteCalendar(html); });
}

void CTodayCa::CopyResources(const CString& directory, short) {
    CopyScript("Todayca.js", "todayca.js", directory);
}

short CTodayCa::RegisterResources(CVignelConfig& config) {
    config.ClearResources();
    RegisterScript(config, "todayca.js", m_ClassWebPath);
    return config.GetResourceCount();
}

} // namespace orrelix
