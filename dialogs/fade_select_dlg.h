// The dialogs of Fade Select Box.
#pragma once

#include "dialogs/item_list_dlg.h"
#include "gadgets/fade_select.h"

namespace orrelix {

// Edits one item, whose texts the caller sets and, if the dialog ended in IDOK, reads back.
class CFadeItemDlg : public CFieldDialog {
public:
    explicit CFadeItemDlg(bool bModify = false);

    CString m_Url; // which no control shows
    CString m_FontFace;
    CString m_FontWeight;
    CString m_FontSize;
    CString m_FontStyle;
    const bool m_Modify; // false for a new item: then address and font are asked for from nothing each time
    CString m_Color;
    CString m_ToolTip;
    CString m_ImageBorder;
    CString m_ImageHeight;
    CString m_ImageWidth;
    CString m_Text;
    CString m_Image;

protected:
    void OnInitDialog() override { ShowTextsLast(); }
};

// The item under the mouse.
class CSelectedItemDlg : public CGadgetDialog<CFadeSelect> {
public:
    CSelectedItemDlg();
};

// The list that drops down.
class CDropTableDlg : public CGadgetDialog<CFadeSelect> {
public:
    CDropTableDlg();
};

// The frame of the box and its button.
class CDropButtonDlg : public CGadgetDialog<CFadeSelect> {
public:
    CDropButtonDlg();

protected:
    void ShowFields() override { ShowNumbersLast(); } // unlike in the others
};

class CFadeSelectDlg : public CItemListDialog<CFadeSelect, CFadeItemDlg> {
public:
    CFadeSelectDlg();

protected:
    void ReadCopy() override;
    void SetItemCount(CStringArray::Index nItems) override;
    void OnAdded(int nSelected, int nRows) override;
};

} // namespace orrelix
