#include "qt/adapters.h"
#include "qt/quiet_wheel.h"
#include "qt/rows_model.h"
#include "qt/text.h"

#include <QComboBox>
#include <QEvent>
#include <QListView>

namespace orrelix {

namespace {

class CComboBoxRows : public CRowsModel {
public:
    explicit CComboBoxRows(const CComboBox& combo) : m_Combo(combo) {}

    QString TextAt(int nRow, int = 0) const override {
        const char* pShown = m_Combo.GetShownText(nRow);
        return pShown ? QString::fromUtf8(pShown) : LinesToQt(m_Combo.GetLBText(nRow));
    }

private:
    int CountRows() const override { return m_Combo.GetCount(); }

    const CComboBox& m_Combo;
};

class CComboBoxWidget : public CQuietWheel<QComboBox> {
public:
    explicit CComboBoxWidget(QWidget* pParent) : CQuietWheel(pParent) {
        setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon); // not to the longest of all rows
        static_cast<QListView*>(view())->setUniformItemSizes(true);
    }

    // Its text can be cut where the screen is small.
    QSize minimumSizeHint() const override {
        const QSize least = CQuietWheel::minimumSizeHint();
        return {qMin(least.width(), fontMetrics().averageCharWidth() * 20), least.height()};
    }
};

class CComboBoxAdapter : public CControlAdapter {
public:
    CComboBoxAdapter(CComboBox& combo, CStage& stage, QWidget& parent)
        : CControlAdapter(combo, stage), m_Combo(combo), m_Rows(combo), m_pBox(new CComboBoxWidget(&parent)) {
        m_pBox->setEditable(combo.HasEditPart());
        m_pBox->setModel(&m_Rows);
        m_pBox->setMinimumContentsLength(LongestRow());
        connect(m_pBox, &QComboBox::activated, this, [this](int nRow) {
            m_bListClosed = false;
            Play([&](CPersonKey key) { m_Combo.PersonPicks(key, nRow); });
            ShowText();
        });
        // The list is a window of its own; it goes also by a click elsewhere, of which the box tells nothing.
        m_pBox->view()->window()->installEventFilter(this);
        if (combo.HasEditPart())
            ListenToEditPart();
    }

    QWidget* Widget() const override { return m_pBox; }

private:
    void ListenToEditPart() {
        m_pBox->setInsertPolicy(QComboBox::NoInsert);
        m_pBox->setDuplicatesEnabled(true); // otherwise Enter picks the row with the text that stands there
        m_pBox->setCompleter(nullptr);
        ListenTo(*m_pBox->lineEdit(), [this](const CString& text) {
            const int nPicked = m_pBox->currentIndex();
            if (nPicked >= 0 && text == FromQt(m_pBox->itemText(nPicked)))
                return; // the row's text comes before the news of its picking
            Play([&](CPersonKey key) { m_Combo.PersonTypes(key, text); });
            ShowText();
        });
    }

    bool eventFilter(QObject*, QEvent* pEvent) override {
        if (pEvent->type() == QEvent::Hide) {
            m_bListClosed = true;
            QMetaObject::invokeMethod(
                this, [this] { OnListClosed(); }, Qt::QueuedConnection);
        }
        return false;
    }

    // When a row was picked, that has been told in the meantime.
    void OnListClosed() {
        if (std::exchange(m_bListClosed, false))
            Play([&](CPersonKey key) { m_Combo.PersonClosesList(key); });
    }

    void ShowAll() override {
        CShowing showing(*this);
        m_Rows.Reset();
        ShowText();
    }

    void Show(ControlChange change, int nFirst, int nCount) override {
        CShowing showing(*this);
        if (change == ControlChange::RowsInserted)
            m_Rows.RowsInserted(nFirst, nCount);
        else if (change == ControlChange::RowsRemoved)
            m_Rows.RowsRemoved(nFirst, nCount);
        ShowText();
    }

    void ShowText() {
        CShowing showing(*this);
        QLineEdit* pEdit = m_pBox->lineEdit();
        const QString before = pEdit ? pEdit->text() : QString();
        const int nCursor = pEdit ? pEdit->cursorPosition() : 0;
        m_pBox->setCurrentIndex(m_Combo.GetCurSel());
        if (!pEdit)
            return;
        CControlAdapter::ShowText(*pEdit, m_Combo.GetWindowText());
        if (pEdit->text() == before)
            pEdit->setCursorPosition(nCursor);
    }

    int LongestRow() const {
        qsizetype nLongest = 10;
        for (int nRow = 0; nRow < qMin(m_Combo.GetCount(), 50); ++nRow)
            nLongest = qMax(nLongest, m_Rows.TextAt(nRow).size());
        return static_cast<int>(qMin<qsizetype>(nLongest, 40));
    }

    CComboBox& m_Combo;
    CComboBoxRows m_Rows;
    CComboBoxWidget* m_pBox;
    bool m_bListClosed = false;
};

} // namespace

CAdapterPtr MakeComboBoxAdapter(CComboBox& combo, CStage& stage, QWidget& parent) {
    return std::make_unique<CComboBoxAdapter>(combo, stage, parent);
}

} // namespace orrelix
