// The dialog of Animate Text.
#pragma once

#include "controls/dialog_with_colours.h"
#include "gadgets/animate_text.h"

namespace orrelix {

class CListBox;

class CAnimateTextDlg : public CDialogWithColours {
public:
    CAnimateTextDlg();

    CAnimateText* m_pGadget = nullptr; // set before the run; written on OK only

protected:
    void OnInitDialog() override;
    void DoDataExchange(CDataExchange& exchange) override;
    void OnOK() override;

private:
    void OnAdd();
    void OnDelete();
    void OnModify();
    void OnMoveUp();
    void OnMoveDown();
    void OnSelectionChanged();
    void OnFont();

    CListBox& Messages() const;
    void EnableMoves(bool bUp, bool bDown) const;

    CAnimateText m_Copy; // what the dialog edits, but for the messages, which are the list's rows
    CString m_EditText;
    int m_nEditIndex = -1; // the row that "Modify" replaces; only a selection by the person sets it
};

} // namespace orrelix
