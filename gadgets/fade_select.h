// Fade Select Box: a drop-down list of links that fades in, each with a font, a tooltip and an image of its
// own. The page's scripts are fadeselect.js and fade.js.
#pragma once

#include "core/dhtml_gadget.h"
#include "gadgets/image_files.h"
#include "resources/addresses.h"

namespace orrelix {

// The font of an item. Empty strings give empty CSS values; the colour reaches the page without "#".
struct CFadeSelectFont {
    CString m_Family;
    CString m_Weight;
    CString m_Style;
    CString m_Size;
    CString m_Color;

    friend bool operator==(const CFadeSelectFont&, const CFadeSelectFont&) = default;
};

class CFadeSelect : public CGadget<CFadeSelect> {
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

    // Colours are six hexadecimal digits without "#"; lengths are pixels; a whole border is as WholeBorder
    // forms it and stands beside its three parts.

    // One entry per item in each of the six.
    CArray<CCoolLinkImage> m_ImageSizes = {{}, {}, {}, {}};
    CArray<CFadeSelectFont> m_ItemFonts = {{}, {}, {}, {}};
    CStringArray m_Links = {kHostProductHomePage, kHostProductHomePage, kHostProductHomePage, kMakerHomePage};
    CStringArray m_Texts = {"Our Homepage", "Welcome to FadeSelect", kHostProductHost, kMakerHost};
    CStringArray m_Images = {"", "", "", ""}; // full paths, empty for none
    CStringArray m_ToolTips = m_Texts;        // empty for none

    // The item under the mouse.
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

    // The box, the frame around it and its button, and the list.
    CString m_BoxHeight = "20";
    CString m_ScriptPath; // remote directory of the two script files, empty or ending in "/"
    CString m_Cursor = "hand";
    CString m_FadeSteps = "6"; // the number of steps of a fade
    CString m_FadeMsec = "5";  // milliseconds between two of them
    CString m_BoxMargin = "40";
    CString m_BoxWidth = "200";
    CString m_SelectBorder = "0 none #ffd700";
    CString m_SelectBorderStyle = "none";
    CString m_SelectBorderWidth = "0";
    CString m_SelectBorderColor = "ffd700";
    CString m_SelectBackColor = "ffad5b";
    CString m_SelectPadding = "1";
    CString m_TableBorder = "1 outset #c0c0c0";
    CString m_TableBorderStyle = "outset";
    CString m_TableBorderWidth = "1";
    CString m_TableBorderColor = "c0c0c0";
    CString m_TableBackColor = "32cd32"; // shows as the colour of the drop button
    CString m_OptionPaddingLeft = "1";
    CString m_OptionPaddingRight = "1";
    CString m_OptionPaddingTop = "1";
    CString m_OptionPaddingBottom = "1";
    CString m_ButtonWidth = "20";
    CString m_ButtonHeight = "20";
    CString m_ButtonPadding = "1";
    CString m_ButtonFontSize = "10"; // the size of its arrow
    CString m_DropBorder = "1 none #32cd32";
    CString m_DropBorderStyle = "none";
    CString m_DropBorderWidth = "1";
    CString m_DropBorderColor = "32cd32";
    CString m_ImagePath; // remote directory of the images, empty or ending in "/"
    CString m_Top = "100";
    CString m_Left = "100";
    CString m_Target; // empty, "self", "top", "blank" or "parent"
    CString m_DropBackColor = "ffad5b";
    CString m_ButtonBorder = "2 outset #00ff00";
    CString m_ButtonBorderWidth = "2";
    CString m_ButtonBorderColor = "00ff00";
    CString m_ButtonBorderStyle = "outset";

private:
    void WriteStyle(CHtmlText& html, const CString& prefix) const;
    void WriteScript(CHtmlText& html, const CString& prefix, const CString& imageDirectory) const;
    void WriteItem(CHtmlText& html, CStringArray::Index i, const CString& imageDirectory) const;
    CString GetBox(CVignelConfig& config, short mode);
};

} // namespace orrelix
