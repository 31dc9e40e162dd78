// CBorderPropertiesDlg: the dialog that edits a CSS border. The caller sets the fields, runs the dialog and
// reads them back if it ended in IDOK.
#pragma once

#include "controls/colour_dialog.h"

class CBorderPropertiesDlg : public CColourDialog {
public:
    CBorderPropertiesDlg();

    CString m_BorderStyle;
    CString m_BorderColor; // six hexadecimal digits
    CString m_BorderWidth; // decimal

protected:
    void OnInitDialog() override;
    void DoDataExchange(CDataExchange& exchange) override;
};
