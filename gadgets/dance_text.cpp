#include "gadgets/dance_text.h"

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
    html.Line(R"(<a style="text-decoration:)", m_TextDecoration, "; font-family:", m_FontFamily,
              "; font-style:", m_FontStyle, "; font-weight:", m_FontWeight, "; font-size:", m_FontSize,
              R"(;" name="brndfntext)", title, R"(" href=")", m_LinkUrl, R"(" target=")",
              LinkTarget(m_LinkTarget), R"(">)", m_LinkText, "</a>");
}

void CDanceText::WriteColors(CHtmlText& html, const CString& title) const {
    html.Line("function ", title, "initArray() ");
    html.Line("{");
    html.Line("\tfor (var i = 0; i < ", title, "initArray.arguments.length; i++) ");
    html.Line("\t\t{");
    html.Line("\t\t\tthis[i] = ", title, "initArray.arguments[i];");
    html.Line("\t\t}");
    html.Line("\tthis.length = ", title, "initArray.arguments.length;");
    html.Line("}");
    html.Line("var ", title, "colors = new ", title, "initArray(");
    for (CStringArray::Index i = 0; i < m_Colors.GetSize(); ++i)
        html.Line(R"("#)", m_Colors[i], i + 1 < m_Colors.GetSize() ? R"(",)" : R"(")");
    html.Line(");");
}

void CDanceText::WriteDance(CHtmlText& html, const CString& title) const {
    html.Line(title, "delay = ", m_Delay, ";");
    html.Line(title, "link = 0;");
    html.Line("function ", title, "linkDance() ");
    html.Line("{");
    html.Line("\t", title, "link = (", title, "link+1)%", title, "colors.length;");
    html.Line(R"(   document.links("brndfntext)", title, R"(").style.color = )", title, "colors[", title,
              "link];");
    html.Line("\tsetTimeout(\"", title, "linkDance()\",", title, "delay*1000);");
    html.Line("}");
    html.Line(title, "linkDance();");
}

CString CDanceText::GetHTMLBody(CVignelConfig& config, short, short) {
    // In front of every name of the script, so that links of different titles don't meet.
    const CString title = config.GetTitle();
    return MakeHtml([&](CHtmlText& html) {
        html.Line();
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
