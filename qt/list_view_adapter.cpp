#include "qt/adapters.h"
#include "qt/rows_model.h"
#include "qt/rows_view.h"
#include "qt/text.h"

#include <QApplication>
#include <QFileIconProvider>
#include <QHeaderView>
#include <QListView>
#include <QStyledItemDelegate>
#include <QTreeView>

namespace orrelix {

namespace {

class CListCtrlRows : public CRowsModel {
public:
    explicit CListCtrlRows(const CListCtrl& list) : m_List(list) {}

    QVariant data(const QModelIndex& index, int nRole) const override {
        if (nRole == Qt::DecorationRole && index.column() == 0)
            return IconOf(m_List.GetItemImage(index.row()));
        if (nRole == kHotRole)
            return index.row() == m_List.GetHotItem();
        return CRowsModel::data(index, nRole);
    }

    QVariant headerData(int nSection, Qt::Orientation orientation, int nRole) const override {
        if (orientation == Qt::Horizontal && nRole == Qt::DisplayRole && nSection < m_List.GetColumnCount())
            return ToQt(m_List.GetColumn(nSection).m_Heading);
        if (orientation == Qt::Horizontal && nRole == Qt::TextAlignmentRole)
            return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
        return {};
    }

    Qt::ItemFlags flags(const QModelIndex& index) const override {
        const bool bLabel = index.column() == 0 && m_List.AllowsLabelEditing();
        return CRowsModel::flags(index) | (bLabel ? Qt::ItemIsEditable : Qt::NoItemFlags);
    }

private:
    int CountRows() const override { return m_List.GetItemCount(); }
    int CountColumns() const override { return m_List.IsReport() ? m_List.GetColumnCount() : 1; }
    QString TextAt(int nRow, int nColumn) const override {
        return LinesToQt(m_List.ForPerson(nRow, nColumn));
    }

    QVariant IconOf(int nImage) const {
        const CStringArray& files = m_List.GetImageList();
        if (nImage < 0 || nImage >= files.GetSize())
            return {};
        const QString file = PathToQt(files[nImage]);
        auto icon = m_Icons.constFind(file);
        if (icon == m_Icons.constEnd())
            icon = m_Icons.insert(file, QFileIconProvider().icon(QFileInfo(file)));
        return *icon;
    }

    const CListCtrl& m_List;
    mutable QHash<QString, QIcon> m_Icons;
};

// Shows the hot row and edits labels in place. What becomes of an edited label is the dialog's business.
class CLabelDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    std::function<bool(int)> m_OnStart;
    std::function<void(const QString&, bool)> m_OnEnd;

    QWidget* createEditor(QWidget* pParent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override {
        return m_OnStart(index.row()) ? QStyledItemDelegate::createEditor(pParent, option, index) : nullptr;
    }
    void setModelData(QWidget* pEditor, QAbstractItemModel*, const QModelIndex&) const override {
        m_OnEnd(static_cast<QLineEdit*>(pEditor)->text(), false);
    }
    void destroyEditor(QWidget* pEditor, const QModelIndex& index) const override {
        m_OnEnd(static_cast<QLineEdit*>(pEditor)->text(), true); // too late if the text was taken over
        QStyledItemDelegate::destroyEditor(pEditor, index);
    }

protected:
    void initStyleOption(QStyleOptionViewItem* pOption, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(pOption, index);
        pOption->state.setFlag(QStyle::State_MouseOver, index.data(kHotRole).toBool());
    }
};

class CReportView : public CRowsView<QTreeView> {
public:
    explicit CReportView(QWidget* pParent) : CRowsView(pParent) {
        setRootIsDecorated(false);
        setItemsExpandable(false);
        setUniformRowHeights(true);
        setAllColumnsShowFocus(true);
        setHorizontalScrollMode(ScrollPerPixel);
        header()->setSectionsMovable(false);
        header()->setHighlightSections(false);
    }

    QSize sizeHint() const override {
        const int nColumns = qMin(header()->length(), fontMetrics().averageCharWidth() * 140);
        return {nColumns + 2 * frameWidth(), header()->sizeHint().height() + HeightOfRows(6)};
    }
    QSize minimumSizeHint() const override {
        return {fontMetrics().averageCharWidth() * 40, header()->sizeHint().height() + HeightOfRows(3)};
    }

    void ShowColumns(const CListCtrl& list) {
        for (int nColumn = 0; nColumn < list.GetColumnCount(); ++nColumn)
            header()->resizeSection(nColumn, header()->sectionSizeHint(nColumn) +
                                                 list.GetColumn(nColumn).m_nExtraWidth);
    }

private:
    int HeightOfRows(int nRows) const { return RowHeight() * nRows + 2 * frameWidth(); }
};

class CFileView : public CRowsView<QListView> {
public:
    explicit CFileView(QWidget* pParent) : CRowsView(pParent) {
        setFlow(TopToBottom);
        setWrapping(true);
        setResizeMode(Adjust);
        setSpacing(1);
        const int nIcon = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
        setIconSize({nIcon, nIcon});
    }

    QSize sizeHint() const override {
        return {fontMetrics().averageCharWidth() * 64, (RowHeight() + 2 * spacing()) * 10 + 2 * frameWidth()};
    }

    void ShowColumns(const CListCtrl&) {}
};

template <class TView>
class CListViewAdapter : public CControlAdapter {
public:
    CListViewAdapter(CListCtrl& list, CStage& stage, QWidget& parent)
        : CControlAdapter(list, stage), m_List(list), m_Rows(list), m_pView(new TView(&parent)),
          m_pDelegate(new CLabelDelegate(m_pView)) {
        ListenToView();
        ListenToLabels();
        m_pView->setModel(&m_Rows);
        m_pView->setItemDelegate(m_pDelegate);
        m_pView->setSelectionBehavior(TView::SelectRows);
        m_pView->setSelectionMode(list.IsMultipleSelection() ? TView::ExtendedSelection
                                                             : TView::SingleSelection);
        m_pView->setEditTriggers(list.AllowsLabelEditing() ? TView::SelectedClicked | TView::EditKeyPressed
                                                           : TView::NoEditTriggers);
    }

    QWidget* Widget() const override { return m_pView; }

    void FinishEditing() override {
        const QWidget* pFocus = QApplication::focusWidget();
        if (pFocus && m_pView->isAncestorOf(pFocus))
            m_pView->setFocus(Qt::OtherFocusReason);
    }

private:
    void ListenToView() {
        m_pView->m_IsShowing = [this] { return IsShowing(); };
        m_pView->m_OnChosen = [this] {
            std::vector<int> rows;
            for (const QModelIndex& index : m_pView->selectionModel()->selectedRows())
                rows.push_back(index.row());
            const int nFocused = m_pView->currentIndex().row();
            Play([&](CPersonKey key) { m_List.PersonSelects(key, rows, nFocused); });
        };
    }

    void ListenToLabels() {
        m_pDelegate->m_OnStart = [this](int nRow) {
            bool bStarted = IsShowing(); // the program asked for it and the control knows
            if (!bStarted)
                Play([&](CPersonKey key) { bStarted = m_List.PersonStartsLabelEdit(key, nRow); });
            return bStarted;
        };
        m_pDelegate->m_OnEnd = [this](const QString& text, bool bCancelled) {
            if (!IsShowing())
                Play([&](CPersonKey key) { m_List.PersonEndsLabelEdit(key, FromQt(text), bCancelled); });
        };
    }

    void ShowAll() override {
        CShowing showing(*this);
        m_Rows.Reset();
        m_pView->ShowColumns(m_List);
        ShowMarks(0, m_List.GetItemCount());
    }

    void Show(ControlChange change, int nFirst, int nCount) override {
        CShowing showing(*this);
        switch (change) {
        case ControlChange::Columns:
            return ShowAll();
        case ControlChange::RowsInserted:
            m_Rows.RowsInserted(nFirst, nCount);
            return ShowMarks(nFirst, nCount);
        case ControlChange::RowsRemoved:
            LeaveRows(nFirst, nCount);
            m_Rows.RowsRemoved(nFirst, nCount);
            return ShowMarks(0, 0);
        case ControlChange::RowsChanged:
            return m_Rows.RowsChanged(nFirst, nCount);
        case ControlChange::LabelEdit:
            return m_pView->edit(m_Rows.index(nFirst, 0));
        default:
            return ShowMarks(nFirst, nCount);
        }
    }

    // The view would choose a neighbour for a current row that goes.
    void LeaveRows(int nFirst, int nCount) {
        const int nCurrent = m_pView->currentIndex().row();
        if (nCurrent >= nFirst && nCurrent < nFirst + nCount)
            m_pView->selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
    }

    // Those of the rows that the view shows selected and the control hasn't, or the other way round. Rows side by
    // side are one range: the view goes through all its ranges for each row that it draws.
    QItemSelection WronglyMarked(int nFirst, int nEnd) const {
        QItemSelection rows;
        int nFrom = nFirst;
        for (int nRow = nFirst; nRow <= nEnd; ++nRow) {
            if (nRow < nEnd &&
                m_pView->selectionModel()->isSelected(m_Rows.index(nRow, 0)) != m_List.IsSelected(nRow))
                continue;
            if (nFrom < nRow)
                rows.select(m_Rows.index(nFrom, 0), m_Rows.index(nRow - 1, 0));
            nFrom = nRow + 1;
        }
        return rows;
    }

    // Which of these rows are selected; and the focused and the hot row.
    void ShowMarks(int nFirst, int nCount) {
        QItemSelectionModel& selection = *m_pView->selectionModel();
        selection.select(WronglyMarked(nFirst, nFirst + nCount),
                         QItemSelectionModel::Toggle | QItemSelectionModel::Rows);
        const QModelIndex focused = m_Rows.index(m_List.GetFocusedItem(), 0);
        if (focused.row() != m_pView->currentIndex().row())
            selection.setCurrentIndex(focused, QItemSelectionModel::NoUpdate);
        m_pView->viewport()->update();
    }

    CListCtrl& m_List;
    CListCtrlRows m_Rows;
    TView* m_pView;
    CLabelDelegate* m_pDelegate;
};

} // namespace

CAdapterPtr MakeListViewAdapter(CListCtrl& list, CStage& stage, QWidget& parent) {
    if (list.IsReport())
        return std::make_unique<CListViewAdapter<CReportView>>(list, stage, parent);
    return std::make_unique<CListViewAdapter<CFileView>>(list, stage, parent);
}

} // namespace orrelix
