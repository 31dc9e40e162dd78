#include "gadgets/cool_link.h"

namespace orrelix {

void CCoolLink::ExchangeParameters(CParameterExchange& exchange) {
    exchange.Fields("CoolLinkActivePara",
                    {FIELD(m_OverBorderColor), FIELD(m_OverBackColor), FIELD(m_OverBorderWidth),
                     FIELD(m_OverBorderStyle), Masked(FIELD(m_OverFont)), FIELD(m_OverFontSize),
                     FIELD(m_OverFontStyle), FIELD(m_OverFontWeight), FIELD(m_OverPaddingBottom),
                     FIELD(m_OverPaddingLeft), FIELD(m_OverPaddingRight), FIELD(m_OverPaddingTop),
                     FIELD(m_OverTextColor)});
    exchange.Fields("CoolLinkBICPara", {FIELD(m_Top), FIELD(m_Left), FIELD(m_Margin), FIELD(m_ScriptPath)});
    exchange.Fields("CoolLinkSelectPara",
                    {FIELD(m_SelectBorderWidth), FIELD(m_SelectBorderStyle), FIELD(m_SelectBorderColor),
                     FIELD(m_SelectWidth), Masked(FIELD(m_SelectFont)), FIELD(m_SelectFontSize),
                     FIELD(m_SelectFontStyle), FIELD(m_SelectFontWeight), FIELD(m_Cursor)});
    exchange.Fields("CoolLinkOptionPara",
                    {FIELD(m_OptionPaddingLeft), FIELD(m_OptionPaddingRight), FIELD(m_OptionPaddingBottom),
                     FIELD(m_OptionPaddingTop), FIELD(m_OptionBackColor), FIELD(m_OptionTextColor),
                     FIELD(m_OptionBorderWidth), FIELD(m_OptionBorderColor), FIELD(m_OptionBorderStyle),
                     FIELD(m_Texts)});
    exchange.Fields("CoolLinkMorePara", {Masked(FIELD(m_OverBorder)), Masked(FIELD(m_SelectBorder)),
                                         FIELD(m_Target), FIELD(m_ImagePath)});
    exchange.MaskedItems("CoolLinkTextStr", FIELD(m_Texts));
    exchange.MaskedItems("CoolLinkLinkStr", FIELD(m_Links));
    exchange.MaskedItems("CoolLinkResStr", FileName(FIELD(m_Images)));
    exchange.Column("CoolLinkImgBorder", "m_Border", m_ImageSizes, &CCoolLinkImage::m_Border);
    exchange.Column("CoolLinkImgHeight", "m_Height", m_ImageSizes, &CCoolLinkImage::m_Height);
    exchange.Column("CoolLinkImgWidth", "m_Width", m_ImageSizes, &CCoolLinkImage::m_Width);
    exchange.Unstored(FIELD(m_OptionBorder));
}

bool CCoolLink::ReadParameters(CVignelConfig& config, const CString& directory) {
    ReadFields(config, directory);
    m_OptionBorder = WholeBorder(m_OptionBorderWidth, m_OptionBorderStyle, m_OptionBorderColor);
    return true;
}

void CCoolLink::WriteScript(CHtmlText& html, const CString& prefix) const {
    html.Line(R"(<script type="text/javascript">)");
    html.Line("var ", prefix, "ie4 = (document.all != null);");
    html.Line("var ", prefix, R"(overOptionCss = "background:#)", m_OverBackColor, "; color:#",
              m_OverTextColor, "; font-family:", m_OverFont, ";font-style: ", m_OverFontStyle,
              "; font-weight:", m_OverFontWeight, "; font-size:", m_OverFontSize, "; border:", m_OverBorder,
              "; padding-left:", m_OverPaddingLeft, "; padding-right:", m_OverPaddingRight,
              "; padding-bottom:", m_OverPaddingBottom, "; padding-top:", m_OverPaddingTop, R"(";)");
    html.Line("var ", prefix, R"(sizedBorderCss = ")", m_SelectBorder, R"(";)");
    html.Line("function ", prefix, "initSelectBoxes() {");
    html.Line("\tvar spans = document.all.tags(\"SPAN\");");
    html.Line("\tvar selects = new Array();");
    html.Line("\tvar index = 0;");
    html.Line("   for (var i=0; i<spans.length; i++) {");
    html.Line("\t\tif (spans[i].className!=\"\")");
    html.Line("           {");
    html.Line("\t\t\t\tif (spans[i].className.indexOf(\"select\"))");
    html.Line("\t\t\t\t\t selects[index++] = spans[i];}");
    html.Line("}");
    html.Line("for (var j=0; j<selects.length; j++){");
    html.Line("\tLinkinitSelectBox(selects[j],", prefix, "overOptionCss,", prefix, "sizedBorderCss);}");
    html.Line("}");
    html.Line("if (", prefix, "ie4) {");
    html.Line("\twindow.onload = ", prefix, "initSelectBoxes;");
    html.Line("}");
    html.Line("</script>");
}

void CCoolLink::WriteStyle(CHtmlText& html, const CString& prefix) const {
    html.Line(R"(<style type="text/css">)");
    html.Line("<!--");
    html.Line(".", prefix, "select {border: ", m_SelectBorder, "; width: ", m_SelectWidth,
              "; font-family:", m_SelectFont, ";font-style: ", m_SelectFontStyle,
              "; font-weight:", m_SelectFontWeight, "; font-size:", m_SelectFontSize, "; cursor:", m_Cursor,
              ";}");
    html.Line(".", prefix, "option {width: 100%; background: #", m_OptionBackColor, "; color:#",
              m_OptionTextColor, "; border: ", m_OptionBorder, "; padding-left:", m_OptionPaddingLeft,
              "; padding-right:", m_OptionPaddingRight, "; padding-bottom:", m_OptionPaddingBottom,
              "; padding-top:", m_OptionPaddingTop, ";}");
    html.Line("-->");
    html.Line("</style>");
}

void CCoolLink::WriteBox(CHtmlText& html, const CString& prefix, const CString& imageDirectory) const {
    const CString target = LinkTarget(m_Target);
    html.Line(R"(<table style="margin: )", m_Margin, "; position: relative; top: ", m_Top, "; left:", m_Left,
              R"(;">)");
    html.Line("<tr><td>");
    html.Line(R"(<span class=")", prefix, R"(select" id=")", prefix, R"(" size=")", m_Texts.GetSize(),
              R"(" onchange="window.open(this.options[this.selectedIndex].value, ')", target,
              R"html(')">)html");
    html.Line(
        R"html(<table cellspacing="0" cellpadding="0" onclick="toggleDropDown(this.parentElement)">)html");
    html.Line("<tr>");
    html.Line("<td>&nbsp;</td>");
    html.Line(R"(<td align="CENTER" valign="MIDDLE" class="coolButton" >)");
    html.Line(R"(<span style="position: relative; left: 0; top: -2; width: 100%;"></span></td>)");
    html.Line("</tr>");
    html.Line("</table>");
    html.Line(R"(<div onclick="LinkoptionClick()", prefix,
              R"html(overOptionCss)" onmouseover="LinkoptionOver()html", prefix,
              R"html(overOptionCss)" onmouseout="LinkoptionOut()html", prefix, R"html(overOptionCss)">)html");
    for (CStringArray::Index i = 0; i < m_Texts.GetSize(); ++i) {
        html.Text(R"(<div class=")", prefix, R"(option" value=")", m_Links[i], R"(" nowrap>)");
        WriteItemImage(html, imageDirectory, m_Images[i], m_ImageSizes[i]);
        html.Line(m_Texts[i], "</div>");
    }
    html.Line("</div>");
    html.Line("</span>");
    html.Line("</td></tr>");
    html.Line("</table>");
}

CString CCoolLink::GetHTMLBody(CVignelConfig& config, short mode, short position) {
    if (position != 0 && RefersToScripts(mode))
        return ScriptInclude(DirectoryOfMode(config, mode, m_ScriptPath), "select.js");
    if (position != 0) // here the other modes have nothing
        return {};
    if (m_Texts.IsEmpty())
        return {};
    GrowTo(m_Texts.GetSize(), m_Links, m_Images, m_ImageSizes);
    const CString prefix = config.GetTitle().MakeLower();
    const CString imageDirectory = ImageDirectoryOfMode(config, mode, m_Images, m_ImagePath);
    return MakeHtml([&](CHtmlText& html) {
        WriteScript(html, prefix);
        WriteStyle(html, prefix);
        WriteBox(html, prefix, imageDirectory);
    });
}

void CCoolLink::CopyResources(const CString& directory, short force) {
    CopyScript("select.js", "select.js", directory);
    CopyImages(m_Images, directory, force);
}

short CCoolLink::RegisterResources(CVignelConfig& config) {
    config.ClearResources();
    RegisterScript(config, "select.js", m_ScriptPath);
    RegisterImages(config, m_Images, m_ImagePath);
    return config.GetResourceCount();
}

} // namespace orrelix
