#include "toolkit/list_ctrl.h"

#include "platform/paths.h"

#include <algorithm>

namespace orrelix {

namespace {

// Where a marked row stands after a row was put in, or taken out, at nRow.
void ShiftOnInsert(int& nMarked, int nRow) {
    if (nMarked >= nRow)
        ++nMarked;
}
void ShiftOnDelete(int& nMarked, int nRow) {
    if (nMarked > nRow)
        --nMarked;
}

} // namespace

void CListCtrl::OnCreate(const CControlDescription& description) {
    m_Columns.clear();
    m_Rows.clear();
    m_Images.RemoveAll();
    m_nFocused = m_nHot = -1;
    m_LabelEdit = {};
    m_bEditing = false;
    m_bReport = description.Has(STYLE_REPORT);
    m_bMultiple = description.Has(STYLE_MULTIPLE_SELECTION);
    m_bSorted = description.Has(STYLE_SORTED);
    m_bEditLabels = description.Has(STYLE_EDIT_LABELS);
}

void CListCtrl::InsertColumn(int nColumn, const CString& heading, int nExtraWidth, unsigned nStyle) {
    const int nPlace = std::clamp(nColumn, 0, GetColumnCount());
    m_Columns.insert(m_Columns.begin() + nPlace, {heading, nExtraWidth, nStyle});
    TellObserver(ControlChange::Columns);
}

CString CListCtrl::GetItemText(int nRow, int nColumn) const {
    if (!HasRow(nRow) || nColumn < 0 || static_cast<size_t>(nColumn) >= Row(nRow).m_Texts.size())
        return {};
    return Row(nRow).m_Texts[static_cast<size_t>(nColumn)];
}

void CListCtrl::SetItemText(int nRow, int nColumn, const CString& text) {
    if (!HasRow(nRow) || nColumn < 0)
        return;
    std::vector<CString>& texts = Row(nRow).m_Texts;
    if (texts.size() <= static_cast<size_t>(nColumn))
        texts.resize(static_cast<size_t>(nColumn) + 1);
    texts[static_cast<size_t>(nColumn)] = text;
    TellObserver(ControlChange::RowsChanged, nRow, 1);
}

CString CListCtrl::ForPerson(int nRow, int nColumn) const {
    const CString text = GetItemText(nRow, nColumn);
    const bool bPath = nColumn < GetColumnCount() && (GetColumn(nColumn).m_nStyle & STYLE_PATH) != 0;
    return bPath ? CString(SystemSpelling(text)) : text;
}

int CListCtrl::InsertItem(int nRow, const CString& text, int nImage) {
    if (m_bSorted) {
        const auto place =
            std::upper_bound(m_Rows.begin(), m_Rows.end(), text, [](const CString& left, const CRow& right) {
                return SortsBefore(left, right.m_Texts.front());
            });
        nRow = static_cast<int>(place - m_Rows.begin());
    }
    nRow = std::clamp(nRow, 0, GetItemCount());
    m_Rows.insert(m_Rows.begin() + nRow, CRow{{text}, nImage, false});
    for (int* pMarked : {&m_nFocused, &m_nHot, &m_LabelEdit.m_nRow})
        ShiftOnInsert(*pMarked, nRow);
    TellObserver(ControlChange::RowsInserted, nRow, 1);
    return nRow;
}

void CListCtrl::DeleteItem(int nRow) {
    if (!HasRow(nRow))
        return;
    m_Rows.erase(m_Rows.begin() + nRow);
    if (m_nHot == nRow)
        m_nHot = -1;
    if (m_bEditing && m_LabelEdit.m_nRow == nRow)
        m_bEditing = false;
    for (int* pMarked : {&m_nFocused, &m_nHot, &m_LabelEdit.m_nRow})
        ShiftOnDelete(*pMarked, nRow);
    m_nFocused = std::min(m_nFocused, GetItemCount() - 1);
    TellObserver(ControlChange::RowsRemoved, nRow, 1);
}

void CListCtrl::DeleteAllItems() {
    const int nCount = GetItemCount();
    m_Rows.clear();
    m_nFocused = m_nHot = -1;
    m_bEditing = false;
    TellObserver(ControlChange::RowsRemoved, 0, nCount);
}

void CListCtrl::SelectItem(int nRow, bool bSelect) {
    if (!HasRow(nRow) || Row(nRow).m_bSelected == bSelect)
        return;
    if (bSelect && !m_bMultiple)
        SelectItem(GetFirstSelected(), false);
    Row(nRow).m_bSelected = bSelect;
    TellObserver(ControlChange::RowMarks, nRow, 1);
}

bool CListCtrl::IsSelected(int nRow) const {
    return HasRow(nRow) && Row(nRow).m_bSelected;
}

int CListCtrl::GetFirstSelected() const {
    const auto row = std::find_if(m_Rows.begin(), m_Rows.end(), [](const CRow& r) { return r.m_bSelected; });
    return row == m_Rows.end() ? -1 : static_cast<int>(row - m_Rows.begin());
}

int CListCtrl::GetSelectedCount() const {
    return static_cast<int>(
        std::count_if(m_Rows.begin(), m_Rows.end(), [](const CRow& row) { return row.m_bSelected; }));
}

void CListCtrl::Mark(int& nMarked, int nRow) {
    const int nBefore = nMarked;
    nMarked = HasRow(nRow) ? nRow : -1;
    for (int nChanged : {nBefore, nMarked}) {
        if (nBefore != nMarked && nChanged >= 0)
            TellObserver(ControlChange::RowMarks, nChanged, 1);
    }
}

void CListCtrl::SetFocusedItem(int nRow) {
    Mark(m_nFocused, nRow);
}

void CListCtrl::SetHotItem(int nRow) {
    Mark(m_nHot, nRow);
}

int CListCtrl::GetItemImage(int nRow) const {
    return HasRow(nRow) ? Row(nRow).m_nImage : -1;
}

void CListCtrl::EditLabel(int nRow) {
    if (!m_bEditLabels || !HasRow(nRow))
        return;
    m_LabelEdit = {nRow, GetItemText(nRow, 0), false};
    m_bEditing = true;
    TellObserver(ControlChange::LabelEdit, nRow, 1);
}

void CListCtrl::PersonSelects(CPersonKey, const std::vector<int>& rows, int nFocused) {
    if (!IsWindowEnabled())
        return;
    std::vector<bool> selected(m_Rows.size());
    for (int nRow : rows) {
        if (!m_bMultiple)
            selected.assign(m_Rows.size(), false);
        if (HasRow(nRow))
            selected[static_cast<size_t>(nRow)] = true;
    }
    for (int nRow = 0; nRow < GetItemCount(); ++nRow) {
        if (Row(nRow).m_bSelected != selected[static_cast<size_t>(nRow)]) {
            Row(nRow).m_bSelected = !Row(nRow).m_bSelected;
            TellObserver(ControlChange::RowMarks, nRow, 1);
        }
    }
    SetFocusedItem(nFocused);
    NotifyDialog(Notification::Clicked);
}

bool CListCtrl::PersonStartsLabelEdit(CPersonKey, int nRow) {
    if (!IsWindowEnabled() || !m_bEditLabels || !HasRow(nRow))
        return false;
    m_LabelEdit = {nRow, GetItemText(nRow, 0), false};
    m_bEditing = true;
    return true;
}

void CListCtrl::PersonEndsLabelEdit(CPersonKey, const CString& text, bool bCancelled) {
    if (!m_bEditing)
        return;
    m_bEditing = false;
    m_LabelEdit.m_Text = text;
    m_LabelEdit.m_bCancelled = bCancelled;
    NotifyDialog(Notification::LabelEditEnded);
}

} // namespace orrelix
