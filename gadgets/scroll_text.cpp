#include "gadgets/scroll_text.h"

namespace orrelix {

void CScrollText::ExchangeParameters(CParameterExchange& exchange) {
    exchange.Fields("ScrollTextGeneralPara",
                    {FIELD(m_ScriptPath), FIELD(m_ClickCursor), FIELD(m_ClickColor), FIELD(m_ClickFontSize),
                     FIELD(m_ClickFontWeight), FIELD(m_ClickDecoration), FIELD(m_OutCursor),
                     FIELD(m_OutColor), FIELD(m_OutFontSize), FIELD(m_OutFontStyle), FIELD(m_OutFontWeight),
                     FIELD(m_OutDecoration), FIELD(m_OverCursor), FIELD(m_OverColor), FIELD(m_OverFontSize),
                     FIELD(m_OverFontStyle), FIELD(m_OverFontWeight), FIELD(m_OverDecoration)});
    exchange.Fields("ScrollTextPara",
                    {FIELD(m_LayerSpeed), FIELD(m_DelayTime), FIELD(m_LayerColor), FIELD(m_ScrollHeight),
                     FIELD(m_ScrollWidth), FIELD(m_TableAlign), FIELD(m_BorderWidth), FIELD(m_BorderStyle),
                     FIELD(m_TableWidth), FIELD(m_BorderColor), FIELD(m_Texts)});
    exchange.Fields("ScrollFontFamPara",
                    {Masked(FIELD(m_ClickFont)), Masked(FIELD(m_OutFont)), Masked(FIELD(m_OverFont))});
    exchange.MaskedItems("ScrollTextStr", FIELD(m_Texts));
    exchange.MaskedItems("ScrollTextLink", FIELD(m_Links));
    exchange.Unstored(FIELD(m_ClickFontStyle));
}

// The rule of the link under the mouse alone has a blank in front of "cursor".
void CScrollText::WriteStyle(CHtmlText& html) const {
    html.Line(R"(<style type="text/css">)");
    html.Line(R"(.brnover {font-family:")", m_OverFont, R"("; font-size: )", m_OverFontSize,
              "; font-style:", m_OverFontStyle, "; font-weight: ", m_OverFontWeight, "; color:#", m_OverColor,
              "; text-decoration:", m_OverDecoration, "; cursor: ", m_OverCursor, "; }");
    html.Line(R"(.brnout {font-family:")", m_OutFont, R"("; font-size: )", m_OutFontSize,
              "; font-style:", m_OutFontStyle, "; font-weight: ", m_OutFontWeight, "; color:#", m_OutColor,
              "; text-decoration:", m_OutDecoration, ";cursor: ", m_OutCursor, "; }");
    html.Line(R"(.brnclick {font-family:")", m_ClickFont, R"("; font-size: )", m_ClickFontSize,
              "; font-style:", m_ClickFontStyle, "; font-weight: ", m_ClickFontWeight, "; color:#",
              m_ClickColor, "; text-decoration:", m_ClickDecoration, ";cursor: ", m_ClickCursor, "; }");
    html.Line("</style>");
}

void CScrollText::WriteVariables(CHtmlText& html) const {
    html.Line("var brndfnscrollerwidth=", m_ScrollWidth);
    html.Line("var brndfnscrollerheight=", m_ScrollHeight);
    html.Line("var brndfnscrollerbgcolor='#", m_LayerColor, "'");
    html.Line("var brndfnspeednormal=", m_LayerSpeed);
    html.Line("var brndfnspeedmore=", m_DelayTime);
    html.Line("var brndfnmessages=new Array()");
    for (CStringArray::Index i = 0; i < m_Texts.GetSize(); ++i) {
        html.Line("brndfnmessages[", i, R"(]="<a href=')", m_Links[i],
                  R"(' class=brnout onmouseover=\"this.className ='brnover'\")",
                  R"( onmouseout=\"this.className ='brnout'\" onclick=\"this.className ='brnclick'\">)",
                  m_Texts[i], R"(</a>")");
    }
    html.Lines(R"(
if (brndfnmessages.length>1)
brndfni=2
else
brndfni=0
window.onload=startscroll;
)");
}

namespace {

// The box twice, for browsers with document.layers and for those with document.all. The first line of the
// first layer ends in a blank.
constexpr char kLayers[] = R"html(
<ilayer id="brndfnscrollmain" width=&{brndfnscrollerwidth}; height=&{brndfnscrollerheight}; bgcolor=&{brndfnscrollerbgcolor};>
<layer id="first" left=0 top=1 width=&{brndfnscrollerwidth};>)html"
                           " \n"
                           R"html(<script language="JavaScript1.2">
if (document.layers)
document.write(brndfnmessages[0])
</script>
</layer>
<layer id="second" left=0 top=0 width=&{brndfnscrollerwidth}; visibility=hide>
<script language="JavaScript1.2">
if (document.layers)
document.write(brndfnmessages[1])
</script>
</layer>
</ilayer>
)html";

constexpr char kSpan[] = R"html(
<script language="JavaScript1.2">
if (document.all){
document.writeln('<span id="brndfnscrollmain2" style="position:relative;width:'+brndfnscrollerwidth+';height:'+brndfnscrollerheight+';overflow:hiden;background-color:'+brndfnscrollerbgcolor+'">')
document.writeln('<div style="position:absolute;width:'+brndfnscrollerwidth+';height:'+brndfnscrollerheight+';clip:rect(0 '+brndfnscrollerwidth+' '+brndfnscrollerheight+' 0);left:0;top:0">')
document.writeln('<div id="first2" style="position:absolute;width:'+brndfnscrollerwidth+';left:0;top:1;">')
document.write(brndfnmessages[0])
document.writeln('</div>')
document.writeln('<div id="second2" style="position:absolute;width:'+brndfnscrollerwidth+';left:0;top:0">')
if (brndfnmessages.length>1)
document.write(brndfnmessages[1])
else
document.write(brndfnmessages[0])
document.writeln('</div>')
document.writeln('</div>')
document.writeln('</span>')
}
</script>
)html";

} // namespace

CString CScrollText::GetHTMLBody(CVignelConfig& config, short mode, short position) {
    if (position != 0 && RefersToScripts(mode))
        return ScriptInclude(DirectoryOfMode(config, mode, m_ScriptPath), "scrolltext.js");
    GrowTo(m_Texts.GetSize(), m_Links);
    return MakeHtml([&](CHtmlText& html) {
        html.Line(R"(<table width=")", m_TableWidth, R"(" align=")", m_TableAlign, R"(" style="border:)",
                  m_BorderWidth, " ", m_BorderStyle, " #", m_BorderColor, R"(;">)");
        WriteStyle(html);
        html.Line("<tr>");
        html.Line("<td>");
        html.Line(R"(<script language="JavaScript1.2">)");
        WriteVariables(html);
        html.Line("</script>");
        html.Lines(kLayers);
        html.Lines(kSpan);
        html.Line("</td>");
        html.Line("</tr>");
        html.Line("</table>");
    });
}

void CScrollText::CopyResources(const CString& directory, short) {
    CopyScript("scrolltext.js", "scrolltext.js", directory);
}

short CScrollText::RegisterResources(CVignelConfig& config) {
    config.ClearResources();
    RegisterScript(config, "scrolltext.js", m_ScriptPath);
    return config.GetResourceCount();
}

} // namespace orrelix
