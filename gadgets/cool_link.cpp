#include "gadgets/cool_link.h"

#include "gadgets/html_values.h"
#include "gadgets/script_files.h"

namespace orrelix {

namespace {

constexpr CScriptFile kScript("select.js");

} // namespace

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
    html.Lines(R"(
<script type="text/javascript">
var $ie4 = (document.all != null);
)",
               prefix);
    html.Line(R"(var $overOptionCss = "background:#$; color:#$; font-family:$;font-style: $; font-weight:$; )"
              R"(font-size:$; border:$; padding-left:$; padding-right:$; padding-bottom:$; padding-top:$";)",
              prefix, m_OverBackColor, m_OverTextColor, m_OverFont, m_OverFontStyle, m_OverFontWeight,
              m_OverFontSize, m_OverBorder, m_OverPaddingLeft, m_OverPaddingRight, m_OverPaddingBottom,
              m_OverPaddingTop);
    html.Lines(R"(
var $sizedBorderCss = "$";
function $initSelectBoxes() {
	var spans = document.all.tags("SPAN");
	var selects = new Array();
	var index = 0;
   for (var i=0; i<spans.length; i++) {
		if (spans[i].className!="")
           {
				if (spans[i].className.indexOf("select"))
					 selects[index++] = spans[i];}
}
for (var j=0; j<selects.length; j++){
	LinkinitSelectBox(selects[j],$overOptionCss,$sizedBorderCss);}
}
if ($ie4) {
	window.onload = $initSelectBoxes;
}
</script>
)",
               prefix, m_SelectBorder, prefix, prefix, prefix, prefix, prefix);
}

void CCoolLink::WriteStyle(CHtmlText& html, const CString& prefix) const {
    html.Line(R"(<style type="text/css">)");
    html.Line("<!--");
    html.Line(".$select {border: $; width: $; font-family:$;font-style: $; font-weight:$; font-size:$; "
              "cursor:$;}",
              prefix, m_SelectBorder, m_SelectWidth, m_SelectFont, m_SelectFontStyle, m_SelectFontWeight,
              m_SelectFontSize, m_Cursor);
    html.Line(".$option {width: 100%; background: #$; color:#$; border: $; padding-left:$; padding-right:$; "
              "padding-bottom:$; padding-top:$;}",
              prefix, m_OptionBackColor, m_OptionTextColor, m_OptionBorder, m_OptionPaddingLeft,
              m_OptionPaddingRight, m_OptionPaddingBottom, m_OptionPaddingTop);
    html.Line("-->");
    html.Line("</style>");
}

void CCoolLink::WriteBox(CHtmlText& html, const CString& prefix, const CString& imageDirectory) const {
    html.Lines(R"(
<table style="margin: $; position: relative; top: $; left:$;">
<tr><td>
)",
               m_Margin, m_Top, m_Left);
    html.Line(R"(<span class="$select" id="$" size="$" )"
              R"html(onchange="window.open(this.options[this.selectedIndex].value, '$')">)html",
              prefix, prefix, m_Texts.GetSize(), LinkTarget(m_Target));
    html.Lines(R"html(
<table cellspacing="0" cellpadding="0" onclick="toggleDropDown(this.parentElement)">
<tr>
<td>&nbsp;</td>
<td align="CENTER" valign="MIDDLE" class="coolButton" >
<span style="position: relative; left: 0; top: -2; width: 100%;"></span></td>
</tr>
</table>
)html");
    html.Line(
        R"html(<div onclick="LinkoptionClick($overOptionCss)" onmouseover="LinkoptionOver($overOptionCss)" )html"
        R"html(onmouseout="LinkoptionOut($overOptionCss)">)html",
        prefix, prefix, prefix);
    for (CStringArray::Index i = 0; i < m_Texts.GetSize(); ++i) {
        html.Text(R"(<div class="$option" value="$" nowrap>)", prefix, m_Links[i]);
        WriteItemImage(html, imageDirectory, m_Images[i], m_ImageSizes[i]);
        html.Line("$</div>", m_Texts[i]);
    }
    html.Lines(R"(
</div>
</span>
</td></tr>
</table>
)");
}

CString CCoolLink::GetHTMLBody(CVignelConfig& config, short mode, short position) {
    if (position != 0 && RefersToScripts(mode))
        return ScriptInclude(DirectoryOfMode(config, mode, m_ScriptPath), kScript);
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
    CopyScript(kScript, directory);
    CopyImages(m_Images, directory, force);
}

short CCoolLink::RegisterResources(CVignelConfig& config) {
    config.ClearResources();
    RegisterScript(config, kScript, m_ScriptPath);
    RegisterImages(config, m_Images, m_ImagePath);
    return config.GetResourceCount();
}

} // namespace orrelix
