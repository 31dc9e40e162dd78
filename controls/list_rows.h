// The rows of lists, as many dialogs handle them.
#pragma once

#include "platform/array.h"
#include "platform/string.h"

namespace orrelix {

class CListBox;
class CListCtrl;

CStringArray TextsOf(const CListBox& list);
// Behind the rows that are there.
void AddRows(CListBox& list, const CStringArray& texts);

// Selects the row, which has to exist.
void ReplaceRow(CListBox& list, int nRow, const CString& text);

// Exchanges the selected row with the one nStep rows away and selects it there. False where no row is selected
// or it has nowhere to go: nothing has changed then.
bool MoveSelectedRow(CListBox& list, int nStep);

// The texts of a row of a list view, by column.
CStringArray TextsOfRow(const CListCtrl& list, int nRow);

// Puts a row in front of nRow, 0 to the number of rows, and selects it. Rows selected before stay so where the
// list view can have several.
void InsertRow(CListCtrl& list, int nRow, const CStringArray& texts);

// Gives the row, which has to exist, other texts and selects it.
void ReplaceRow(CListCtrl& list, int nRow, const CStringArray& texts);

// Puts the first selected row nStep rows further and selects it there. False where no row is selected or it has
// nowhere to go: nothing has changed then.
bool MoveSelectedRow(CListCtrl& list, int nStep);

// Which of the buttons "Move Up" and "Move Down" a selected row allows, counted from 0; -1 allows none.
struct CMoves {
    bool m_bUp;
    bool m_bDown;
};
inline CMoves MovesOf(int nSelected, int nRows) {
    return {nSelected > 0, nSelected >= 0 && nSelected < nRows - 1};
}

} // namespace orrelix
