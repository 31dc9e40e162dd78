// CBorderPropertiesDlg: the dialog that edits a CSS border. The caller sets the fields, runs the dialog and
// reads them back if it ended in IDOK.
#pragma once

#include "controls/field_dialog.h"

namespace orrelix {

class CBorderPropertiesDlg : public CFieldDialog {
public:
    CBorderPropertiesDlg();

    CString m_BorderStyle;
    CString m_BorderColor; // six hexadecimal digits
    CString m_BorderWidth; // decimal

protected:
    void OnInitDialog() override { ShowNumbersLast(); }
};

// The three parts of a border, which lie in an effect or in a dialog's copy of it.
struct CBorderFields {
    CString& m_Width;
    CString& m_Style;
    CString& m_Color;
};

// Runs the dialog on these texts, which change only if it ends in IDOK.
void EditBorder(const CBorderFields& border);

} // namespace orrelix
