// Scroll Text: linked texts that pass through a box in a table, one after the other. The page's script is
// scrolltext.js. All names in the text are fixed words.
#pragma once

#include "core/dhtml_gadget.h"
#include "resources/addresses.h"

namespace orrelix {

class CScrollText : public CGadget<CScrollText> {
public:
    CString GetHTMLBody(CVignelConfig& config, short mode, short position) override;
    void CopyResources(const CString& directory, short force) override;
    bool ReadParameters(CVignelConfig& config, const CString&) override { return ReadFields(config); }
    short RegisterResources(CVignelConfig& config) override;
    void WriteParameters(CVignelConfig& config) override { WriteFields(config); }
    short GetHTMLSegmentNumber() override { return 2; }
    void ExchangeParameters(CParameterExchange& exchange) override;

    // Colours are six hexadecimal digits without "#"; lengths are pixels.

    // One entry per item in both. A line break in a text is "<br>".
    CStringArray m_Texts = {"It is the DHTML Scroll Text", "You can input a text to scroll",
                            "It can accept Enter key", "You can set an url for the text"};
    CStringArray m_Links = {kHostProductHomePage, kHostProductHomePage, kHostProductHomePage,
                            kHostProductHomePage};
    CString m_ScriptPath; // remote directory of scrolltext.js, empty or ending in "/"

    // The table around the box.
    CString m_TableWidth = "10";
    CString m_BorderWidth = "0";
    CString m_TableAlign = "center";
    CString m_BorderColor;
    CString m_BorderStyle;

    // A link under the mouse, at rest, and clicked.
    CString m_OverFont = "Arial";
    CString m_OverFontSize = "10";
    CString m_OverFontStyle = "italic";
    CString m_OverFontWeight = "normal";
    CString m_OverColor = "e6e6fa";
    CString m_OverDecoration = "none";
    CString m_OverCursor = "hand";
    CString m_OutFont = "Arial";
    CString m_OutFontSize = "10";
    CString m_OutFontStyle = "normal";
    CString m_OutFontWeight = "normal";
    CString m_OutColor = "d2b48c";
    CString m_OutDecoration = "underline";
    CString m_OutCursor = "default";
    CString m_ClickFont = "Arial";
    CString m_ClickFontSize = "10";
    CString m_ClickFontStyle = "normal"; // in no parameter: a file doesn't keep it
    CString m_ClickFontWeight = "normal";
    CString m_ClickColor = "a52a00";
    CString m_ClickDecoration = "none";
    CString m_ClickCursor = "default";

    // The box. What the last two count is told in scrolltext.js.
    CString m_ScrollWidth = "300";
    CString m_ScrollHeight = "100";
    CString m_LayerColor = "ffffff";
    CString m_LayerSpeed = "3000";
    CString m_DelayTime = "100";

private:
    void WriteStyle(CHtmlText& html) const;
    void WriteVariables(CHtmlText& html) const;
};

} // namespace orrelix
