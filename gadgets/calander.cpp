#include "gadgets/calander.h"

namespace orrelix {

void CCalander::ExchangeParameters(CParameterExchange& exchange) {
    exchange.Fields(
        "CalanderPara",
        {FIELD(m_CalanderAlign),   FIELD(m_BackgroundColor), FIELD(m_CurrentDayColor), FIELD(m_DateColor),
         FIELD(m_DateFontSize),    FIELD(m_DateFontWeight),  FIELD(m_TimeColor),       FIELD(m_TimeFontSize),
         FIELD(m_TimeFontWeight),  FIELD(m_BoxHeight),       FIELD(m_BoxWidth),        FIELD(m_GreetColor),
         FIELD(m_GreetFontSize),   FIELD(m_GreetFontWeight), FIELD(m_TitleColor),      FIELD(m_TitleFontSize),
         FIELD(m_TitleFontWeight), FIELD(m_TitleFontStyle),  FIELD(m_GreetFontStyle),  FIELD(m_TimeFontStyle),
         FIELD(m_DateFontStyle),   FIELD(m_TitleAlign),      FIELD(m_DateAlign)});
    exchange.Fields("CalanderMorePara",
                    {FIELD(m_CellBorder), FIELD(m_CalanderBorder), FIELD(m_CellBorderWidth),
                     FIELD(m_CellBorderColor), FIELD(m_CellBorderStyle), FIELD(m_CalanderBorderColor),
                     FIELD(m_CalanderBorderWidth), FIELD(m_CalanderBorderStyle)});
    exchange.Text("CanTeFont", FIELD(m_GreetFontFamily));
    exchange.Text("CanTiFont", FIELD(m_TitleFontFamily));
    exchange.Text("CanInFont", FIELD(m_TimeFontFamily));
    exchange.Text("CanCaFont", FIELD(m_DateFontFamily));
    exchange.Text("CalanderText", FIELD(m_GreetText));
    exchange.Text("ClassWebPath", FIELD(m_ClassWebPath));
}

void CCalander::WriteCalendar(CHtmlText& html) const {
    html.Line(R"(<table align=")", m_CalanderAlign, R"(">)");
    html.Line("<tr>");
    html.Line("<td>");
    html.Line(R"(<script language="JavaScript">)");
    html.Line(R"(brndfncalenstyletext="style='font-size: )", m_GreetFontSize,
              "pt; font-family: ", m_GreetFontFamily, "; color: #", m_GreetColor,
              "; font-weight: ", m_GreetFontWeight, "; font-style: ", m_GreetFontStyle,
              R"(; text-decoration: none'; ")");
    html.Line(R"(brndfncalenstyletextbutton="style='font-size: )", m_TimeFontSize,
              "pt; font-family: ", m_TimeFontFamily, "; color: #", m_TimeColor,
              "; font-weight: ", m_TimeFontWeight, "; font-style: ", m_TimeFontStyle,
              "; text-decoration: none; height: ", m_BoxHeight, "px; width: ", m_BoxWidth, R"(px'; ")");
    html.Line(R"(brndfntitlestyle="style='font-size: )", m_TitleFontSize,
              "pt; font-family: ", m_TitleFontFamily, "; color: #", m_TitleColor,
              "; font-weight: ", m_TitleFontWeight, "; font-style: ", m_TitleFontStyle,
              "; text-decoration: none; text-align:", m_TitleAlign, R"(;'; ")");
    html.Line(R"(brndfncalenstylecalander="style='border: )", m_CalanderBorder,
              "; font-size: ", m_DateFontSize, "pt; font-family: ", m_DateFontFamily, "; color: #",
              m_DateColor, "; font-weight: ", m_DateFontWeight, "; font-style: ", m_DateFontStyle,
              "; text-decoration: none; text-align:", m_DateAlign, R"(;'; ")");
    html.Line(R"(brndfncalenstyletextborder="style='border:)", m_CellBorder, R"(;'")");
    html.Line(R"html(brndfncalengreeting(")html", m_GreetText, R"html(");)html");
    html.Line(R"html(document.write("<br>");)html");
    html.Line(R"html(brndfncalencalendar("#)html", m_BackgroundColor, R"(","#)", m_CurrentDayColor,
              R"html(");)html");
    html.Line(R"html(document.write("");)html");
    html.Line("</script>");
    html.Line("</td>");
    html.Line("</tr>");
    html.Line("</table>");
}

CString CCalander::GetHTMLBody(CVignelConfig& config, short mode, short position) {
    if (position != 0 && RefersToScripts(mode))
        return ScriptInclude(DirectoryOfMode(config, mode, m_ClassWebPath), "calander2.js");
    return MakeHtml([&](CHtmlText& html) { WriteCalendar(html); });
}

void CCalander::CopyResources(const CString& directory, short) {
    CopyScript("Calander2.js", "calander2.js", directory);
}

short CCalander::RegisterResources(CVignelConfig& config) {
    config.ClearResources();
    RegisterScript(config, "Calander2.js", m_ClassWebPath);
    return config.GetResourceCount();
}

} // namespace orrelix
