// The dialogs of Link Select Table.
#pragma once

#include "dialogs/item_list_dlg.h"
#include "gadgets/cool_link.h"

namespace orrelix {

// Edits one item, whose texts the caller sets and, if the dialog ended in IDOK, reads back. Its spin controls
// write what they hold: a size that is no number comes back as one.
class CCoolLinkItemDlg : public CFieldDialog {
public:
    explicit CCoolLinkItemDlg(bool bModify = false);

    const bool m_bModify; // false for a new item, whose address is asked for from nothing each time
    CString m_ItemText;
    CString m_Link; // which no control shows
    CString m_ImageFile;
    CString m_ImageWidth;
    CString m_ImageHeight;
    CString m_ImageBorder;

protected:
    void OnInitDialog() override { ShowNumbersLast(); }
};

// Edits the look of one kind of items. The caller sets the texts and, if the dialog ended in IDOK, reads them back.
class CCoolLinkStyleDlg : public CFieldDialog {
public:
    CCoolLinkStyleDlg();

    CString m_BorderWidth;
    CString m_BorderStyle;
    CString m_BorderColor;
    CString m_BackColor;
    CString m_TextColor;
    CString m_FontFace;
    CString m_FontSize;
    CString m_FontStyle;
    CString m_FontWeight;
    CString m_PaddingLeft;
    CString m_PaddingRight;
    CString m_PaddingBottom;
    CString m_PaddingTop;

protected:
    void OnInitDialog() override { ShowTextsLast(); }
};

class CCoolLinkDlg : public CItemListDialog<CCoolLink, CCoolLinkItemDlg> {
public:
    CCoolLinkDlg();

protected:
    void ReadCopy() override;
    void SetItemCount(CStringArray::Index nItems) override;
    void OnAdded(int nSelected, int nRows) override;

private:
    void OnSelectedItem();
    void OnNormalItem();
};

} // namespace orrelix
