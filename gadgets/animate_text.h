// Animate Text: messages that rise, stay and fade in a box, one after the other. The page's script is
// animate.js.
#pragma once

#include "core/dhtml_gadget.h"
#include "resources/addresses.h"

namespace orrelix {

class CAnimateText : public CGadget<CAnimateText> {
public:
    CString GetHTMLBody(CVignelConfig& config, short mode, short position) override;
    void CopyResources(const CString& directory, short force) override;
    bool ReadParameters(CVignelConfig& config, const CString&) override { return ReadFields(config); }
    short RegisterResources(CVignelConfig& config) override;
    void WriteParameters(CVignelConfig& config) override { WriteFields(config); }
    short GetHTMLSegmentNumber() override { return 1; }
    void ExchangeParameters(CParameterExchange& exchange) override;

    // Colours are six hexadecimal digits without "#"; lengths are pixels.
    CString m_FadeColor = "FFFFFF"; // the colour that the text fades from and to
    CString m_TextColor = "0000FF";
    CString m_BackColor = "FFFFFF";
    CString m_ScrollStart = "110"; // the offset from the box's top at which a text starts to rise
    CStringArray m_Messages = {"Animate Text", "Support IE 4", "Hope you enjoy this script at your page",
                               CString("<a href=\"") + kMakerHomePage + "\">Visit our Home Page</a>"};
    CString m_ScriptPath;       // remote directory of animate.js, empty or ending in "/"
    CString m_ScrollSize = "1"; // the size of one step of the rise
    CString m_FontFamily;
    CString m_FontWeight;
    CString m_FontStyle;
    CString m_FontSize;
    CString m_PopUpInterval = "10";
    CString m_CirculateInterval = "50";
    CString m_Height = "130";
    CString m_Width = "269";
    CString m_Left = "200";
    CString m_Top = "200";

private:
    void WriteScript(CHtmlText& html) const;
    void WriteBox(CHtmlText& html) const;
};

} // namespace orrelix
