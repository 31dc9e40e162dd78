// CRowsView: a view of rows that says, once after each event and after Qt is done with it, what the person
// did. Qt's own signals come several to an event, in the middle of it, and from the program's changes too.
#pragma once

#include "qt/text.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>
#include <functional>

namespace orrelix {

template <class TView>
class CRowsView : public TView {
public:
    explicit CRowsView(QWidget* pParent) : TView(pParent) {
        this->setTabKeyNavigation(false);
        this->setTextElideMode(Qt::ElideRight);
        QObject::connect(this, &TView::pressed, this, [this] { Chosen(); });
        QObject::connect(this, &TView::doubleClicked, this, [this](const QModelIndex& index) {
            m_nDoubleClicked = index.row();
            TellOutsideEvents();
        });
    }

    // The person pressed a button on the rows or moved selection or current row, be it to where they were.
    std::function<void()> m_OnChosen;
    std::function<void(int)> m_OnDoubleClicked;

    // While this is true, changes of the selection are the program's.
    std::function<bool()> m_IsShowing;

    // The height of a row as the style has it.
    int RowHeight() const {
        QStyleOptionViewItem row;
        row.initFrom(this);
        row.font = this->font();
        row.features = QStyleOptionViewItem::HasDisplay;
        row.text = "X";
        row.decorationSize = this->iconSize();
        return this->style()->sizeFromContents(QStyle::CT_ItemViewItem, &row, {}, this).height();
    }

    using TView::edit;

    void setModel(QAbstractItemModel* pModel) override {
        TView::setModel(pModel);
        const QItemSelectionModel* pSelection = this->selectionModel();
        QObject::connect(pSelection, &QItemSelectionModel::selectionChanged, this, [this] { Chosen(); });
        QObject::connect(pSelection, &QItemSelectionModel::currentChanged, this, [this] { Chosen(); });
    }

protected:
    bool event(QEvent* pEvent) override {
        if (pEvent->type() == QEvent::FocusIn)
            return TakeFocus(pEvent);
        return Within([&] { return TView::event(pEvent); });
    }

    // Some styles grey the rows of a list that lacks the focus.
    void initViewItemOption(QStyleOptionViewItem* pOption) const override {
        TView::initViewItemOption(pOption);
        pOption->state.setFlag(QStyle::State_Active, this->isActiveWindow());
    }

    // Where nothing is selected, the first key selects a row. Space on the selected row is the
    // double click of those who have no mouse.
    void keyPressEvent(QKeyEvent* pEvent) override {
        const int nKey = pEvent->key();
        const bool bSelected = this->selectionModel()->hasSelection();
        const int nRows = this->model()->rowCount();
        if (!bSelected && nRows > 0 && pEvent->modifiers() == Qt::NoModifier && IsRowKey(nKey))
            SelectRow(nKey == Qt::Key_End ? nRows - 1 : 0);
        else if (bSelected && nKey == Qt::Key_Space && m_OnDoubleClicked)
            m_nDoubleClicked = this->currentIndex().row();
        else
            TView::keyPressEvent(pEvent);
    }

    // The key for it edits the row's label, whichever column was clicked.
    bool edit(const QModelIndex& index, QAbstractItemView::EditTrigger trigger, QEvent* pEvent) override {
        const bool bKey = trigger == QAbstractItemView::EditKeyPressed;
        return TView::edit(bKey ? index.siblingAtColumn(0) : index, trigger, pEvent);
    }

    bool viewportEvent(QEvent* pEvent) override {
        if (pEvent->type() == QEvent::ToolTip)
            return ShowWholeText(*static_cast<QHelpEvent*>(pEvent));
        return Within([&] { return TView::viewportEvent(pEvent); });
    }

private:
    static bool IsRowKey(int nKey) {
        return nKey == Qt::Key_Down || nKey == Qt::Key_Up || nKey == Qt::Key_Home || nKey == Qt::Key_End;
    }

    void SelectRow(int nRow) {
        this->selectionModel()->setCurrentIndex(
            this->model()->index(nRow, 0), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }

    void Chosen() {
        if (m_bQuiet || m_IsShowing())
            return;
        m_bChosen = true;
        TellOutsideEvents();
    }

    template <class TAct>
    bool Within(TAct act) {
        ++m_nEvents;
        const bool bDone = act();
        --m_nEvents;
        TellOutsideEvents();
        return bDone;
    }

    // Qt makes some row the current one then, which looks as if somebody had chosen it.
    bool TakeFocus(QEvent* pEvent) {
        const bool bCurrent = this->currentIndex().isValid();
        m_bQuiet = true;
        const bool bDone = TView::event(pEvent);
        if (!bCurrent)
            this->selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
        m_bQuiet = false;
        return bDone;
    }

    // An assistive tool chooses rows without an event.
    void TellOutsideEvents() {
        if (m_nEvents > 0)
            return;
        const bool bChosen = std::exchange(m_bChosen, false);
        const int nDoubleClicked = std::exchange(m_nDoubleClicked, -1);
        if (nDoubleClicked >= 0 && m_OnDoubleClicked)
            m_OnDoubleClicked(nDoubleClicked);
        else if (bChosen)
            m_OnChosen();
    }

    // A tip for a text that its cell is too narrow for.
    bool ShowWholeText(const QHelpEvent& help) {
        const QModelIndex index = this->indexAt(help.pos());
        const bool bCut = this->sizeHintForIndex(index).width() > this->visualRect(index).width();
        QToolTip::showText(help.globalPos(), bCut ? PlainTip(index.data(Qt::EditRole).toString()) : QString(),
                           this);
        return true;
    }

    int m_nEvents = 0;
    bool m_bQuiet = false;
    bool m_bChosen = false;
    int m_nDoubleClicked = -1;
};

} // namespace orrelix
