// The dialog of Animate Text.
#pragma once

#include "controls/list_rows.h"
#include "dialogs/gadget_dialog.h"
#include "gadgets/animate_text.h"

namespace orrelix {

class CAnimateTextDlg : public CGadgetDialog<CAnimateText> {
public:
    CAnimateTextDlg();

protected:
    void ShowCopy() override;
    void ReadCopy() override;

private:
    void OnAdd();
    void OnDelete();
    void OnModify();
    void OnSelectionChanged();

    CListBox& Messages() const;
    void EnableMoves(CMoves moves) const;
    void Move(int nStep);

    CString m_EditText;
    int m_nEditIndex = -1; // the row that "Modify" replaces; only a selection by the person sets it
};

} // namespace orrelix
