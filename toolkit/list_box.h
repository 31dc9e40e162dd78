// CListBox: rows of text of which one at most is selected.
//
// Rows count from 0; -1 stands for no row. An operation on a row that isn't there does nothing and gives -1
// or an empty text.
#pragma once

#include "platform/array.h"
#include "toolkit/control.h"

namespace orrelix {

class CListBox : public CControl {
public:
    int GetCount() const { return static_cast<int>(m_Rows.GetSize()); }
    CString GetText(int nRow) const;

    // The row where the text went: the end, or its place in a sorted list.
    int AddString(const CString& text);
    // Puts the text at nRow, 0 to GetCount(), also into a sorted list.
    int InsertString(int nRow, const CString& text);
    // The selection stays on its row; when that row itself goes, nothing is selected.
    void DeleteString(int nRow);
    void ResetContent();

    int GetCurSel() const { return m_nCurSel; }
    // -1 takes the selection away; so does a row that isn't there.
    void SetCurSel(int nRow);

    // Notifies SelectionChanged, also when the row was selected already, as a click does.
    void PersonSelects(CPersonKey, int nRow);
    // Selects the row, with its notification, unless the first of the two clicks has done so, and notifies
    // DoubleClicked.
    void PersonDoubleClicks(CPersonKey key, int nRow);

protected:
    void OnCreate(const CControlDescription& description) override;

private:
    bool HasRow(int nRow) const { return nRow >= 0 && nRow < GetCount(); }

    CStringArray m_Rows;
    int m_nCurSel = -1;
    bool m_bSorted = false;
};

} // namespace orrelix
