// CFieldDialog: the base of dialogs whose controls edit texts. A text is named once, with its control; its place
// in the transfers, its spin control or its colour button follow from that.
//
//     CBorderDlg::CBorderDlg() : CFieldDialog(BorderDescription()) {
//         AddFields({{Id::Style, m_BorderStyle}, {Id::Width, m_BorderWidth}});
//         AddColour(Id::Color, m_BorderColor, "BORDER");
//     }
//     void CBorderDlg::OnInitDialog() { ShowNumbersLast(); }
//
// A colour is an edit box of six hexadecimal digits with a picker beside it, each following the other.
#pragma once

#include "controls/colour_picker.h"
#include "controls/font_fields.h"
#include "toolkit/dialog.h"

#include <initializer_list>
#include <list>
#include <vector>

namespace orrelix {

class CFieldDialog : public CDialog {
protected:
    using CDialog::CDialog;

    // The text that a control edits: of an edit box, with a spin control or without, of a combo box or of a
    // static text. It has to stay where it is.
    struct CField {
        int m_nId;
        CString& m_Text;
    };

    // In the constructor, as the next seven.
    void AddFields(std::initializer_list<CField> fields);

    // A slider, whose text is its position.
    void AddSlider(int nSlider, CString& position);

    // A combo box without edit part that offers the link targets. A word of none of them selects nothing, and
    // stays until something is picked.
    void AddLinkTarget(int nComboBox, CString& word);

    // The button by which the person chooses an image file for a field.
    void AddImageFile(int nButton, CString& path);

    // pSection names the settings where the picker remembers mixed colours. One colour that is picked sets all
    // of the dialog from their pickers.
    void AddColour(int nEdit, CString& colour, const char* pSection);

    // A button that opens CFontPropertiesDlg on the font, or without bHandIn an empty one. Beside it stands what
    // font that is.
    void AddFont(int nButton, const CFontFields& font, bool bHandIn = true);
    // The same with CCalanderFontDlg.
    void AddFont(int nButton, const CFontFields& font, CString& align);
    // The same with CUrlDlg and an address, which stands beside the button.
    void AddUrl(int nButton, CString& url, bool bHandIn = true);

    // The two orders in which a dialog starts, for OnInitDialog. They decide what the boxes show.

    // Spin controls and pickers first, the fields last: a number box shows its field's own text ("90%", ""), and
    // an empty colour becomes "c0c0c0" and shows so.
    void ShowTextsLast();

    // The fields first, spin controls and pickers last: a number box shows its spin control's number ("90", "0"),
    // which OK then stores; the box of an empty colour stays empty beside a picker of "c0c0c0".
    void ShowNumbersLast();

    void DoDataExchange(CDataExchange& exchange) override;

    void OnClick(int nButton, std::function<void()> handler) {
        SetHandler(nButton, Notification::Clicked, std::move(handler));
    }

private:
    struct CColourBox {
        CColourBox(CDialog& dialog, CString& colour, const char* pSection)
            : m_Colour(colour), m_pSection(pSection), m_Picker(dialog) {}

        CString& m_Colour;
        const char* m_pSection;
        CColourPicker m_Picker;
    };

    void SetUpSpins();
    void SetUpPickers();
    void OnColourTyped(CColourBox& box);
    void OnColourPicked();

    std::vector<CField> m_Fields;
    std::vector<CField> m_Sliders;
    std::vector<CField> m_LinkTargets;
    std::list<CColourBox> m_Boxes;
};

// A text of the caller's and the field of a dialog that edits it.
struct CHandedText {
    CString& m_Text;
    CString& m_Field;
};

// Runs a dialog on these texts, which change only if it ends in IDOK: then true. Without bHandIn the dialog starts
// with its own fields, which are empty in a new one.
bool EditThrough(CDialog& dialog, std::initializer_list<CHandedText> texts, bool bHandIn = true);

} // namespace orrelix
