#include "toolkit/combo_box.h"

#include "toolkit/dialog_description.h"

#include <algorithm>

namespace orrelix {

void CComboBox::OnCreate(const CControlDescription& description) {
    m_Rows.RemoveAll();
    m_nCurSel = -1;
    m_bSorted = description.Has(STYLE_SORTED);
    m_bEditPart = !description.Has(STYLE_LIST_ONLY);
    for (const char* pChoice : description.m_Choices)
        AddString(pChoice);
}

CString CComboBox::GetLBText(int nRow) const {
    return nRow >= 0 && nRow < GetCount() ? m_Rows[nRow] : CString();
}

int CComboBox::AddString(const CString& text) {
    const auto place =
        m_bSorted ? std::upper_bound(m_Rows.begin(), m_Rows.end(), text, SortsBefore) : m_Rows.end();
    const int nRow = static_cast<int>(place - m_Rows.begin());
    m_Rows.InsertAt(nRow, text);
    if (nRow <= m_nCurSel)
        ++m_nCurSel;
    TellObserver(ControlChange::RowsInserted, nRow, 1);
    return nRow;
}

void CComboBox::ResetContent() {
    const int nCount = GetCount();
    m_Rows.RemoveAll();
    TellObserver(ControlChange::RowsRemoved, 0, nCount);
    Show(-1, "");
}

void CComboBox::SetCurSel(int nRow) {
    Show(nRow < GetCount() ? nRow : -1, GetLBText(nRow));
}

void CComboBox::SetWindowText(const CString& text) {
    const auto row = std::find(m_Rows.begin(), m_Rows.end(), text);
    if (row != m_Rows.end())
        SetCurSel(static_cast<int>(row - m_Rows.begin()));
    else
        Show(-1, m_bEditPart ? text : CString());
}

void CComboBox::PersonTypes(CPersonKey, const CString& text) {
    if (!IsWindowEnabled() || !m_bEditPart)
        return;
    SetWindowText(text);
    NotifyDialog(Notification::Changed);
}

void CComboBox::PersonPicks(CPersonKey, int nRow) {
    if (!IsWindowEnabled() || nRow < 0 || nRow >= GetCount())
        return;
    SetCurSel(nRow);
    NotifyDialog(Notification::ListClosed);
}

void CComboBox::PersonClosesList(CPersonKey) {
    if (IsWindowEnabled())
        NotifyDialog(Notification::ListClosed);
}

void CComboBox::Show(int nRow, const CString& text) {
    if (nRow != m_nCurSel) {
        m_nCurSel = nRow;
        TellObserver(ControlChange::RowMarks);
    }
    CControl::SetWindowText(text);
}

} // namespace orrelix
