// The dialogs that edit a CSS font. The caller sets the fields, runs the dialog and reads them back if it
// ended in IDOK.
#pragma once

#include "controls/field_dialog.h"

namespace orrelix {

// What the two have in common: the list of the system's font families, of which a double click puts one into
// the box of font faces, so that the box grows into a CSS family list.
class CFontDlg : public CFieldDialog {
public:
    CString m_FontWeight;
    CString m_FontFace;
    CString m_FontSize;
    CString m_FontStyle;

    // Runs the dialog on these texts, which change only if it ends in IDOK: then true.
    bool Edit(const CFontFields& font, bool bHandIn = true);

protected:
    explicit CFontDlg(const CDialogDescription& description);

    void OnInitDialog() override;

private:
    void OnFamilyDoubleClicked();
};

class CFontPropertiesDlg : public CFontDlg {
public:
    CFontPropertiesDlg();
};

// Runs CFontPropertiesDlg on these texts, which change only if it ends in IDOK. Without bHandIn it starts empty.
void EditFont(const CFontFields& font, bool bHandIn = true);

// With an alignment of the text.
class CCalanderFontDlg : public CFontDlg {
public:
    CCalanderFontDlg();

    CString m_TextAlign;
};

// Runs CCalanderFontDlg in the same way.
void EditCalanderFont(const CFontFields& font, CString& align);

} // namespace orrelix
