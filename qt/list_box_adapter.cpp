#include "qt/adapters.h"
#include "qt/rows_model.h"
#include "qt/rows_view.h"
#include "qt/text.h"

#include <QListView>

namespace orrelix {

namespace {

class CListBoxRows : public CRowsModel {
public:
    explicit CListBoxRows(const CListBox& list) : m_List(list) {}

private:
    int CountRows() const override { return m_List.GetCount(); }
    QString TextAt(int nRow, int) const override { return LinesToQt(m_List.GetText(nRow)); }

    const CListBox& m_List;
};

class CListBoxView : public CRowsView<QListView> {
public:
    explicit CListBoxView(QWidget* pParent) : CRowsView(pParent) {
        setUniformItemSizes(true);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setEditTriggers(NoEditTriggers);
    }

    QSize sizeHint() const override { return OfRows(32, 10); }
    QSize minimumSizeHint() const override { return OfRows(16, 4); }

private:
    QSize OfRows(int nCharacters, int nRows) const {
        return {fontMetrics().averageCharWidth() * nCharacters, RowHeight() * nRows + 2 * frameWidth()};
    }
};

class CListBoxAdapter : public CControlAdapter {
public:
    CListBoxAdapter(CListBox& list, CStage& stage, QWidget& parent)
        : CControlAdapter(list, stage), m_List(list), m_Rows(list), m_pView(new CListBoxView(&parent)) {
        m_pView->m_IsShowing = [this] { return IsShowing(); };
        m_pView->m_OnChosen = [this] {
            const QModelIndexList selected = m_pView->selectionModel()->selectedRows();
            if (!selected.isEmpty())
                Play([&](CPersonKey key) { m_List.PersonSelects(key, selected.first().row()); });
            ShowSelection(); // a click can't take the selection away
        };
        m_pView->m_OnDoubleClicked = [this](int nRow) {
            Play([&](CPersonKey key) { m_List.PersonDoubleClicks(key, nRow); });
        };
        m_pView->setModel(&m_Rows);
    }

    QWidget* Widget() const override { return m_pView; }

private:
    void ShowAll() override {
        m_Rows.Reset();
        ShowSelection();
    }

    void Show(ControlChange change, int nFirst, int nCount) override {
        CShowing showing(*this);
        if (change == ControlChange::RowsInserted)
            m_Rows.RowsInserted(nFirst, nCount);
        else if (change == ControlChange::RowsRemoved)
            m_Rows.RowsRemoved(nFirst, nCount);
        ShowSelection();
    }

    void ShowSelection() {
        CShowing showing(*this);
        const QModelIndex selected = m_Rows.index(m_List.GetCurSel(), 0);
        if (!selected.isValid())
            m_pView->selectionModel()->clearSelection();
        else
            m_pView->selectionModel()->setCurrentIndex(selected, QItemSelectionModel::ClearAndSelect);
    }

    CListBox& m_List;
    CListBoxRows m_Rows;
    CListBoxView* m_pView;
};

} // namespace

CAdapterPtr MakeListBoxAdapter(CListBox& list, CStage& stage, QWidget& parent) {
    return std::make_unique<CListBoxAdapter>(list, stage, parent);
}

} // namespace orrelix
