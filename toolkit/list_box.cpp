#include "toolkit/list_box.h"

#include "toolkit/dialog_description.h"

#include <algorithm>

namespace orrelix {

void CListBox::OnCreate(const CControlDescription& description) {
    m_Rows.RemoveAll();
    m_nCurSel = -1;
    m_bSorted = description.Has(STYLE_SORTED);
}

CString CListBox::GetText(int nRow) const {
    return HasRow(nRow) ? m_Rows[nRow] : CString();
}

int CListBox::AddString(const CString& text) {
    if (!m_bSorted)
        return InsertString(GetCount(), text);
    const auto place = std::upper_bound(m_Rows.begin(), m_Rows.end(), text, SortsBefore);
    return InsertString(static_cast<int>(place - m_Rows.begin()), text);
}

int CListBox::InsertString(int nRow, const CString& text) {
    if (nRow < 0 || nRow > GetCount())
        return -1;
    m_Rows.InsertAt(nRow, text);
    if (nRow <= m_nCurSel)
        ++m_nCurSel;
    TellObserver(ControlChange::RowsInserted, nRow, 1);
    return nRow;
}

void CListBox::DeleteString(int nRow) {
    if (!HasRow(nRow))
        return;
    m_Rows.RemoveAt(nRow);
    if (nRow == m_nCurSel)
        m_nCurSel = -1;
    else if (nRow < m_nCurSel)
        --m_nCurSel;
    TellObserver(ControlChange::RowsRemoved, nRow, 1);
}

void CListBox::ResetContent() {
    const int nCount = GetCount();
    m_Rows.RemoveAll();
    m_nCurSel = -1;
    TellObserver(ControlChange::RowsRemoved, 0, nCount);
}

void CListBox::SetCurSel(int nRow) {
    m_nCurSel = HasRow(nRow) ? nRow : -1;
    TellObserver(ControlChange::RowMarks);
}

void CListBox::PersonSelects(CPersonKey, int nRow) {
    if (!IsWindowEnabled() || !HasRow(nRow))
        return;
    SetCurSel(nRow);
    NotifyDialog(Notification::SelectionChanged);
}

void CListBox::PersonDoubleClicks(CPersonKey key, int nRow) {
    if (!IsWindowEnabled() || !HasRow(nRow))
        return;
    if (nRow != m_nCurSel)
        PersonSelects(key, nRow);
    NotifyDialog(Notification::DoubleClicked);
}

} // namespace orrelix
