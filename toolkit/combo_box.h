// CComboBox: a drop-down list, with an edit part above it or without one.
//
// GetWindowText is the edit part's text, or, without an edit part, the text of the selected row. Rows count
// from 0; -1 stands for no row.
#pragma once

#include "platform/array.h"
#include "toolkit/control.h"

namespace orrelix {

class CComboBox : public CControl {
public:
    bool HasEditPart() const { return m_bEditPart; }

    int GetCount() const { return static_cast<int>(m_Rows.GetSize()); }
    CString GetLBText(int nRow) const;

    // The row where the text went: the end, or its place in a sorted list.
    int AddString(const CString& text);
    // Takes away the rows, the selection and the text.
    void ResetContent();

    int GetCurSel() const { return m_nCurSel; }
    // Shows the row's text; -1, or a row that isn't there, takes selection and text away.
    void SetCurSel(int nRow);

    // A text that the list holds selects the first row with it. Any other text takes the selection away and
    // stands in the edit part; without an edit part nothing is shown then.
    void SetWindowText(const CString& text) override;

    // The edit part's text is now `text`; selects as SetWindowText does and notifies Changed. Without an edit
    // part nothing happens.
    void PersonTypes(CPersonKey, const CString& text);
    // Opens the list, picks the row and so closes it: notifies ListClosed.
    void PersonPicks(CPersonKey, int nRow);
    // Opens the list and closes it as it was: notifies ListClosed.
    void PersonClosesList(CPersonKey);

protected:
    void OnCreate(const CControlDescription& description) override;

private:
    void Show(int nRow, const CString& text);

    CStringArray m_Rows;
    int m_nCurSel = -1;
    bool m_bSorted = false;
    bool m_bEditPart = true;
};

} // namespace orrelix
