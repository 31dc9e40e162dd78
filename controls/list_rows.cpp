#include "controls/list_rows.h"

#include "toolkit/list_box.h"
#include "toolkit/list_ctrl.h"

namespace orrelix {

CStringArray TextsOf(const CListBox& list) {
    CStringArray texts;
    for (int nRow = 0; nRow < list.GetCount(); ++nRow)
        texts.Add(list.GetText(nRow));
    return texts;
}

void AddRows(CListBox& list, const CStringArray& texts) {
    for (const CString& text : texts)
        list.AddString(text);
}

void ReplaceRow(CListBox& list, int nRow, const CString& text) {
    list.DeleteString(nRow);
    list.InsertString(nRow, text);
    list.SetCurSel(nRow);
}

bool MoveSelectedRow(CListBox& list, int nStep) {
    const int nFrom = list.GetCurSel();
    const int nTo = nFrom + nStep;
    if (nFrom < 0 || nTo < 0 || nTo >= list.GetCount())
        return false;
    const CString text = list.GetText(nFrom);
    list.DeleteString(nFrom);
    list.InsertString(nTo, text);
    list.SetCurSel(nTo);
    return true;
}

CStringArray TextsOfRow(const CListCtrl& list, int nRow) {
    CStringArray texts;
    for (int nColumn = 0; nColumn < list.GetColumnCount(); ++nColumn)
        texts.Add(list.GetItemText(nRow, nColumn));
    return texts;
}

void InsertRow(CListCtrl& list, int nRow, const CStringArray& texts) {
    list.InsertItem(nRow, texts[0]);
    ReplaceRow(list, nRow, texts);
}

void ReplaceRow(CListCtrl& list, int nRow, const CStringArray& texts) {
    for (int nColumn = 0; nColumn < static_cast<int>(texts.GetSize()); ++nColumn)
        list.SetItemText(nRow, nColumn, texts[nColumn]);
    list.SelectItem(nRow);
}

bool MoveSelectedRow(CListCtrl& list, int nStep) {
    const int nFrom = list.GetFirstSelected();
    const int nTo = nFrom + nStep;
    if (nFrom < 0 || nTo < 0 || nTo >= list.GetItemCount())
        return false;
    const CStringArray texts = TextsOfRow(list, nFrom);
    list.DeleteItem(nFrom);
    InsertRow(list, nTo, texts);
    return true;
}

} // namespace orrelix
