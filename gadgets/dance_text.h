// Color Link: a link whose colour walks through a list. The whole script stands in the text.
#pragma once

#include "core/dhtml_gadget.h"
#include "resources/addresses.h"

namespace orrelix {

class CDanceText : public CGadget<CDanceText> {
public:
    // The same for every mode and position. The store's title is part of all names in the script and has to
    // be fit for that.
    CString GetHTMLBody(CVignelConfig& config, short, short) override;
    void CopyResources(const CString&, short) override {}
    bool ReadParameters(CVignelConfig& config, const CString&) override { return ReadFields(config); }
    short RegisterResources(CVignelConfig& config) override;
    // A comma in m_LinkText, m_FontFamily or m_LinkUrl is stored as it is, and ends the text when it is read.
    void WriteParameters(CVignelConfig& config) override { WriteFields(config); }
    short GetHTMLSegmentNumber() override { return 1; }
    void ExchangeParameters(CParameterExchange& exchange) override;

    CStringArray m_Colors = {"00ff00", "40e0d0", "480048", "40e0d0"}; // hexadecimal digits without "#"
    CString m_Delay = "0.5";                                          // seconds between two colours
    CString m_LinkUrl = kMakerHomePage;
    CString m_LinkText = "Color Link";
    CString m_FontFamily = "Arial";
    CString m_FontWeight = "normal";
    CString m_FontStyle = "oblique";
    CString m_FontSize = "30";
    CString m_TextDecoration = "none";
    CString m_LinkTarget; // empty, "self", "top", "blank" or "parent"

private:
    void WriteLink(CHtmlText& html, const CString& title) const;
    void WriteColors(CHtmlText& html, const CString& title) const;
    void WriteDance(CHtmlText& html, const CString& title) const;
};

} // namespace orrelix
