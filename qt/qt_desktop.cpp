#include "qt/qt_desktop.h"

#include "qt/canvas.h"
#include "qt/dialog_window.h"
#include "qt/file_window.h"
#include "qt/modal.h"
#include "qt/popup_frame.h"
#include "qt/text.h"
#include "toolkit/button.h"
#include "toolkit/popup_window.h"

#include <QApplication>
#include <QColorDialog>
#include <QFontDatabase>
#include <QMessageBox>
#include <QScreen>
#include <QStyle>

namespace orrelix {

namespace {

constexpr int kEdge = 2; // the two lines of CQtCanvas::DrawEdge

// A window that goes with the scope, unless its parent has taken it along before.
template <class TWindow>
class CScopedWindow {
public:
    explicit CScopedWindow(TWindow* pWindow) : m_pWindow(pWindow) {}
    ~CScopedWindow() { delete m_pWindow; }
    CScopedWindow(const CScopedWindow&) = delete;

    TWindow* operator->() const { return m_pWindow; }
    TWindow& operator*() const { return *m_pWindow; }
    explicit operator bool() const { return !m_pWindow.isNull(); }

private:
    QPointer<TWindow> m_pWindow;
};

QMessageBox::Icon IconOf(MessageBoxKind kind) {
    switch (kind) {
    case MessageBoxKind::Ok:
        return QMessageBox::Information;
    case MessageBoxKind::OkCancel:
        return QMessageBox::Question;
    case MessageBoxKind::Warning:
        return QMessageBox::Warning;
    }
    return QMessageBox::NoIcon;
}

} // namespace

CQtDesktop::CQtDesktop() = default;
CQtDesktop::~CQtDesktop() = default;

void CQtDesktop::RunDialog(CDialog& dialog) {
    if (IsWindowThread())
        ShowDialog(dialog);
    if (!dialog.HasEnded()) // the host quits, or took away the window that this one belonged to
        dialog.PersonCloses(Person());
}

void CQtDesktop::ShowDialog(CDialog& dialog) {
    std::exception_ptr pFailure;
    {
        CScopedWindow window(new CDialogWindow(dialog, Person(), WindowInUse()));
        m_Windows.push_back(&*window);
        RunModal(*window);
        m_Windows.pop_back();
        if (m_pPopup) // its button is going
            m_pPopup->Deactivate();
        if (window)
            pFailure = window->GetFailure();
    }
    if (pFailure)
        std::rethrow_exception(pFailure);
}

int CQtDesktop::ShowMessageBox(const CString& text, MessageBoxKind kind) {
    const bool bCancel = kind == MessageBoxKind::OkCancel;
    if (!IsWindowThread())
        return bCancel ? IDCANCEL : IDOK;
    QWidget* pParent = WindowInUse();
    CScopedWindow box(new QMessageBox(IconOf(kind), pParent ? pParent->windowTitle() : QString(),
                                      LinesToQt(text), QMessageBox::Ok, pParent));
    box->setTextFormat(Qt::PlainText);
    if (bCancel)
        box->addButton(QMessageBox::Cancel);
    const int nAnswer = RunModal(*box);
    return bCancel && nAnswer != QMessageBox::Ok ? IDCANCEL : IDOK;
}

bool CQtDesktop::RunFileDialog(CFileDialog& dialog) {
    if (!IsWindowThread())
        return false;
    CScopedWindow window(new CFileWindow(dialog, Person(), WindowInUse()));
    return RunModal(*window) == QDialog::Accepted && window && window->TakeOver();
}

bool CQtDesktop::RunColourDialog(CColour& colour) {
    if (!IsWindowThread())
        return false;
    if (m_pPopup)
        m_pPopup->hide(); // it holds the mouse
    CScopedWindow window(new QColorDialog(ToQt(colour), WindowInUse()));
    const bool bChosen = RunModal(*window) == QDialog::Accepted && window;
    if (bChosen)
        colour = FromQt(window->selectedColor());
    return bChosen;
}

void CQtDesktop::OpenPopup(CPopupWindow& popup) {
    QPointer<CDialogWindow> pOwner = m_Windows.empty() ? nullptr : m_Windows.back();
    m_pPopup = new CPopupFrame(popup, Person(), pOwner, [pOwner] {
        if (pOwner)
            pOwner->Fail();
    });
}

void CQtDesktop::ClosePopup(CPopupWindow& popup) {
    if (m_pPopup && m_pPopup->Shows(popup))
        m_pPopup->Close();
    else
        popup.OnClosed();
}

CRect CQtDesktop::GetScreenRect(const COwnerDrawnButton& button) const {
    for (const QPointer<CDialogWindow>& pWindow : m_Windows) {
        if (const QWidget* pWidget = pWindow ? pWindow->WidgetOf(button) : nullptr)
            return FromQt(QRect(pWidget->mapToGlobal(QPoint(0, 0)), pWidget->size()));
    }
    return {};
}

CRect CQtDesktop::GetScreenAround(const CRect& place) const {
    const QScreen* pScreen = QGuiApplication::screenAt(ToQt(place).center());
    return FromQt((pScreen ? pScreen : QGuiApplication::primaryScreen())->availableGeometry());
}

CThemeMetrics CQtDesktop::GetMetrics() const {
    const int nThumb = QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    // A button that measures itself by the thumb comes out as high as the edit box beside it.
    const int nBox = QLineEdit().sizeHint().height();
    return {{kEdge, kEdge}, {nThumb, nBox - 2 * kEdge}};
}

CSize CQtDesktop::MeasureText(const CString& text) const {
    const QFontMetrics metrics(QApplication::font());
    return {metrics.horizontalAdvance(ToQt(text)), metrics.height()};
}

CColour CQtDesktop::GetSystemColour(SystemColour colour) const {
    return SystemColourOf(QApplication::palette(), colour);
}

CStringArray CQtDesktop::GetFontFamilies() const {
    QStringList names;
    for (const QString& family : QFontDatabase::families()) {
        if (!QFontDatabase::isPrivateFamily(family))
            names += family.section(" [", 0, 0); // the foundry, where two have a family of the name
    }
    names.removeDuplicates();
    CStringArray families;
    for (const QString& name : names)
        families.Add(FromQt(name));
    return families;
}

} // namespace orrelix
