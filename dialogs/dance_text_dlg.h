// The dialogs of Color Link.
#pragma once

#include "controls/list_rows.h"
#include "dialogs/gadget_dialog.h"
#include "gadgets/dance_text.h"

namespace orrelix {

class CDanceTextDlg : public CGadgetDialog<CDanceText> {
public:
    CDanceTextDlg();

protected:
    void ShowCopy() override;
    void ReadCopy() override;

private:
    void OnAdd();
    void OnDelete();
    void OnModify();
    void OnSelectionChanged();

    CListBox& Colors() const;
    void EnableMoves(CMoves moves) const;
    void Move(int nStep);
};

// Asks for one colour.
class CColorDlg : public CFieldDialog {
public:
    CColorDlg();

    CString m_Color; // set by the caller, and read back if the dialog ended in IDOK; any text passes

protected:
    void OnInitDialog() override { ShowNumbersLast(); }
};

} // namespace orrelix
