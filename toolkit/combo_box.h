// CComboBox: a drop-down list, with an edit part above it or without one.
//
// GetWindowText is the edit part's text, or, without an edit part, the text of the selected row. Rows count
// from 0; -1 stands for no row.
#pragma once

#include "toolkit/control.h"

#include <vector>

namespace orrelix {

class CComboBox : public CControl {
public:
    bool HasEditPart() const { return m_bEditPart; }

    int GetCount() const { return static_cast<int>(m_Rows.size()); }
    CString GetLBText(int nRow) const;

    // What stands in the list for the row's text, in UTF-8; null where the text itself does.
    const char* GetShownText(int nRow) const { return HasRow(nRow) ? Row(nRow).m_pShown : nullptr; }

    // The row where the text went: the end, or its place in a sorted list. pShown as in CChoice, not owned.
    int AddString(const CString& text, const char* pShown = nullptr);
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
    struct CRow {
        CString m_Text;
        const char* m_pShown;
    };

    bool HasRow(int nRow) const { return nRow >= 0 && nRow < GetCount(); }
    const CRow& Row(int nRow) const { return m_Rows[static_cast<size_t>(nRow)]; }
    void Show(int nRow, const CString& text);

    std::vector<CRow> m_Rows;
    int m_nCurSel = -1;
    bool m_bSorted = false;
    bool m_bEditPart = true;
};

} // namespace orrelix
