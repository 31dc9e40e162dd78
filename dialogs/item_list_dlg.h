// CItemListDialog: the base of the dialogs of effects whose items stand in a list view. An item is a row; a dialog
// of its own edits it, whose texts are those of the row. The rows become the effect's items on OK.
#pragma once

#include "controls/list_rows.h"
#include "dialogs/gadget_dialog.h"
#include "resources/item_list_description.h"
#include "toolkit/desktop.h"
#include "toolkit/list_ctrl.h"

#include <algorithm>
#include <span>

namespace orrelix {

// A column of the list: one text of each item, where the item's dialog has it and where the effect.
template <class TGadget, class TItemDlg>
struct CItemColumn {
    const char* m_pHeading;
    int m_nExtraWidth;
    CString TItemDlg::*m_pField;
    CString& (*m_pOf)(TGadget& gadget, CStringArray::Index nItem);
    unsigned m_nStyle = STYLE_NONE; // of the list's column
};

// The text of an item in a list of the effect, or that member of it.
template <auto pList, class TGadget>
CString& OfItem(TGadget& gadget, CStringArray::Index nItem) {
    return (gadget.*pList)[nItem];
}
template <auto pList, auto pMember, class TGadget>
CString& OfItem(TGadget& gadget, CStringArray::Index nItem) {
    return (gadget.*pList)[nItem].*pMember;
}

// The description holds an ItemList. TItemDlg is made for a new item, or with true for one that is modified.
template <class TGadget, class TItemDlg>
class CItemListDialog : public CGadgetDialog<TGadget> {
protected:
    using Columns = std::span<const CItemColumn<TGadget, TItemDlg>>;

    CItemListDialog(const CDialogDescription& description, Columns columns)
        : CGadgetDialog<TGadget>(description), m_Columns(columns) {
        using Id = ItemListId;
        this->OnClick(Id::Add, [this] { OnAdd(); });
        this->OnClick(Id::Delete, [this] { OnDelete(); });
        this->OnClick(Id::Modify, [this] { OnModify(); });
        this->OnClick(Id::MoveUp, [this] { Move(-1); });
        this->OnClick(Id::MoveDown, [this] { Move(1); });
        this->OnClick(Id::Items, [this] { EnableMoves(MovesOf(SelectedRow(), CountRows())); });
    }

    // Gives each of the copy's lists of items this length.
    virtual void SetItemCount(CStringArray::Index nItems) = 0;
    // Sets the move buttons when a row has come behind the others. Before that, nSelected was selected of nRows.
    virtual void OnAdded(int nSelected, int nRows) = 0;

    void ShowCopy() override {
        EnableMoves({false, false});
        for (size_t nColumn = 0; nColumn < m_Columns.size(); ++nColumn)
            Items().InsertColumn(static_cast<int>(nColumn), m_Columns[nColumn].m_pHeading,
                                 m_Columns[nColumn].m_nExtraWidth, m_Columns[nColumn].m_nStyle);
        SetItemCount(this->m_Copy.m_Texts.GetSize());
        for (CStringArray::Index nItem = 0; nItem < this->m_Copy.m_Texts.GetSize(); ++nItem)
            InsertRow(Items(), CountRows(),
                      RowOf([&](const auto& column) { return column.m_pOf(this->m_Copy, nItem); }));
    }

    void ReadCopy() override {
        SetItemCount(CountRows());
        for (int nRow = 0; nRow < CountRows(); ++nRow) {
            for (size_t nColumn = 0; nColumn < m_Columns.size(); ++nColumn)
                m_Columns[nColumn].m_pOf(this->m_Copy, nRow) =
                    Items().GetItemText(nRow, static_cast<int>(nColumn));
        }
    }

    void EnableMoves(CMoves moves) const {
        this->Enable(ItemListId::MoveUp, moves.m_bUp);
        this->Enable(ItemListId::MoveDown, moves.m_bDown);
    }

private:
    CListCtrl& Items() const { return this->template Item<CListCtrl>(ItemListId::Items); }
    int CountRows() const { return Items().GetItemCount(); }
    // The first one, where several can be selected.
    int SelectedRow() const { return Items().GetFirstSelected(); }

    // A row of what `textOf` gives for each column.
    template <class TTextOf>
    CStringArray RowOf(TTextOf textOf) const {
        CStringArray texts;
        for (const auto& column : m_Columns)
            texts.Add(textOf(column));
        return texts;
    }
    CStringArray RowOf(const TItemDlg& item) const {
        return RowOf([&](const auto& column) { return item.*column.m_pField; });
    }

    void OnAdd() {
        const int nSelected = SelectedRow();
        const int nRows = CountRows();
        TItemDlg item;
        if (item.DoModal() != IDOK)
            return;
        InsertRow(Items(), nRows, RowOf(item));
        OnAdded(nSelected, nRows);
    }

    void OnDelete() {
        const int nRow = SelectedRow();
        if (nRow < 0) {
            AfxMessageBox("Please select an item to delete!");
            return;
        }
        Items().DeleteItem(nRow);
        const int nLast = CountRows() - 1;
        Items().SetHotItem(std::min(nRow, nLast));
        if (nLast < 1)
            EnableMoves({false, false});
        else if (nRow == nLast)
            EnableMoves({true, false});
    }

    void OnModify() {
        const int nRow = SelectedRow();
        if (nRow < 0) {
            AfxMessageBox("Please select an item to modify!");
            return;
        }
        TItemDlg item(true);
        for (size_t nColumn = 0; nColumn < m_Columns.size(); ++nColumn)
            item.*m_Columns[nColumn].m_pField = Items().GetItemText(nRow, static_cast<int>(nColumn));
        if (item.DoModal() == IDOK)
            ReplaceRow(Items(), nRow, RowOf(item));
    }

    // The move buttons can be enabled without a row, or with one that has nowhere to go, after others have come
    // and gone.
    void Move(int nStep) {
        const int nTo = SelectedRow() + nStep;
        if (MoveSelectedRow(Items(), nStep))
            EnableMoves(MovesOf(nTo, CountRows()));
    }

    const Columns m_Columns;
};

} // namespace orrelix
