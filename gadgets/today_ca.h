// Cool Calender: a form of boxes that shows any month of any year. The text holds the whole form; the page's
// script, Todayca.js, fills the boxes, which it knows by their position in the form.
#pragma once

#include "core/dhtml_gadget.h"

namespace orrelix {

// The style of one kind of column, in the row of titles or in the rows of days.
struct CTodayCaStyle {
    CString m_BoxColor; // background of the cell
    CString m_Height = "20";
    CString m_Width = "20";
    CString m_TextColor;
    CString m_FontFamily = "Arial";
    CString m_FontStyle = "normal";
    CString m_FontSize = "15";
    CString m_FontWeight = "normal";
};

class CTodayCa : public CGadget<CTodayCa> {
public:
    CString GetHTMLBody(CVignelConfig& config, short mode, short position) override;
    void CopyResources(const CString& directory, short force) override;
    bool ReadParameters(CVignelConfig& config, const CString&) override { return ReadFields(config); }
    short RegisterResources(CVignelConfig& config) override;
    void WriteParameters(CVignelConfig& config) override { WriteFields(config); }
    short GetHTMLSegmentNumber() override { return 2; }
    void ExchangeParameters(CParameterExchange& exchange) override;

    // Colours are six hexadecimal digits without "#"; sizes are pixels without a unit.
    CStringArray m_Titles = {"M", "T", "W", "T", "F", "S", "S"}; // Monday to Sunday, always 7
    CString m_TodayBoxColor = "afeeee";
    CString m_WeekDayBoxColor = "afeeee"; // of the boxes within the day cells
    CString m_SaturdayBoxColor = "ffd700";
    CString m_SundayBoxColor = "32cd32";
    CString m_Border = "0 none #ffffff"; // formed by the dialog from the three parts that follow
    CString m_BorderColor = "ffffff";
    CString m_BorderStyle = "none";
    CString m_BorderWidth = "0";
    CString m_ButtonAreaColor = "000000"; // the cell around a button
    CString m_ButtonColor = "98fb98";
    CString m_ButtonTextColor = "ffff00";
    CString m_ButtonHeight = "20";
    CString m_ButtonWidth = "20";
    CString m_ButtonFontFamily;
    CString m_ButtonFontStyle;
    CString m_ButtonFontWeight;
    CString m_ButtonFontSize = "15";
    CString m_YearLeftText = "<<"; // captions
    CString m_YearRightText = ">>";
    CString m_MonthLeftText = "<<";
    CString m_MonthRightText = ">>";
    CString m_YearBoxHeight = "20";
    CString m_YearBoxWidth = "40";
    CString m_MonthBoxHeight = "20";
    CString m_MonthBoxWidth = "80";
    CString m_InputAreaColor = "ffff00"; // the cell around the year's and the month's box
    CString m_InputAreaSize = "5";       // and how many columns it spans
    CString m_InputBoxColor = "ffff00";
    CString m_InputTextColor = "800080";
    CString m_InputFontFamily = "Arial";
    CString m_InputFontStyle = "normal";
    CString m_InputFontSize = "15";
    CString m_InputFontWeight = "normal";
    CTodayCaStyle m_SunTitle{.m_BoxColor = "ffff00", .m_TextColor = "ffad5b"};
    CTodayCaStyle m_DayTitle{.m_BoxColor = "a52a00", .m_TextColor = "ffd700"}; // Monday to Friday
    CTodayCaStyle m_SatTitle{.m_BoxColor = "ffff00", .m_TextColor = "a52a00"};
    CTodayCaStyle m_SunCell{.m_BoxColor = "ffff00", .m_TextColor = "68838b"};
    CTodayCaStyle m_DayCell{.m_BoxColor = "afeeee", .m_TextColor = "ffff00"};
    CTodayCaStyle m_SatCell{.m_BoxColor = "40e0d0", .m_TextColor = "d2b48c"};
    CString m_CalanderAlign = "center"; // the name of the tag around the calendar
    CString m_TodayText = "Hello";      // what stands in front of today's date
    CString m_ClassWebPath;             // remote directory of Todayca.js, empty or ending in "/"
    CString m_TodayAreaSize = "5";      // how many columns the cell of today's date spans
    CString m_TodayAreaColor = "ffff00";
    CString m_TodayFontFamily = "Arial";
    CString m_TodayFontWeight = "normal";
    CString m_TodayFontStyle = "normal";
    CString m_TodayFontSize = "15";
    CString m_TodayBoxWidth = "100";
    CString m_TodayBoxHeight = "20";
    CString m_TodayTextColor = "00ff00";

private:
    void WriteCalendar(CHtmlText& html) const;
    void WriteButtonCell(CHtmlText& html, const CString& caption, const char* pCall) const;
    void WriteInputCell(CHtmlText& html, const std::string& sizesAndColor, const char* pText) const;
    void WriteTitleRow(CHtmlText& html) const;
    void WriteFullRow(CHtmlText& html) const;
    void WriteLastRow(CHtmlText& html) const;
    void WriteScript(CHtmlText& html) const;
};

} // namespace orrelix
