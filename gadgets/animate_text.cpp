#include "gadgets/animate_text.h"

namespace orrelix {

void CAnimateText::ExchangeParameters(CParameterExchange& exchange) {
    exchange.Fields("AnimateTextPara",
                    {FIELD(m_ScrollSize), FIELD(m_FadeColor), FIELD(m_TextColor), FIELD(m_Height),
                     FIELD(m_Left), FIELD(m_Top), FIELD(m_Width), FIELD(m_PopUpInterval),
                     FIELD(m_CirculateInterval), FIELD(m_ScriptPath), FIELD(m_Messages), FIELD(m_BackColor),
                     FIELD(m_ScrollStart)});
    exchange.Fields("AnimateTextFontPara", {Masked(FIELD(m_FontFamily)), FIELD(m_FontWeight),
                                            FIELD(m_FontStyle), FIELD(m_FontSize)});
    exchange.MaskedItems("AnimateTextStr", FIELD(m_Messages));
}

void CAnimateText::WriteScript(CHtmlText& html) const {
    html.Line(R"(<script language="JavaScript">)");
    html.Line("var brndfnanimatetextinterval=", m_PopUpInterval, ";");
    html.Line("var brndfnanimatelayinterval=", m_CirculateInterval, ";");
    html.Line(R"(var brndfnanimatebgcolor="#)", m_FadeColor, R"(";)");
    html.Line(R"(var brndfnanimatecolor="#)", m_TextColor, R"(";)");
    html.Line("var brndfnscrollsize=", m_ScrollSize, ";");
    html.Line("var brndfnanimatemessage= new Array();");
    for (CStringArray::Index i = 0; i < m_Messages.GetSize(); ++i) {
        html.Line("brndfnanimatemessage[", i, R"(]='<p style="font-family:)", m_FontFamily, R"(;">)",
                  m_Messages[i], "</p>';");
    }
    html.Line("</Script>");
}

void CAnimateText::WriteBox(CHtmlText& html) const {
    html.Line(R"(<div style="background-color:#)", m_BackColor, "; HEIGHT: ", m_Height, "px; LEFT: ", m_Left,
              "px; POSITION: relative; TOP: ", m_Top, "px; WIDTH: ", m_Width, R"(px">)");
    html.Line(R"(<DIV id="brndfntextanim" style="font-weight:)", m_FontWeight, "; font-style:", m_FontStyle,
              "; font-size:", m_FontSize, "px; POSITION: relative; TOP: ", m_ScrollStart,
              R"html(;" onclick="breakf()">)html");
    html.Line(R"(<LAYER name="brndfntextanim"></LAYER>)");
    html.Line("</div>");
    html.Line("</div>");
}

CString CAnimateText::GetHTMLBody(CVignelConfig& config, short mode, short) {
    const CString directory = DirectoryOfMode(config, mode, m_ScriptPath);
    return MakeHtml([&](CHtmlText& html) {
        if (RefersToScripts(mode)) {
            if (!m_Messages.IsEmpty())
                WriteScript(html);
            // Behind the variables, which the file reads as it runs.
            html.Text(ScriptInclude(directory, "animate.js"));
        }
        WriteBox(html);
    });
}

void CAnimateText::CopyResources(const CString& directory, short) {
    CopyScript("animate.js", "animate.js", directory);
}

short CAnimateText::RegisterResources(CVignelConfig& config) {
    config.ClearResources();
    RegisterScript(config, "Animate.js", m_ScriptPath);
    return config.GetResourceCount();
}

} // namespace orrelix
