#include "gadgets/text_show.h"

namespace orrelix {

void CTextShow::ExchangeParameters(CParameterExchange& exchange) {
    exchange.Fields("TextShowPara",
                    {FIELD(m_Speed), FIELD(m_TableBorder), FIELD(m_TableHeight), FIELD(m_TableWidth),
                     FIELD(m_TextHeight), FIELD(m_TextWidth), FIELD(m_TitleHeight), FIELD(m_TitleWidth),
                     FIELD(m_TitleColor), FIELD(m_TextColor)});
    exchange.Fields("TextShowFontPara",
                    {Masked(FIELD(m_TitleFontFamily)), FIELD(m_TitleFontWeight), FIELD(m_TitleFontSize),
                     FIELD(m_TitleFontStyle), Masked(FIELD(m_TextFontFamily)), FIELD(m_TextFontWeight),
                     FIELD(m_TextFontSize), FIELD(m_TextFontStyle)});
    exchange.Text("TextShowTitle", FIELD(m_TitleText));
    exchange.Text("TextShowText", FIELD(m_Text));
}

void CTextShow::WriteParameters(CVignelConfig& config) {
    m_Text.Replace("\r\n", "<br>");
    WriteFields(config);
}

void CTextShow::WriteTitleCell(CHtmlText& html) const {
    html.Line(R"(<td width="$" height="$" style="color:$; font-weight: $; font-family: $; )"
              R"(font-style: $; font-size: $;">$</td>)",
              m_TitleWidth, m_TitleHeight, m_TitleColor, m_TitleFontWeight, m_TitleFontFamily,
              m_TitleFontStyle, m_TitleFontSize, m_TitleText);
}

// The script takes the text from the page, where visitors without scripts read it, and types it back.
void CTextShow::WriteTextCell(CHtmlText& html) const {
    html.Lines(R"html(
<td width="$" height="$">
<script type="text/javascript1.2">
var it=0
var divname
var innername
function start()
{
	initialize(divname)
}
function initialize(testname){
	mytext=document.all(testname).innerText
	var myheight=document.all(testname).offsetHeight
	document.all(testname).innerText=''
	document.all(testname).style.height=myheight
	document.all(testname).style.visibility="visible"
	typeit(testname)
}
function typeit(){
	document.all(divname).insertAdjacentText("beforeEnd",mytext.charAt(it))
	if (it<mytext.length-1){
			it++
			setTimeout("typeit()",$)}
	else
		return
}
</script>
)html",
               m_TextWidth, m_TextHeight, m_Speed);
    html.Line("\t"
              R"(<span id="typing" style="color:$; font-family: $; font-weight:$; font-size:$; )"
              R"(font-style:$;">$</span></td>)",
              m_TextColor, m_TextFontFamily, m_TextFontWeight, m_TextFontSize, m_TextFontStyle, m_Text);
}

CString CTextShow::GetHTMLBody(CVignelConfig&, short, short) {
    return MakeHtml([&](CHtmlText& html) {
        html.Line(R"(<table width="$" border="$" height="$">)", m_TableWidth, m_TableBorder, m_TableHeight);
        html.Line("<tr>");
        WriteTitleCell(html);
        WriteTextCell(html);
        html.Lines(R"(
</tr>
<script language="JavaScript1.2">
if (document.all)
{divname="typing";
document.body.onload=start}
</script>
</table>
)");
    });
}

short CTextShow::RegisterResources(CVignelConfig& config) {
    config.ClearResources();
    return 0;
}

} // namespace orrelix
