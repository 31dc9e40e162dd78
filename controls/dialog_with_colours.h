// CDialogWithColours: the base of dialogs with colours. A colour is an edit box of six hexadecimal digits with a
// picker beside it, each following the other.
//
//     CBorderDlg::CBorderDlg() : CDialogWithColours(BorderDescription()) {
//         AddColour(Id::Color, m_Color, "BORDER");
//     }
//     void CBorderDlg::OnInitDialog() {
//         ...
//         SetUpPickers();       // an empty colour becomes "c0c0c0"
//         UpdateData(false);    // and shows in its box only if this comes after
//     }
//
// The dialog's DoDataExchange carries the colours between the boxes and the fields as it does all others.
#pragma once

#include "controls/colour_picker.h"
#include "toolkit/dialog.h"

#include <list>

namespace orrelix {

class CDialogWithColours : public CDialog {
protected:
    using CDialog::CDialog;

    // The box `nEdit` edits the field `colour`. pSection names the settings where the picker remembers mixed
    // colours. In the constructor, in the order in which the pickers get their colours.
    void AddColour(int nEdit, CString& colour, const char* pSection);

    // Gives each picker its looks, its section and its colour. In OnInitDialog.
    void SetUpPickers();

private:
    struct CColourBox {
        CColourBox(CDialog& dialog, CString& colour, const char* pSection)
            : m_Colour(colour), m_pSection(pSection), m_Picker(dialog) {}

        CString& m_Colour;
        const char* m_pSection;
        CColourPicker m_Picker;
    };

    void OnColourTyped(CColourBox& box);
    void OnColourPicked();

    std::list<CColourBox> m_Boxes;
};

} // namespace orrelix
