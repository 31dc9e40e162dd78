// CPaddingDlg: edits the four paddings of an item. The caller sets the fields, runs the dialog and reads them
// back if it ended in IDOK.
#pragma once

#include "toolkit/dialog.h"

namespace orrelix {

class CPaddingDlg : public CDialog {
public:
    CPaddingDlg();

    // Decimal text, unless the person types something else. An empty one comes back as "0", and "12px" as
    // "12", since the spin controls write their positions.
    CString m_PaddingBottom;
    CString m_PaddingLeft;
    CString m_PaddingRight;
    CString m_PaddingTop;

protected:
    void OnInitDialog() override;
    void DoDataExchange(CDataExchange& exchange) override;
};

} // namespace orrelix
