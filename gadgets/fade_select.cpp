#include "gadgets/fade_select.h"

namespace orrelix {

void CFadeSelect::ExchangeParameters(CParameterExchange& exchange) {
    exchange.Fields("FadeSelectActivePara",
                    {FIELD(m_OverBorderColor), FIELD(m_OverBackColor), FIELD(m_OverBorderWidth),
                     FIELD(m_OverBorderStyle), Masked(FIELD(m_OverFont)), FIELD(m_OverFontSize),
                     FIELD(m_OverFontStyle), FIELD(m_OverFontWeight), FIELD(m_OverBorder),
                     FIELD(m_OverTextColor)});
    exchange.Fields("FadeSelectPara",
                    {FIELD(m_ScriptPath), FIELD(m_BoxWidth), FIELD(m_Cursor), FIELD(m_FadeSteps),
                     FIELD(m_FadeMsec), FIELD(m_BoxMargin), FIELD(m_OptionPaddingBottom),
                     FIELD(m_OptionPaddingLeft), FIELD(m_OptionPaddingRight), FIELD(m_OptionPaddingTop),
                     FIELD(m_BoxHeight), FIELD(m_Texts)});
    exchange.Fields("FadeSelectDropButtonPara",
                    {FIELD(m_ButtonHeight), FIELD(m_ButtonPadding), FIELD(m_ButtonWidth),
                     FIELD(m_ButtonFontSize), FIELD(m_DropBorderColor), FIELD(m_DropBackColor),
                     FIELD(m_DropBorderStyle), FIELD(m_DropBorderWidth), FIELD(m_DropBorder),
                     FIELD(m_ButtonBorder), FIELD(m_ButtonBorderWidth), FIELD(m_ButtonBorderColor),
                     FIELD(m_ButtonBorderStyle)});
    exchange.Fields("FadeSelectMorePara",
                    {FIELD(m_TableBorderColor), FIELD(m_TableBorderStyle), FIELD(m_TableBorderWidth),
                     FIELD(m_TableBackColor), FIELD(m_SelectBorderColor), FIELD(m_SelectBackColor),
                     FIELD(m_SelectBorderStyle), FIELD(m_SelectBorderWidth), FIELD(m_SelectPadding),
                     FIELD(m_TableBorder), FIELD(m_SelectBorder), FIELD(m_Target), FIELD(m_Top),
                     FIELD(m_Left), FIELD(m_ImagePath)});
    exchange.MaskedItems("FadeSelectTextStr", FIELD(m_Texts));
    exchange.MaskedItems("FadeSelectLinkStr", FIELD(m_Links));
    exchange.MaskedItems("FadeSelectResStr", FileName(FIELD(m_Images)));
    exchange.MaskedItems("FadeSelectToolTipStr", FIELD(m_ToolTips));
    exchange.Column("FadeSelectImgBorder", "m_Border", m_ImageSizes, &CCoolLinkImage::m_Border);
    exchange.Column("FadeSelectImgHeight", "m_Height", m_ImageSizes, &CCoolLinkImage::m_Height);
    exchange.Column("FadeSelectImgWidth", "m_Width", m_ImageSizes, &CCoolLinkImage::m_Width);
    exchange.Column("FadeSelectItemFontFam", "m_Family", m_ItemFonts, &CFadeSelectFont::m_Family, true);
    exchange.Column("FadeSelectItemFontWei", "m_Weight", m_ItemFonts, &CFadeSelectFont::m_Weight);
    exchange.Column("FadeSelectItemFontColor", "m_Color", m_ItemFonts, &CFadeSelectFont::m_Color);
    exchange.Column("FadeSelectItemFontStyle", "m_Style", m_ItemFonts, &CFadeSelectFont::m_Style);
    exchange.Column("FadeSelectItemFontSize", "m_Size", m_ItemFonts, &CFadeSelectFont::m_Size);
}

void CFadeSelect::WriteStyle(CHtmlText& html, const CString& prefix) const {
    html.Line(R"(<style type="text/css">)");
    html.Line("<!--");
    html.Line(".", prefix, "select {cursor:", m_Cursor, ";}");
    html.Line(".", prefix, "selected {border: ", m_SelectBorder, "; background: #", m_SelectBackColor,
              "; padding: ", m_SelectPadding, "; }");
    html.Line(".", prefix, "selectTable {height: 100%; width: 100%;border: ", m_TableBorder,
              "; background: #", m_TableBackColor, ";}");
    html.Line(".", prefix, "option {padding-left: ", m_OptionPaddingLeft,
              "; padding-right: ", m_OptionPaddingRight, "; padding-Top: ", m_OptionPaddingTop,
              "; padding-bottom: ", m_OptionPaddingBottom, ";width: 100%;}");
    html.Line(".", prefix, "button {width: ", m_ButtonWidth, "px; height: ", m_ButtonHeight,
              "; font-family: webdings; padding: ", m_ButtonPadding, ";font-size: ", m_ButtonFontSize,
              "px; border:", m_ButtonBorder, ";}");
    html.Line(".", prefix,
              "dropDown {position: absolute; visibility: hidden; width: 100%;border: ", m_DropBorder,
              "; padding: 0;background: #", m_DropBackColor, ";}-->");
    html.Line("</style>");
}

void CFadeSelect::WriteItem(CHtmlText& html, CStringArray::Index i, const CString& imageDirectory) const {
    const CFadeSelectFont& font = m_ItemFonts[i];
    html.Text("topArray[", i, "] = new Option('<nobr ");
    if (!m_ToolTips[i].IsEmpty())
        html.Text(R"(title=")", m_ToolTips[i], R"(")");
    html.Text(">");
    WriteItemImage(html, imageDirectory, m_Images[i], m_ImageSizes[i]);
    html.Line(R"(<span style="font-family: )", font.m_Family, "; font-style: ", font.m_Style,
              "; font-weight: ", font.m_Weight, "; font-size: ", font.m_Size, "; color: ", font.m_Color,
              R"(;">)", m_Texts[i], R"(</span></nobr>', ")", m_Links[i], R"html(");)html");
}

void CFadeSelect::WriteScript(CHtmlText& html, const CString& prefix, const CString& imageDirectory) const {
    html.Line("<script>");
    html.Line("var ", prefix, "ie4 = (document.all != null);");
    html.Line("var ", prefix, R"(overOptionCss = "background: #)", m_OverBackColor, "; color:#",
              m_OverTextColor, "; font-family:", m_OverFont, "; font-style:", m_OverFontStyle,
              "; font-weight:", m_OverFontWeight, "; font-size:", m_OverFontSize, R"(;")");
    html.Line("var ", prefix, R"(sizedBorderCss =")", m_OverBorder, R"(")");
    html.Line("var ", prefix, R"(brndfndoborder =")", m_ButtonBorderWidth, " inset #", m_ButtonBorderColor,
              R"(")");
    html.Line("var ", prefix, R"(brndfnupborder =")", m_ButtonBorderWidth, " outset #", m_ButtonBorderColor,
              R"(")");
    html.Line("var ", prefix, "fadesteps = ", m_FadeSteps, ";");
    html.Line("var ", prefix, "fademsec = ", m_FadeMsec, ";");
    html.Line("topArray = new Array();");
    for (CStringArray::Index i = 0; i < m_Texts.GetSize(); ++i)
        WriteItem(html, i, imageDirectory);
    html.Line(R"(writeSelectBox(topArray, ")", prefix,
              R"(", 1, "window.open(this.options[this.selectedIndex].value, ')", LinkTarget(m_Target),
              R"html(')", "margin-left: )html", m_BoxMargin, "; width: ", m_BoxWidth,
              "; height:", m_BoxHeight, R"(;",)", prefix, "overOptionCss,", prefix, "sizedBorderCss,", prefix,
              "brndfndoborder,", prefix, "brndfnupborder,", prefix, "fadesteps,", prefix, "fademsec);");
    html.Line("</Script>");
}

// What stands at the cursor; nothing without items.
CString CFadeSelect::GetBox(CVignelConfig& config, short mode) {
    if (m_Texts.IsEmpty())
        return {};
    GrowTo(m_Texts.GetSize(), m_Links, m_Images, m_ToolTips, m_ImageSizes, m_ItemFonts);
    const CString prefix = config.GetTitle().MakeLower();
    const CString imageDirectory = ImageDirectoryOfMode(config, mode, m_Images, m_ImagePath);
    return MakeHtml([&](CHtmlText& html) {
        html.Line("<table style='position:relative;left:", m_Left, "px;top:", m_Top, "px;'>");
        html.Line("<tr><td>");
        html.Line(R"(<div align="left">)");
        WriteStyle(html, prefix);
        WriteScript(html, prefix, imageDirectory);
        html.Line("</div>");
        html.Line("</td></tr>");
        html.Line("</table>");
    });
}

CString CFadeSelect::GetHTMLBody(CVignelConfig& config, short mode, short position) {
    // A mode that refers to no script has the box in the scripts' place too.
    if (position == 0 || !RefersToScripts(mode))
        return GetBox(config, mode);
    const CString directory = DirectoryOfMode(config, mode, m_ScriptPath);
    return ScriptInclude(directory, "fadeselect.js") + ScriptInclude(directory, "fade.js");
}

void CFadeSelect::CopyResources(const CString& directory, short force) {
    CopyScript("fade.js", "fade.js", directory);
    CopyScript("fadeselect.js", "fadeselect.js", directory);
    CopyImages(m_Images, directory, force);
}

short CFadeSelect::RegisterResources(CVignelConfig& config) {
    config.ClearResources();
    RegisterScript(config, "fadeselect.js", m_ScriptPath);
    RegisterScript(config, "fade.js", m_ScriptPath);
    RegisterImages(config, m_Images, m_ImagePath);
    return config.GetResourceCount();
}

} // namespace orrelix
