#include "gadgets/today_ca.h"

#include "gadgets/script_files.h"

namespace orrelix {

namespace {

constexpr CScriptFile kScript("Todayca.js", "todayca.js", "todayca.js");

constexpr CStringArray::Index kTitles = 7;
constexpr CStringArray::Index kSaturday = 5;
constexpr CStringArray::Index kSunday = 6;
constexpr int kFullRows = 5;

void WriteTitleCell(CHtmlText& html, const CTodayCaStyle& style, const CString& title) {
    html.Line(R"(<th bgcolor="#$" style="height:$; width:$; color:#$;font-family:$;font-weight:$;)"
              R"(font-size:$;font-style:$;">$</th>)",
              style.m_BoxColor, style.m_Height, style.m_Width, style.m_TextColor, style.m_FontFamily,
              style.m_FontWeight, style.m_FontSize, style.m_FontStyle, title);
}

void WriteDayCell(CHtmlText& html, const CTodayCaStyle& style, const CString& boxColor) {
    html.Line(R"(<td  bgcolor="#$"><input readonly type=text style="background-color:#$; height:$; width:$; )"
              R"(color:#$;font-family:$;font-weight:$;font-size:$;font-style:$;"></td>)",
              style.m_BoxColor, boxColor, style.m_Height, style.m_Width, style.m_TextColor,
              style.m_FontFamily, style.m_FontWeight, style.m_FontSize, style.m_FontStyle);
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
    html.Line(R"(<td style="background-color:#$;" cellpadding=0 cellspacing=0><input type=button )"
              R"(style="background-color:#$; color: #$; height:$; width:$; font-family:$; font-style:$; )"
              R"(font-weight:$; font-size:$;" value="$" onClick="$"></td>)",
              m_ButtonAreaColor, m_ButtonColor, m_ButtonTextColor, m_ButtonHeight, m_ButtonWidth,
              m_ButtonFontFamily, m_ButtonFontStyle, m_ButtonFontWeight, m_ButtonFontSize, caption, pCall);
}

void CTodayCa::WriteInputCell(CHtmlText& html, const std::string& sizesAndColor, const char* pText) const {
    html.Line(R"(<th cellpadding=0 cellspacing=0 bgcolor=#$ colspan=$ align=center><input readonly )"
              R"(style="background-color:#$; $;font-family:$; font-style:$; font-weight:$; font-size:$;" )"
              R"(type=text value="$"></th>)",
              m_InputAreaColor, m_InputAreaSize, m_InputBoxColor, sizesAndColor, m_InputFontFamily,
              m_InputFontStyle, m_InputFontWeight, m_InputFontSize, pText);
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
    html.Line(
        R"(<td  bgcolor="#$" colspan=$><input readonly type=text style="background-color:#$; )"
        R"(font-family:$; font-size:$; font-weight:$; font-style:$; height:$; width:$; color:#$;"></td>)",
        m_TodayAreaColor, m_TodayAreaSize, m_TodayBoxColor, m_TodayFontFamily, m_TodayFontSize,
        m_TodayFontWeight, m_TodayFontStyle, m_TodayBoxHeight, m_TodayBoxWidth, m_TodayTextColor);
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
document.brndfncalform.elements[43].value = "$ " +Months[Month].substring(0,3) + " " +myDate.getDate() + ", " + (myDate.getFullYear());
FillCalendar();
-->
</script>
)html",
               m_TodayText);
}

void CTodayCa::WriteCalendar(CHtmlText& html) const {
    html.Lines(R"(
<$>
<table border=1 bgcolor="#000000" cellpadding=1 cellspacing=1>
<table style="$" cellpadding=0 cellspacing=0>
<form name="brndfncalform">
<tr>
)",
               m_CalanderAlign, m_Border);
    // The year's colour stands behind its sizes, the month's in front of them.
    WriteButtonCell(html, m_YearLeftText, "IncDecYear(-1)");
    WriteInputCell(html,
                   Fill("height:$; width:$; color: #$", m_YearBoxHeight, m_YearBoxWidth, m_InputTextColor),
                   "1993");
    WriteButtonCell(html, m_YearRightText, "IncDecYear(1)");
    html.Line("</tr>");
    html.Line("<tr>");
    WriteButtonCell(html, m_MonthLeftText, "IncDecMonth(-1)");
    WriteInputCell(html,
                   Fill("color: #$; height:$; width:$", m_InputTextColor, m_MonthBoxHeight, m_MonthBoxWidth),
                   "January");
    WriteButtonCell(html, m_MonthRightText, "IncDecMonth(1)");
    html.Line("</tr>");
    WriteTitleRow(html);
    for (int i = 0; i < kFullRows; ++i)
        WriteFullRow(html);
    WriteLastRow(html);
    html.Lines(R"(
</form>
</table>
</table>
</$>
)",
               m_CalanderAlign);
    WriteScript(html);
}

CString CTodayCa::GetHTMLBody(CVignelConfig& config, short mode, short position) {
    if (position != 0 && RefersToScripts(mode))
        return ScriptInclude(DirectoryOfMode(config, mode, m_ClassWebPath), kScript);
    return MakeHtml([&](CHtmlText& html) { WriteCalendar(html); });
}

void CTodayCa::CopyResources(const CString& directory, short) {
    CopyScript(kScript, directory);
}

short CTodayCa::RegisterResources(CVignelConfig& config) {
    config.ClearResources();
    RegisterScript(config, kScript, m_ClassWebPath);
    return config.GetResourceCount();
}

} // namespace orrelix
