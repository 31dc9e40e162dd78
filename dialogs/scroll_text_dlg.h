// The dialogs of Scroll Text.
#pragma once

#include "controls/font_dlg.h"
#include "dialogs/gadget_dialog.h"
#include "gadgets/scroll_text.h"

namespace orrelix {

class CListBox;

// Each row of the list of texts has its address in the same row of the list of addresses. Only "Add new text..."
// and "Delete a text" work on pairs: to move a text is to give it another address. "Modify" works on the selected
// row of its list, since all that selects a row or moves one keeps the two together.
class CScrollTextDlg : public CGadgetDialog<CScrollText> {
public:
    CScrollTextDlg();

protected:
    void ShowCopy() override;
    void ReadCopy() override;

private:
    void OnTextSelected();
    void OnUrlSelected();
    void OnModifyText();
    void OnModifyUrl();
    void OnAdd();
    void OnDelete();

    CListBox& Texts() const;
    CListBox& Urls() const;
    void Move(CListBox& list, int nStep) const;
    void EnableMoves() const;

    CString m_EditText;
    CString m_EditUrl;
};

// Asks for a text and its address.
class CAddTextDlg : public CFieldDialog {
public:
    CAddTextDlg();

    CString m_Text; // with line breaks
    CString m_Url;
};

// Edits how a link looks in one state. The caller sets the fields, runs the dialog and reads them back if it
// ended in IDOK.
class CLinkStyleDlg : public CFieldDialog {
public:
    CLinkStyleDlg();

    CString m_FontFace;
    CString m_FontSize;
    CString m_FontStyle;
    CString m_FontWeight;
    CString m_Decoration;
    CString m_Color; // six hexadecimal digits
    CString m_Cursor;

protected:
    void OnInitDialog() override { ShowTextsLast(); }
};

} // namespace orrelix
