#include "gadgets/scroll_text.h"

#include "gadgets/script_files.h"

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
    html.Line(R"(.brnover {font-family:"$"; font-size: $; font-style:$; font-weight: $; color:#$; )"
              "text-decoration:$; cursor: $; }",
              m_OverFont, m_OverFontSize, m_OverFontStyle, m_OverFontWeight, m_OverColor, m_OverDecoration,
              m_OverCursor);
    html.Line(R"(.brnout {font-family:"$"; font-size: $; font-style:$; font-weight: $; color:#$; )"
              "text-decoration:$;cursor: $; }",
              m_OutFont, m_OutFontSize, m_OutFontStyle, m_OutFontWeight, m_OutColor, m_OutDecoration,
              m_OutCursor);
    html.Line(R"(.brnclick {font-family:"$"; font-size: $; font-style:$; font-weight: $; color:#$; )"
              "text-decoration:$;cursor: $; }",
              m_ClickFont, m_ClickFontSize, m_ClickFontStyle, m_ClickFontWeight, m_ClickColor,
              m_ClickDecoration, m_ClickCursor);
    html.Line("</style>");
}

void CScrollText::WriteVariables(CHtmlText& html) const {
    html.Lines(R"(
var brndfnscrollerwidth=$
var brndfnscrollerheight=$
var brndfnscrollerbgcolor='#$'
var brndfnspeednormal=$
var brndfnspeedmore=$
var brndfnmessages=new Array()
)",
               m_ScrollWidth, m_ScrollHeight, m_LayerColor, m_LayerSpeed, m_DelayTime);
    for (CStringArray::Index i = 0; i < m_Texts.GetSize(); ++i)
        html.Line(R"(brndfnmessages[$]="<a href='$' class=brnout onmouseover=\"this.className ='brnover'\")"
                  R"( onmouseout=\"this.className ='brnout'\" onclick=\"this.className ='brnclick'\">$</a>")",
                  i, m_Links[i], m_Texts[i]);
    html.Lines(R"(
if (brndfnmessages.length>1)
brndfni=2
else
brndfni=0
window.onload=startscroll;
)");
}

namespace {

constexpr CScriptFile kScript("scrolltext.js");

// The box twice, for browsers with document.layers and for those with document.all. The hole is for the blank
// in which a line ends.
constexpr char kLayers[] = R"html(
<ilayer id="brndfnscrollmain" width=&{brndfnscrollerwidth}; height=&{brndfnscrollerheight}; bgcolor=&{brndfnscrollerbgcolor};>
<layer id="first" left=0 top=1 width=&{brndfnscrollerwidth};>$
<script language="JavaScript1.2">
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
        return ScriptInclude(DirectoryOfMode(config, mode, m_ScriptPath), kScript);
    GrowTo(m_Texts.GetSize(), m_Links);
    return MakeHtml([&](CHtmlText& html) {
        html.Line(R"(<table width="$" align="$" style="border:$ $ #$;">)", m_TableWidth, m_TableAlign,
                  m_BorderWidth, m_BorderStyle, m_BorderColor);
        WriteStyle(html);
        html.Line("<tr>");
        html.Line("<td>");
        html.Line(R"(<script language="JavaScript1.2">)");
        WriteVariables(html);
        html.Line("</script>");
        html.Lines(kLayers, " ");
        html.Line("</td>");
        html.Line("</tr>");
        html.Line("</table>");
    });
}

void CScrollText::CopyResources(const CString& directory, short) {
    CopyScript(kScript, directory);
}

short CScrollText::RegisterResources(CVignelConfig& config) {
    config.ClearResources();
    RegisterScript(config, kScript, m_ScriptPath);
    return config.GetResourceCount();
}

} // namespace orrelix
