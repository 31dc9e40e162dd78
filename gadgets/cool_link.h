// Link Select Table: a drop-down list of links, each with an image if wanted, built of a span, a table and
// rows. The page's script is select.js.
#pragma once

#include "core/dhtml_gadget.h"
#include "gadgets/image_files.h"
#include "resources/addresses.h"

namespace orrelix {

class CCoolLink : public CGadget<CCoolLink> {
public:
    CString GetHTMLBody(CVignelConfig& config, short mode, short position) override;
    void CopyResources(const CString& directory, short force) override;
    bool ReadParameters(CVignelConfig& config, const CString& directory) override;
    short RegisterResources(CVignelConfig& config) override;
    void WriteParameters(CVignelConfig& config) override { WriteFields(config); }
    short GetHTMLSegmentNumber() override { return 2; }
    void ExchangeParameters(CParameterExchange& exchange) override;

    // Colours are six hexadecimal digits without "#"; lengths are pixels; a whole border is as WholeBorder
    // forms it and stands beside its three parts.

    // One entry per item in each of the four.
    CArray<CCoolLinkImage> m_ImageSizes = {{}, {}, {}, {}};
    CStringArray m_Images = {"", "", "", ""}; // full paths, empty for none
    CStringArray m_Links = {kHostProductHomePage, kHostProductHomePage, kHostProductHomePage, kMakerHomePage};
    CStringArray m_Texts = {"Our Homepage", "Welcome to FadeSelect", kHostProductHost, kMakerHost};

    // The selected item.
    CString m_OverBackColor = "ffffff";
    CString m_OverTextColor = "8b0000";
    CString m_OverFont = "@Fixedsys";
    CString m_OverFontSize = "20";
    CString m_OverFontStyle = "normal";
    CString m_OverFontWeight = "normal";
    CString m_OverBorder = "1 solid #d2b48c";
    CString m_OverBorderWidth = "1";
    CString m_OverBorderStyle = "solid";
    CString m_OverBorderColor = "d2b48c";
    CString m_OverPaddingLeft;
    CString m_OverPaddingRight;
    CString m_OverPaddingBottom;
    CString m_OverPaddingTop;

    // The box. Until the dialog has formed it anew, the whole border says "inset" and its style "outset".
    CString m_SelectBorder = "1 inset #ffd700";
    CString m_SelectBorderWidth = "1";
    CString m_SelectBorderStyle = "outset";
    CString m_SelectBorderColor = "ffd700";
    CString m_SelectWidth = "200";
    CString m_SelectFont = "Arial"; // the font of the normal items
    CString m_SelectFontSize = "20";
    CString m_SelectFontStyle = "normal";
    CString m_SelectFontWeight = "normal";
    CString m_Cursor = "hand";

    // The normal items.
    CString m_OptionPaddingLeft = "1";
    CString m_OptionPaddingRight = "1";
    CString m_OptionPaddingBottom = "1";
    CString m_OptionPaddingTop = "1";
    CString m_OptionBackColor = "ff0000";
    CString m_OptionTextColor = "32cd32";
    CString m_OptionBorder = "2 outset #ff6820";
    CString m_OptionBorderWidth = "2";
    CString m_OptionBorderColor = "ff6820";
    CString m_OptionBorderStyle = "outset";

    CString m_Top = "100";
    CString m_Left = "100";
    CString m_Margin = "10";
    CString m_ScriptPath; // remote directory of select.js, empty or ending in "/"
    CString m_Target;     // empty, "self", "top", "blank" or "parent"
    CString m_ImagePath;  // remote directory of the images, empty or ending in "/"

private:
    void WriteScript(CHtmlText& html, const CString& prefix) const;
    void WriteStyle(CHtmlText& html, const CString& prefix) const;
    void WriteBox(CHtmlText& html, const CString& prefix, const CString& imageDirectory) const;
};

} // namespace orrelix
