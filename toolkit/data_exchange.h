// CDataExchange: carries values between a dialog's controls and its fields, in the direction that
// CDialog::UpdateData gives. Neither direction notifies the dialog.
#pragma once

#include "platform/string.h"

namespace orrelix {

class CDialog;

class CDataExchange {
public:
    CDataExchange(CDialog& dialog, bool bSave) : m_Dialog(dialog), m_bSave(bSave) {}

    // The text of an edit box, static text or combo box. A combo box that is given a text of its list selects
    // that row.
    void Text(int nId, CString& value);

    // The position of a slider, in decimal digits.
    void Position(int nId, CString& value);

    // The selected row of a combo box, -1 for none.
    void Index(int nId, int& nValue);

private:
    CDialog& m_Dialog;
    bool m_bSave;
};

} // namespace orrelix
