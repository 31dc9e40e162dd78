// Calender: a greeting with a clock, and this month. The page's script, Calander2.js, draws them in the
// styles that the text sets.
#pragma once

#include "core/dhtml_gadget.h"

namespace orrelix {

class CCalander : public CGadget<CCalander> {
public:
    CString GetHTMLBody(CVignelConfig& config, short mode, short position) override;
    void CopyResources(const CString& directory, short force) override;
    bool ReadParameters(CVignelConfig& config, const CString&) override { return ReadFields(config); }
    short RegisterResources(CVignelConfig& config) override;
    void WriteParameters(CVignelConfig& config) override { WriteFields(config); }
    short GetHTMLSegmentNumber() override { return 2; }
    void ExchangeParameters(CParameterExchange& exchange) override;

    // Colours are six hexadecimal digits without "#", font sizes points, other lengths pixels.
    CString m_CalanderAlign = "center"; // where the calendar stands in the page
    CString m_ClassWebPath;             // remote directory of Calander2.js, empty or ending in "/"
    CString m_GreetFontStyle;
    CString m_GreetFontWeight;
    CString m_GreetColor;
    CString m_GreetFontSize = "9";
    CString m_GreetFontFamily;
    CString m_TitleFontStyle; // the line with the month's name
    CString m_TitleFontWeight;
    CString m_TitleColor;
    CString m_TitleFontSize = "9";
    CString m_TitleFontFamily;
    CString m_TimeFontStyle; // the clock
    CString m_TimeFontWeight;
    CString m_TimeColor;
    CString m_TimeFontSize = "9";
    CString m_TimeFontFamily;
    CString m_BoxHeight = "17"; // the box around the clock
    CString m_BoxWidth = "70";
    CString m_DateFontStyle;
    CString m_DateFontWeight;
    CString m_DateColor;
    CString m_DateFontSize = "9";
    CString m_DateFontFamily;
    CString m_TitleAlign = "left";
    CString m_DateAlign = "left";
    CString m_BackgroundColor = "ffffff";
    CString m_CurrentDayColor = "ff0000";
    CString m_GreetText = "Hello!";
    // The text uses the two whole borders; their parts are there for the dialog, which forms the whole ones.
    CString m_CellBorder;
    CString m_CalanderBorder;
    CString m_CellBorderWidth;
    CString m_CellBorderColor;
    CString m_CellBorderStyle;
    CString m_CalanderBorderColor;
    CString m_CalanderBorderWidth;
    CString m_CalanderBorderStyle;

private:
    void WriteCalendar(CHtmlText& html) const;
};

} // namespace orrelix
