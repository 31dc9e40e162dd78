#include "toolkit/combo_box.h"

#include "toolkit/dialog_description.h"

#include <algorithm>

namespace orrelix {

void CComboBox::OnCreate(const CControlDescription& description) {
    m_Rows.clear();
    m_nCurSel = -1;
    m_bSorted = description.Has(STYLE_SORTED);
    m_bEditPart = !description.Has(STYLE_LIST_ONLY);
    for (const CChoice& choice : description.m_Choices)
        AddString(choice.m_pValue, choice.m_pShown);
}

CString CComboBox::GetLBText(int nRow) const {
    return HasRow(nRow) ? Row(nRow).m_Text : CString();
}

int CComboBox::AddString(const CString& text, const char* pShown) {
    auto place = m_Rows.end();
    if (m_bSorted) {
        place =
            std::upper_bound(m_Rows.begin(), m_Rows.end(), text, [](const CString& left, const CRow& right) {
                return SortsBefore(left, right.m_Text);
            });
    }
    const int nRow = static_cast<int>(place - m_Rows.begin());
    m_Rows.insert(place, {text, pShown});
    if (nRow <= m_nCurSel)
        ++m_nCurSel;
    TellObserver(ControlChange::RowsInserted, nRow, 1);
    return nRow;
}

void CComboBox::ResetContent() {
    const int nCount = GetCount();
    m_Rows.clear();
    TellObserver(ControlChange::RowsRemoved, 0, nCount);
    Show(-1, "");
}

void CComboBox::SetCurSel(int nRow) {
    Show(nRow < GetCount() ? nRow : -1, GetLBText(nRow));
}

void CComboBox::SetWindowText(const CString& text) {
    const auto row =
        std::find_if(m_Rows.begin(), m_Rows.end(), [&](const CRow& other) { return other.m_Text == text; });
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
    if (!IsWindowEnabled() || !HasRow(nRow))
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
