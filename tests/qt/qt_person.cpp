#include "tests/qt/qt_person.h"

#include "qt/application.h"
#include "qt/rows_model.h"
#include "qt/text.h"
#include "toolkit/file_dialog.h"

#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QInputMethodEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace orrelix {

namespace {

// The window that came up last, if it is of this kind.
template <class TWindow>
TWindow* FrontWindow() {
    return dynamic_cast<TWindow*>(QApplication::activeModalWidget());
}

// Does something in the window that is about to come up.
template <class TWindow, class TAct>
void WhenItIsUp(TAct act) {
    QTimer::singleShot(0, [act] {
        TWindow* pWindow = FrontWindow<TWindow>();
        ASSERT_TRUE(pWindow) << "the expected window did not come up";
        act(*pWindow);
    });
}

// The mouse's own events: what QTest sends on top of them differs from platform to platform.
void SendMouse(QWidget& widget, QEvent::Type type, QPoint point, Qt::MouseButton button) {
    const Qt::MouseButton down = type == QEvent::MouseButtonPress ? button : Qt::NoButton;
    QMouseEvent event(type, QPointF(point), QPointF(widget.mapToGlobal(point)), button, down, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

std::vector<int> RowNumbers(const QModelIndexList& indices) {
    std::vector<int> rows;
    for (const QModelIndex& index : indices)
        rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

} // namespace

void StartQt() {
    // The offscreen platform complains of what it lacks at each step.
    static QtMessageHandler const pUsual =
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& message) {
            if (!message.startsWith("This plugin does not support"))
                pUsual(type, context, message);
        });
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" ORRELIX_SOURCE_DIR "/tests/qt/screen.json");
    ASSERT_TRUE(EnsureApplication());
}

void ReplaceText(QWidget& box, const QString& text) {
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty())
        return QTest::keyClick(&box, Qt::Key_Delete);
    QInputMethodEvent typed;
    typed.setCommitString(text);
    QApplication::sendEvent(&box, &typed);
}

void ClickRow(QAbstractItemView& view, int nRow, Qt::KeyboardModifiers modifiers) {
    const QModelIndex index = view.model()->index(nRow, 0);
    view.scrollTo(index);
    const QRect seen = view.visualRect(index) & view.viewport()->rect(); // a row can be wider than the list
    QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, seen.center());
}

CQtPerson::CQtPerson() {
    StartQt();
    SetDesktop(this);
}

CDialogWindow& CQtPerson::Window() {
    return dynamic_cast<CDialogWindow&>(*QApplication::activeModalWidget());
}

QWidget& CQtPerson::WidgetOf(const CTarget& target) {
    const CControlDescription& control = target.m_Description;
    const CControl* pShown =
        control.m_Kind == ControlKind::Spin ? target.m_Dialog.FindItem(control.m_nBuddy) : &target.m_Control;
    return *Window().WidgetOf(*pShown);
}

void CQtPerson::RunDialog(CDialog& dialog) {
    struct CRunning { // also when a handler throws
        std::vector<CDialog*>& m_Dialogs;
        ~CRunning() { m_Dialogs.pop_back(); }
    } running{m_Running};
    m_Running.push_back(&dialog);
    QTimer next;
    QObject::connect(&next, &QTimer::timeout, [this, &dialog] { PlayNext(dialog); });
    next.start(0);
    CQtDesktop::RunDialog(dialog);
}

void CQtPerson::PlayNext(CDialog& dialog) {
    if (m_Running.back() != &dialog || dialog.HasEnded() || !FrontWindow<CDialogWindow>())
        return;
    if (!QApplication::activeWindow())
        return Window().activateWindow(); // as a window manager does when the one before it closes
    try {
        if (PlayStep(dialog, *this))
            return;
    } catch (...) {
        return Window().Fail();
    }
    if (m_pOpenPopup)
        m_pOpenPopup->OnDeactivate(Person());
    dialog.PersonCloses(Person());
}

int CQtPerson::ShowMessageBox(const CString& text, MessageBoxKind kind) {
    WhenItIsUp<QMessageBox>([this, kind](QMessageBox& box) {
        const int nAnswer = AnswerMessageBox(LinesFromQt(box.text()), kind);
        QTest::mouseClick(box.button(nAnswer == IDOK ? QMessageBox::Ok : QMessageBox::Cancel),
                          Qt::LeftButton);
    });
    return CQtDesktop::ShowMessageBox(text, kind);
}

bool CQtPerson::RunFileDialog(CFileDialog& dialog) {
    WhenItIsUp<QFileDialog>([this](QFileDialog& window) {
        const CFileAnswer answer = AnswerFileDialog();
        for (QLineEdit* pBox : window.findChildren<QLineEdit*>()) {
            if (answer.m_AddedText && pBox->accessibleName() == "Web Path")
                ReplaceText(*pBox, ToQt(*answer.m_AddedText));
        }
        if (!answer.m_Path)
            return QTest::keyClick(&window, Qt::Key_Escape);
        QLineEdit& name = *window.findChild<QLineEdit*>("fileNameEdit");
        ReplaceText(name, PathToQt(*answer.m_Path));
        QTest::keyClick(&name, Qt::Key_Return);
    });
    return CQtDesktop::RunFileDialog(dialog);
}

bool CQtPerson::RunColourDialog(CColour& colour) {
    WhenItIsUp<QColorDialog>([this](QColorDialog& window) {
        const auto answer = AnswerColourDialog();
        if (!answer)
            return QTest::keyClick(&window, Qt::Key_Escape);
        for (QLineEdit* pBox : window.findChildren<QLineEdit*>()) {
            if (pBox->text().startsWith('#'))
                ReplaceText(*pBox,
                            QColor(int(RedOf(*answer)), int(GreenOf(*answer)), int(BlueOf(*answer))).name());
        }
        auto* pButtons = window.findChild<QDialogButtonBox*>();
        QTest::mouseClick(pButtons->button(QDialogButtonBox::Ok), Qt::LeftButton);
    });
    return CQtDesktop::RunColourDialog(colour);
}

void CQtPerson::OpenPopup(CPopupWindow& popup) {
    m_pOpenPopup = &popup;
    CQtDesktop::OpenPopup(popup);
}

void CQtPerson::ClosePopup(CPopupWindow& popup) {
    m_pOpenPopup = nullptr;
    CQtDesktop::ClosePopup(popup);
}

void CQtPerson::Type(const CTarget& target, const CString& text) {
    ReplaceText(WidgetOf(target), LinesToQt(text));
}

void CQtPerson::Turn(const CTarget& target, int nSteps) {
    for (int nStep = 0; nStep < qAbs(nSteps); ++nStep)
        QTest::keyClick(&WidgetOf(target), nSteps > 0 ? Qt::Key_Up : Qt::Key_Down);
}

void CQtPerson::Click(const CTarget& target) {
    QTest::mouseClick(&WidgetOf(target), Qt::LeftButton);
}

void CQtPerson::SelectRows(const CTarget& target, const std::vector<int>& rows) {
    for (size_t nRow = 0; nRow < rows.size(); ++nRow)
        ClickRow(As<QAbstractItemView>(target), rows[nRow], nRow == 0 ? Qt::NoModifier : Qt::ControlModifier);
}

void CQtPerson::DoubleClick(const CTarget& target, int nRow) {
    auto& view = As<QAbstractItemView>(target);
    ClickRow(view, nRow);
    const QPoint place = view.visualRect(view.model()->index(nRow, 0)).center();
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

void CQtPerson::Pick(const CTarget& target, int nRow) {
    auto& box = As<QComboBox>(target);
    QTest::keyClick(&box, Qt::Key_F4);
    ClickRow(*box.view(), nRow);
}

void CQtPerson::CloseList(const CTarget& target) {
    auto& box = As<QComboBox>(target);
    QTest::keyClick(&box, Qt::Key_F4);
    QTest::keyClick(box.view(), Qt::Key_Escape);
}

void CQtPerson::Move(const CTarget& target, int nPos) {
    auto& slider = As<QSlider>(target);
    while (slider.value() != nPos) {
        const int nBefore = slider.value(), nWay = nPos - nBefore;
        const bool bPage = qAbs(nWay) >= slider.pageStep();
        QTest::keyClick(&slider, nWay > 0 ? (bPage ? Qt::Key_PageUp : Qt::Key_Right)
                                          : (bPage ? Qt::Key_PageDown : Qt::Key_Left));
        ASSERT_NE(slider.value(), nBefore) << "the slider does not move to " << nPos;
    }
}

void CQtPerson::Rename(const CTarget& target, const std::optional<CString>& text) {
    auto* pEditor = As<QAbstractItemView>(target).viewport()->findChild<QLineEdit*>();
    ASSERT_TRUE(pEditor) << "no label is being edited";
    if (!text)
        return QTest::keyClick(pEditor, Qt::Key_Escape);
    ReplaceText(*pEditor, ToQt(*text));
    QTest::keyClick(pEditor, Qt::Key_Return);
}

void CQtPerson::Press(CDialog&, const CString& keys) {
    const QKeySequence sequence(keys == "Escape" ? "Esc" : keys.GetString());
    const Qt::KeyboardModifiers modifiers = sequence[0].keyboardModifiers();
    const QWidget* pPopup = QApplication::activePopupWidget();
    QTest::keyClick((pPopup ? *pPopup : Window()).focusWidget(), sequence[0].key(), modifiers);
    if (modifiers & Qt::AltModifier)
        QTest::qWait(200); // a button is seen to be pressed
}

void CQtPerson::Write(const CString& text) {
    QTest::keyClicks(Window().focusWidget(), ToQt(text));
}

void CQtPerson::MoveInPopup(CPoint point) {
    SendMouse(*QApplication::activePopupWidget(), QEvent::MouseMove, {point.x, point.y}, Qt::NoButton);
}

void CQtPerson::ReleaseInPopup(CPoint point) {
    QWidget& popup = *QApplication::activePopupWidget();
    SendMouse(popup, QEvent::MouseButtonPress, {point.x, point.y}, Qt::LeftButton);
    SendMouse(popup, QEvent::MouseButtonRelease, {point.x, point.y}, Qt::LeftButton);
}

void CQtPerson::PressInPopup(PopupKey key) {
    static constexpr Qt::Key keys[] = {Qt::Key_Up,     Qt::Key_Down,   Qt::Key_Left, Qt::Key_Right,
                                       Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space};
    QTest::keyClick(QApplication::activePopupWidget(), keys[static_cast<size_t>(key)]);
}

CString CQtPerson::TextOf(const CTarget& target) {
    QWidget& widget = WidgetOf(target);
    if (const auto* pLine = dynamic_cast<QLineEdit*>(&widget))
        return FromQt(pLine->text());
    if (const auto* pArea = dynamic_cast<QPlainTextEdit*>(&widget))
        return LinesFromQt(pArea->document()->toRawText().replace(QChar::ParagraphSeparator, '\n'));
    if (const auto* pNumber = dynamic_cast<QAbstractSpinBox*>(&widget))
        return FromQt(pNumber->text());
    if (const auto* pCombo = dynamic_cast<QComboBox*>(&widget))
        return FromQt(pCombo->currentText());
    if (const auto* pLabel = dynamic_cast<QLabel*>(&widget))
        return LinesFromQt(pLabel->text());
    return WithoutMnemonic(FromQt(dynamic_cast<QAbstractButton&>(widget).text()));
}

bool CQtPerson::IsEnabled(const CTarget& target) {
    return WidgetOf(target).isEnabled();
}

int CQtPerson::PositionOf(const CTarget& target) {
    if (target.m_Description.m_Kind == ControlKind::Slider)
        return As<QSlider>(target).value();
    return As<QAbstractSpinBox>(target).text().toInt();
}

std::vector<CString> CQtPerson::RowsOf(const CTarget& target) {
    std::vector<CString> rows;
    const auto* pCombo = dynamic_cast<QComboBox*>(&WidgetOf(target));
    const QAbstractItemModel& model = pCombo ? *pCombo->model() : *As<QAbstractItemView>(target).model();
    for (int nRow = 0; nRow < model.rowCount(); ++nRow) {
        CString cells = LinesFromQt(model.index(nRow, 0).data(Qt::EditRole).toString());
        for (int nColumn = 1; nColumn < model.columnCount(); ++nColumn)
            cells += CString(" | ") + FromQt(model.index(nRow, nColumn).data().toString());
        rows.push_back(cells);
    }
    return rows;
}

int CQtPerson::HotRowOf(const CTarget& target) {
    const QAbstractItemModel& model = *As<QAbstractItemView>(target).model();
    for (int nRow = 0; nRow < model.rowCount(); ++nRow) {
        if (model.index(nRow, 0).data(kHotRole).toBool())
            return nRow;
    }
    return -1;
}

// Of a box: what its mark says.
CString CQtPerson::TextBeside(const CTarget& target) {
    const QWidget& widget = WidgetOf(target);
    const QList<QAction*> signs = widget.findChildren<QAction*>();
    const bool bMarked = std::any_of(signs.begin(), signs.end(), [](const QAction* pSign) {
        return pSign->isVisible() && !pSign->icon().isNull();
    });
    return FromQt(widget.accessibleDescription()) + (bMarked ? " (marked)" : "");
}

std::vector<int> CQtPerson::SelectedRowsOf(const CTarget& target) {
    if (const auto* pCombo = dynamic_cast<QComboBox*>(&WidgetOf(target)))
        return pCombo->currentIndex() < 0 ? std::vector<int>() : std::vector<int>{pCombo->currentIndex()};
    return RowNumbers(As<QAbstractItemView>(target).selectionModel()->selectedRows());
}

} // namespace orrelix
