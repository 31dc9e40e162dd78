#include "gadgets/tool_tip.h"

#include "gadgets/script_files.h"
#include "platform/paths.h"

namespace orrelix {

namespace {

constexpr CScriptFile kScript("Tooltip.js", "tooltip.js", "tooltip.js");

} // namespace

void CToolTip::ExchangeParameters(CParameterExchange& exchange) {
    exchange.Fields("ToolTipPara", {FIELD(m_TipBorderColor), FIELD(m_TipBackColor), FIELD(m_TipBorder),
                                    FIELD(m_TipBorderWidth), FIELD(m_TipBorderStyle), FIELD(m_ScriptPath),
                                    FIELD(m_TipTextColor), FIELD(m_TipFontSize), FIELD(m_TipFontStyle),
                                    FIELD(m_TipFontWeight), FIELD(m_HtmlTag), FIELD(m_TipTag),
                                    FIELD(m_MarqueeWidth), FIELD(m_DelayTime), FIELD(m_ShowTime)});
    exchange.Text("ToolTipTextPara", FIELD(m_HtmlText));
    exchange.Text("ToolTipFontFamPara", FIELD(m_TipFont));
    exchange.Text("ToolTipToolTipPara", FIELD(m_TipText));
    exchange.Fields("ToolTipImgPara",
                    {FileName(FIELD(m_Image)), FIELD(m_ImageSize.m_Border), FIELD(m_ImageSize.m_Height),
                     FIELD(m_ImageSize.m_Width), Masked(FIELD(m_Link)), Masked(FIELD(m_ImagePath))});
}

// The attributes of the tip, or what is left of them: without a tag there is no image and no box, without a
// text the image stands bare in the element's tag. The blanks between the pieces stay in any case.
void CToolTip::WriteTip(CHtmlText& html, const CString& imageDirectory) const {
    const bool bBox = !m_TipTag.IsEmpty();
    const bool bTip = bBox && !m_TipText.IsEmpty();
    if (bTip) {
        html.Text(R"(tooltip=" <nobr><$  style='width:$; color:$; font-family:$; font-weight:$; )"
                  "font-style:$; font-size:$;'>",
                  m_TipTag, m_MarqueeWidth, m_TipTextColor, m_TipFont, m_TipFontWeight, m_TipFontStyle,
                  m_TipFontSize);
    }
    html.Text(" ");
    if (bBox && !m_Image.IsEmpty()) {
        html.Text("<img src='$$' border=$ height=$ width=$ align=absmiddle>", imageDirectory,
                  FileNameOfPath(m_Image), m_ImageSize.m_Border, m_ImageSize.m_Height, m_ImageSize.m_Width);
    }
    html.Text(" $ ", m_TipText);
    if (bTip)
        html.Text(R"(</$>")", m_TipTag);
    html.Text(" ");
    if (bBox)
        html.Text(R"(tooltipstyle="background:$; border:$;")", m_TipBackColor, m_TipBorder);
}

CString CToolTip::GetHTMLBody(CVignelConfig& config, short mode, short position) {
    if (position != 0 && RefersToScripts(mode))
        return ScriptInclude(DirectoryOfMode(config, mode, m_ScriptPath), kScript);
    const CString title = config.GetTitle();
    const bool bImage = !m_Image.IsEmpty() && !m_TipTag.IsEmpty();
    const CString imageDirectory = bImage ? DirectoryOfMode(config, mode, m_ImagePath) : CString();
    return MakeHtml([&](CHtmlText& html) {
        html.Lines(R"(
<SCRIPT LANGUAGE="JavaScript">
var $delayTime = $;
var $showTime = $;
</script>
)",
                   title, m_DelayTime, title, m_ShowTime);
        html.Text("<$", m_HtmlTag);
        if (m_HtmlTag == "a")
            html.Text(R"( href="$" )", m_Link);
        html.Text(R"( id="$" )", title);
        WriteTip(html, imageDirectory);
        html.Line(" > $</$>", m_HtmlText, m_HtmlTag);
    });
}

void CToolTip::CopyResources(const CString& directory, short force) {
    CopyScript(kScript, directory);
    CopyImages({&m_Image, 1}, directory, force);
}

short CToolTip::RegisterResources(CVignelConfig& config) {
    config.ClearResources();
    RegisterScript(config, kScript, m_ScriptPath);
    // The path of a lost image stays.
    if (!m_Image.IsEmpty() && !RegisterImage(config, m_Image, m_ImagePath))
        m_ImagePath.Empty();
    return config.GetResourceCount();
}

} // namespace orrelix
