// CBorderPropertiesDlg: the dialog that edits a CSS border. The caller sets the fields, runs the dialog and
// reads them back if it ended in IDOK.
#pragma once

#include "controls/dialog_with_colours.h"

namespace orrelix {

class CBorderPropertiesDlg : public CDialogWithColours {
public:
    CBorderPropertiesDlg();

    CString m_BorderStyle;
    CString m_BorderColor; // six hexadecimal digits
    CString m_BorderWidth; // decimal

protected:
    void OnInitDialog() override;
    void DoDataExchange(CDataExchange& exchange) override;
};

} // namespace orrelix
