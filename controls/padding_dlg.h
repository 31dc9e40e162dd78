// CPaddingDlg: edits the four paddings of an item. The caller sets the fields, runs the dialog and reads them
// back if it ended in IDOK.
#pragma once

#include "controls/field_dialog.h"

namespace orrelix {

class CPaddingDlg : public CFieldDialog {
public:
    CPaddingDlg();

    // Decimal text, unless the person types something else. An empty one comes back as "0", and "12px" as
    // "12", since the spin controls write their positions.
    CString m_PaddingBottom;
    CString m_PaddingLeft;
    CString m_PaddingRight;
    CString m_PaddingTop;

protected:
    void OnInitDialog() override { ShowNumbersLast(); }
};

// The four paddings, which lie in an effect or in a dialog's copy of it.
struct CPaddingFields {
    CString& m_Bottom;
    CString& m_Left;
    CString& m_Right;
    CString& m_Top;
};

// Runs the dialog on these texts, which change only if it ends in IDOK.
void EditPadding(const CPaddingFields& padding);

} // namespace orrelix
