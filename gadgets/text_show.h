// Slide Text: a title beside a text that is typed character by character. The whole script stands in the
// text.
#pragma once

#include "core/dhtml_gadget.h"

namespace orrelix {

class CTextShow : public CGadget<CTextShow> {
public:
    // The same for every mode and position.
    CString GetHTMLBody(CVignelConfig&, short, short) override;
    void CopyResources(const CString&, short) override {}
    bool ReadParameters(CVignelConfig& config, const CString&) override { return ReadFields(config); }
    short RegisterResources(CVignelConfig& config) override;
    // Line breaks in m_Text become "<br>" in the field too.
    void WriteParameters(CVignelConfig& config) override;
    short GetHTMLSegmentNumber() override { return 1; }
    void ExchangeParameters(CParameterExchange& exchange) override;

    // Colours are six hexadecimal digits without "#"; lengths are pixels.
    CString m_TextColor;
    CString m_TextFontFamily;
    CString m_TextFontWeight;
    CString m_TextFontStyle;
    CString m_TextFontSize;
    CString m_TitleColor;
    CString m_TitleFontFamily;
    CString m_TitleFontWeight;
    CString m_TitleFontStyle;
    CString m_TitleFontSize;
    CString m_TableWidth = "716";
    CString m_TableHeight = "47";
    CString m_TableBorder = "0";
    CString m_TitleWidth = "188";
    CString m_TitleHeight = "134";
    CString m_TitleText;
    CString m_TextWidth = "551";
    CString m_TextHeight = "122";
    CString m_Text = "Slide Text. It is an example";
    CString m_Speed = "100"; // milliseconds between two characters

private:
    void WriteTitleCell(CHtmlText& html) const;
    void WriteTextCell(CHtmlText& html) const;
};

} // namespace orrelix
