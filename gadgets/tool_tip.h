// ToolTip: an element of the page with a box of text, and an image if wanted, that shows when the mouse rests
// on it. The page's script is Tooltip.js, which the page calls tooltip.js.
#pragma once

#include "core/dhtml_gadget.h"
#include "gadgets/image_files.h"
#include "resources/addresses.h"

namespace orrelix {

class CToolTip : public CGadget<CToolTip> {
public:
    CString GetHTMLBody(CVignelConfig& config, short mode, short position) override;
    void CopyResources(const CString& directory, short force) override;
    bool ReadParameters(CVignelConfig& config, const CString& directory) override {
        return ReadFields(config, directory);
    }
    short RegisterResources(CVignelConfig& config) override;
    void WriteParameters(CVignelConfig& config) override { WriteFields(config); }
    short GetHTMLSegmentNumber() override { return 2; }
    void ExchangeParameters(CParameterExchange& exchange) override;

    // Colours are six hexadecimal digits without "#"; lengths are pixels, times milliseconds.
    CString m_ScriptPath;           // remote directory of the script file, empty or ending in "/"
    CString m_MarqueeWidth = "100"; // empty unless m_TipTag is "marquee"
    CString m_DelayTime = "700";
    CString m_ShowTime = "5000";
    CString m_TipTag = "marquee"; // "marquee" or "span"
    CString m_TipBackColor = "8b8b00";
    CString m_TipTextColor = "32cd32";
    CString m_TipFont = "@Fixedsys";
    CString m_TipFontStyle = "normal";
    CString m_TipFontSize = "20";
    CString m_TipFontWeight = "normal";
    CString m_HtmlTag = "a"; // "a", "div", "p", "span", "td" or any other
    CString m_TipText = "visit our homepage";
    CString m_HtmlText = "DHTML Tool Tip";
    CString m_TipBorder = "2 inset #ff6820"; // the whole border, beside its three parts
    CString m_TipBorderWidth = "2";
    CString m_TipBorderColor = "ff6820";
    CString m_TipBorderStyle = "inset";
    CString m_Link = kHostProductHomePage; // for the tag "a"
    CString m_ImagePath;                   // remote directory of the image, empty or ending in "/"
    CCoolLinkImage m_ImageSize;
    CString m_Image; // full path, empty for none

private:
    void WriteTip(CHtmlText& html, const CString& imageDirectory) const;
};

} // namespace orrelix
