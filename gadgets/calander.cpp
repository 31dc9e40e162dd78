#include "gadgets/calander.h"

#include "gadgets/script_files.h"

namespace orrelix {

namespace {

constexpr CScriptFile kScript("Calander2.js", "calander2.js");

} // namespace

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
    html.Lines(R"(
<table align="$">
<tr>
<td>
<script language="JavaScript">
)",
               m_CalanderAlign);
    html.Line(R"(brndfncalenstyletext="style='font-size: $pt; font-family: $; color: #$; font-weight: $; )"
              R"(font-style: $; text-decoration: none'; ")",
              m_GreetFontSize, m_GreetFontFamily, m_GreetColor, m_GreetFontWeight, m_GreetFontStyle);
    html.Line(R"(brndfncalenstyletextbutton="style='font-size: $pt; font-family: $; color: #$; )"
              R"(font-weight: $; font-style: $; text-decoration: none; height: $px; width: $px'; ")",
              m_TimeFontSize, m_TimeFontFamily, m_TimeColor, m_TimeFontWeight, m_TimeFontStyle, m_BoxHeight,
              m_BoxWidth);
    html.Line(R"(brndfntitlestyle="style='font-size: $pt; font-family: $; color: #$; font-weight: $; )"
              R"(font-style: $; text-decoration: none; text-align:$;'; ")",
              m_TitleFontSize, m_TitleFontFamily, m_TitleColor, m_TitleFontWeight, m_TitleFontStyle,
              m_TitleAlign);
    html.Line(R"(brndfncalenstylecalander="style='border: $; font-size: $pt; font-family: $; color: #$; )"
              R"(font-weight: $; font-style: $; text-decoration: none; text-align:$;'; ")",
              m_CalanderBorder, m_DateFontSize, m_DateFontFamily, m_DateColor, m_DateFontWeight,
              m_DateFontStyle, m_DateAlign);
    html.Lines(R"html(
brndfncalenstyletextborder="style='border:$;'"
brndfncalengreeting("$");
document.write("<br>");
brndfncalencalendar("#$","#$");
document.write("");
</script>
</td>
</tr>
</table>
)html",
               m_CellBorder, m_GreetText, m_BackgroundColor, m_CurrentDayColor);
}

CString CCalander::GetHTMLBody(CVignelConfig& config, short mode, short position) {
    if (position != 0 && RefersToScripts(mode))
        return ScriptInclude(DirectoryOfMode(config, mode, m_ClassWebPath), kScript);
    return MakeHtml([&](CHtmlText& html) { WriteCalendar(html); });
}

void CCalander::CopyResources(const CString& directory, short) {
    CopyScript(kScript, directory);
}

short CCalander::RegisterResources(CVignelConfig& config) {
    config.ClearResources();
    RegisterScript(config, kScript, m_ClassWebPath);
    return config.GetResourceCount();
}

} // namespace orrelix
