#include "gadgets/dance_text.h"

#include "gadgets/html_values.h"

namespace orrelix {

void CDanceText::ExchangeParameters(CParameterExchange& exchange) {
    exchange.Fields("DanceTextPara",
                    {FIELD(m_Delay), FIELD(m_TextDecoration), FIELD(m_FontSize), FIELD(m_FontStyle),
                     FIELD(m_FontWeight), FIELD(m_LinkTarget), FIELD(m_Colors)});
    exchange.Fields("DanceTextTextPara", {FIELD(m_LinkText)});
    exchange.Fields("DanceTextFontFamPara", {FIELD(m_FontFamily)});
    exchange.Fields("DanceTextLinkPara", {FIELD(m_LinkUrl)});
    exchange.Items("DanceTextColorPara", FIELD(m_Colors));
}

void CDanceText::WriteLink(CHtmlText& html, const CString& title) const {
    html.Line(R"(<a style="text-decoration:$; font-family:$; font-style:$; font-weight:$; font-size:$;" )"
              R"(name="brndfntext$" href="$" target="$">$</a>)",
              m_TextDecoration, m_FontFamily, m_FontStyle, m_FontWeight, m_FontSize, title, m_LinkUrl,
              LinkTarget(m_LinkTarget), m_LinkText);
}

void CDanceText::WriteColors(CHtmlText& html, const CString& title) const {
    html.Line("function $initArray() ", title);
    html.Line("{");
    html.Line("\tfor (var i = 0; i < $initArray.arguments.length; i++) ", title);
    html.Lines(R"(
		{
			this[i] = $initArray.arguments[i];
		}
	this.length = $initArray.arguments.length;
}
var $colors = new $initArray(
)",
               title, title, title, title);
    for (CStringArray::Index i = 0; i < m_Colors.GetSize(); ++i)
        html.Line(R"("#$"$)", m_Colors[i], i + 1 < m_Colors.GetSize() ? "," : "");
    html.Line(");");
}

void CDanceText::WriteDance(CHtmlText& html, const CString& title) const {
    html.Line("$delay = $;", title, m_Delay);
    html.Line("$link = 0;", title);
    html.Line("function $linkDance() ", title);
    html.Line("{");
    html.Line("\t$link = ($link+1)%$colors.length;", title, title, title);
    html.Line(R"(   document.links("brndfntext$").style.color = $colors[$link];)", title, title, title);
    html.Line("\tsetTimeout(\"$linkDance()\",$delay*1000);", title, title);
    html.Line("}");
    html.Line("$linkDance();", title);
}

CString CDanceText::GetHTMLBody(CVignelConfig& config, short, short) {
    // In front of every name of the script, so that links of different titles don't meet.
    const CString title = config.GetTitle();
    return MakeHtml([&](CHtmlText& html) {
        html.Line("");
        WriteLink(html, title);
        html.Line(R"(<SCRIPT LANGUAGE="JavaScript">)");
        html.Line("<!--//");
        WriteColors(html, title);
        WriteDance(html, title);
        html.Line("//-->");
        html.Line("</script>");
    });
}

short CDanceText::RegisterResources(CVignelConfig& config) {
    config.ClearResources();
    return 0;
}

} // namespace orrelix
