#include "gadgets/fade_select.h"

#include "gadgets/html_values.h"
#include "gadgets/script_files.h"

namespace orrelix {

namespace {

constexpr CScriptFile kSelectScript("fadeselect.js");
constexpr CScriptFile kFadeScript("fade.js");

} // namespace

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
    html.Lines(R"(
<style type="text/css">
<!--
.$select {cursor:$;}
.$selected {border: $; background: #$; padding: $; }
.$selectTable {height: 100%; width: 100%;border: $; background: #$;}
)",
               prefix, m_Cursor, prefix, m_SelectBorder, m_SelectBackColor, m_SelectPadding, prefix,
               m_TableBorder, m_TableBackColor);
    html.Line(".$option {padding-left: $; padding-right: $; padding-Top: $; padding-bottom: $;width: 100%;}",
              prefix, m_OptionPaddingLeft, m_OptionPaddingRight, m_OptionPaddingTop, m_OptionPaddingBottom);
    html.Line(".$button {width: $px; height: $; font-family: webdings; padding: $;font-size: $px; border:$;}",
              prefix, m_ButtonWidth, m_ButtonHeight, m_ButtonPadding, m_ButtonFontSize, m_ButtonBorder);
    html.Line(".$dropDown {position: absolute; visibility: hidden; width: 100%;border: $; "
              "padding: 0;background: #$;}-->",
              prefix, m_DropBorder, m_DropBackColor);
    html.Line("</style>");
}

void CFadeSelect::WriteItem(CHtmlText& html, CStringArray::Index i, const CString& imageDirectory) const {
    const CFadeSelectFont& font = m_ItemFonts[i];
    html.Text("topArray[$] = new Option('<nobr ", i);
    if (!m_ToolTips[i].IsEmpty())
        html.Text(R"(title="$")", m_ToolTips[i]);
    html.Text(">");
    WriteItemImage(html, imageDirectory, m_Images[i], m_ImageSizes[i]);
    html.Line(R"(<span style="font-family: $; font-style: $; font-weight: $; font-size: $; color: $;">)"
              R"html($</span></nobr>', "$");)html",
              font.m_Family, font.m_Style, font.m_Weight, font.m_Size, font.m_Color, m_Texts[i], m_Links[i]);
}

void CFadeSelect::WriteScript(CHtmlText& html, const CString& prefix, const CString& imageDirectory) const {
    html.Line("<script>");
    html.Line("var $ie4 = (document.all != null);", prefix);
    html.Line(R"(var $overOptionCss = "background: #$; color:#$; font-family:$; font-style:$; )"
              R"(font-weight:$; font-size:$;")",
              prefix, m_OverBackColor, m_OverTextColor, m_OverFont, m_OverFontStyle, m_OverFontWeight,
              m_OverFontSize);
    html.Line(R"(var $sizedBorderCss ="$")", prefix, m_OverBorder);
    html.Line(R"(var $brndfndoborder ="$ inset #$")", prefix, m_ButtonBorderWidth, m_ButtonBorderColor);
    html.Line(R"(var $brndfnupborder ="$ outset #$")", prefix, m_ButtonBorderWidth, m_ButtonBorderColor);
    html.Line("var $fadesteps = $;", prefix, m_FadeSteps);
    html.Line("var $fademsec = $;", prefix, m_FadeMsec);
    html.Line("topArray = new Array();");
    for (CStringArray::Index i = 0; i < m_Texts.GetSize(); ++i)
        WriteItem(html, i, imageDirectory);
    html.Text(R"html(writeSelectBox(topArray, "$", 1, )html"
              R"html("window.open(this.options[this.selectedIndex].value, '$')", )html"
              R"("margin-left: $; width: $; height:$;",)",
              prefix, LinkTarget(m_Target), m_BoxMargin, m_BoxWidth, m_BoxHeight);
    html.Line("$overOptionCss,$sizedBorderCss,$brndfndoborder,$brndfnupborder,$fadesteps,$fademsec);", prefix,
              prefix, prefix, prefix, prefix, prefix);
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
        html.Lines(R"(
<table style='position:relative;left:$px;top:$px;'>
<tr><td>
<div align="left">
)",
                   m_Left, m_Top);
        WriteStyle(html, prefix);
        WriteScript(html, prefix, imageDirectory);
        html.Lines(R"(
</div>
</td></tr>
</table>
)");
    });
}

CString CFadeSelect::GetHTMLBody(CVignelConfig& config, short mode, short position) {
    // A mode that refers to no script has the box in the scripts' place too.
    if (position == 0 || !RefersToScripts(mode))
        return GetBox(config, mode);
    const CString directory = DirectoryOfMode(config, mode, m_ScriptPath);
    return ScriptInclude(directory, kSelectScript) + ScriptInclude(directory, kFadeScript);
}

void CFadeSelect::CopyResources(const CString& directory, short force) {
    CopyScript(kFadeScript, directory);
    CopyScript(kSelectScript, directory);
    CopyImages(m_Images, directory, force);
}

short CFadeSelect::RegisterResources(CVignelConfig& config) {
    config.ClearResources();
    RegisterScript(config, kSelectScript, m_ScriptPath);
    RegisterScript(config, kFadeScript, m_ScriptPath);
    RegisterImages(config, m_Images, m_ImagePath);
    return config.GetResourceCount();
}

} // namespace orrelix
