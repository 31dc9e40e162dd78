#include "gadgets/animate_text.h"

#include "gadgets/script_files.h"

namespace orrelix {

namespace {

constexpr CScriptFile kScript("animate.js", "animate.js", "Animate.js");

} // namespace

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
    html.Lines(R"(
<script language="JavaScript">
var brndfnanimatetextinterval=$;
var brndfnanimatelayinterval=$;
var brndfnanimatebgcolor="#$";
var brndfnanimatecolor="#$";
var brndfnscrollsize=$;
var brndfnanimatemessage= new Array();
)",
               m_PopUpInterval, m_CirculateInterval, m_FadeColor, m_TextColor, m_ScrollSize);
    for (CStringArray::Index i = 0; i < m_Messages.GetSize(); ++i)
        html.Line(R"(brndfnanimatemessage[$]='<p style="font-family:$;">$</p>';)", i, m_FontFamily,
                  m_Messages[i]);
    html.Line("</Script>");
}

void CAnimateText::WriteBox(CHtmlText& html) const {
    html.Line(R"(<div style="background-color:#$; HEIGHT: $px; LEFT: $px; POSITION: relative; )"
              R"(TOP: $px; WIDTH: $px">)",
              m_BackColor, m_Height, m_Left, m_Top, m_Width);
    html.Line(R"(<DIV id="brndfntextanim" style="font-weight:$; font-style:$; font-size:$px; )"
              R"html(POSITION: relative; TOP: $;" onclick="breakf()">)html",
              m_FontWeight, m_FontStyle, m_FontSize, m_ScrollStart);
    html.Lines(R"(
<LAYER name="brndfntextanim"></LAYER>
</div>
</div>
)");
}

CString CAnimateText::GetHTMLBody(CVignelConfig& config, short mode, short) {
    const CString directory = DirectoryOfMode(config, mode, m_ScriptPath);
    return MakeHtml([&](CHtmlText& html) {
        if (RefersToScripts(mode)) {
            if (!m_Messages.IsEmpty())
                WriteScript(html);
            // Behind the variables, which the file reads as it runs.
            html.Text("$", ScriptInclude(directory, kScript));
        }
        WriteBox(html);
    });
}

void CAnimateText::CopyResources(const CString& directory, short) {
    CopyScript(kScript, directory);
}

short CAnimateText::RegisterResources(CVignelConfig& config) {
    config.ClearResources();
    RegisterScript(config, kScript, m_ScriptPath);
    return config.GetResourceCount();
}

} // namespace orrelix
