// CListCtrl: a list view, in report mode with columns or in list mode without them, for one selected row or
// several.
//
// Rows and columns count from 0; -1 stands for no row. Beside the selected rows there are two marks: the
// focused row, where the keyboard is, and the hot row, which is only shown. An operation on a row that isn't
// there does nothing and gives -1 or an empty text.
#pragma once

#include "platform/array.h"
#include "toolkit/control.h"
#include "toolkit/dialog_description.h"

#include <vector>

namespace orrelix {

class CListCtrl : public CControl {
public:
    struct CColumn {
        CString m_Heading;
        int m_nExtraWidth; // the column is as wide as its heading's text and this many pixels
        unsigned m_nStyle; // STYLE_NONE or STYLE_PATH
    };

    // How the editing of a label ended.
    struct CLabelEdit {
        int m_nRow = -1;
        CString m_Text; // what the person left in the box
        bool m_bCancelled = false;
    };

    bool IsReport() const { return m_bReport; }
    bool IsMultipleSelection() const { return m_bMultiple; }
    bool AllowsLabelEditing() const { return m_bEditLabels; }

    int GetColumnCount() const { return static_cast<int>(m_Columns.size()); }
    const CColumn& GetColumn(int nColumn) const { return m_Columns[static_cast<size_t>(nColumn)]; }
    void InsertColumn(int nColumn, const CString& heading, int nExtraWidth, unsigned nStyle = STYLE_NONE);

    int GetItemCount() const { return static_cast<int>(m_Rows.size()); }
    CString GetItemText(int nRow, int nColumn) const;
    void SetItemText(int nRow, int nColumn, const CString& text);
    // What a desktop shows as that text: in a column of paths the system's spelling.
    CString ForPerson(int nRow, int nColumn) const;
    // Puts a row at nRow, 0 to GetItemCount(), with the text in column 0, and gives the row where it went: a
    // sorted list finds the place itself. nImage is an index into the image list, -1 for none.
    int InsertItem(int nRow, const CString& text, int nImage = -1);
    // The focused and the hot row stay on their rows; when the focused row itself goes, the one that takes
    // its place is focused.
    void DeleteItem(int nRow);
    void DeleteAllItems();

    // Where only one row can be selected, selecting one unselects the others.
    void SelectItem(int nRow, bool bSelect = true);
    bool IsSelected(int nRow) const;
    int GetFirstSelected() const;
    int GetSelectedCount() const;

    int GetFocusedItem() const { return m_nFocused; }
    void SetFocusedItem(int nRow);
    int GetHotItem() const { return m_nHot; }
    void SetHotItem(int nRow);

    // The files whose icons the rows show, by image index. A window draws what the system has for each file,
    // or any icon for a file.
    void SetImageList(const CStringArray& files) { m_Images = files; }
    const CStringArray& GetImageList() const { return m_Images; }
    int GetItemImage(int nRow) const;

    // Asks the window to edit the row's label in place. Nothing changes but by the dialog's handler for
    // LabelEditEnded, which reads GetLabelEdit.
    void EditLabel(int nRow);
    const CLabelEdit& GetLabelEdit() const { return m_LabelEdit; }

    // Exactly these rows are now selected (the last one of them where only one can be), and nFocused is the
    // focused row. Notifies Clicked, also when everything was so before, as a click does.
    void PersonSelects(CPersonKey, const std::vector<int>& rows, int nFocused);
    // The person began to edit the row's label. False when labels can't be edited: don't.
    bool PersonStartsLabelEdit(CPersonKey, int nRow);
    // The editing that the person or EditLabel began is over. Notifies LabelEditEnded; where no label was
    // being edited, does nothing.
    void PersonEndsLabelEdit(CPersonKey, const CString& text, bool bCancelled);

protected:
    void OnCreate(const CControlDescription& description) override;

private:
    struct CRow {
        std::vector<CString> m_Texts; // by column; what is missing is empty
        int m_nImage = -1;
        bool m_bSelected = false;
    };

    bool HasRow(int nRow) const { return nRow >= 0 && nRow < GetItemCount(); }
    CRow& Row(int nRow) { return m_Rows[static_cast<size_t>(nRow)]; }
    const CRow& Row(int nRow) const { return m_Rows[static_cast<size_t>(nRow)]; }
    void Mark(int& nMarked, int nRow);

    std::vector<CColumn> m_Columns;
    std::vector<CRow> m_Rows;
    CStringArray m_Images;
    int m_nFocused = -1;
    int m_nHot = -1;
    CLabelEdit m_LabelEdit;
    bool m_bEditing = false;
    bool m_bReport = false;
    bool m_bMultiple = false;
    bool m_bSorted = false;
    bool m_bEditLabels = false;
};

} // namespace orrelix
