#include "qt/dialog_window.h"

#include "qt/dialog_layout.h"
#include "qt/text.h"

#include <QBoxLayout>
#include <QScreen>
#include <QScrollArea>

namespace orrelix {

namespace {

constexpr int kWindowFrame = 48; // roughly what title bar and edges take

} // namespace

CDialogWindow::CDialogWindow(CDialog& dialog, CPersonKey key, QWidget* pParent)
    : QDialog(pParent), m_Dialog(dialog), m_Key(key), m_pContent(new QWidget(this)) {
    const CDialogDescription& description = dialog.GetDescription();
    setWindowTitle(ToQt(description.m_pTitle));
    LayOutDialog(description, *m_pContent, [this](const CControlDescription& control, QWidget& parent) {
        std::unique_ptr<CControlAdapter> pAdapter = MakeAdapter(control, m_Dialog, *this, parent);
        if (!pAdapter)
            return CPlacedControl();
        m_Adapters.push_back(std::move(pAdapter));
        return CPlacedControl{m_Adapters.back()->Widget(), m_Adapters.back()->Placed()};
    });
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(FittedToScreen());
    m_Dialog.SetObserver(this);
}

CDialogWindow::~CDialogWindow() {
    m_Dialog.SetObserver(nullptr);
    if (QWidget* pFocus = focusWidget()) // a button that loses it on its way looks at others that may be gone
        pFocus->clearFocus();
    delete m_pContent; // while the adapters are there to listen
}

// Where the screen is too small for the content, or the font too large, it scrolls.
QWidget* CDialogWindow::FittedToScreen() {
    const QSize least = m_pContent->minimumSizeHint();
    const QSize room = screen()->availableSize() - QSize(kWindowFrame, kWindowFrame);
    if (least.width() <= room.width() && least.height() <= room.height())
        return m_pContent;
    auto* pArea = new QScrollArea(this);
    pArea->setFrameShape(QFrame::NoFrame);
    pArea->setFocusPolicy(Qt::NoFocus);
    pArea->setWidgetResizable(true);
    pArea->setWidget(m_pContent);
    resize(m_pContent->sizeHint().boundedTo(room));
    return pArea;
}

QWidget* CDialogWindow::WidgetOf(const CControl& control) const {
    for (const auto& pAdapter : m_Adapters) {
        if (&pAdapter->Control() == &control)
            return pAdapter->Widget();
    }
    return nullptr;
}

void CDialogWindow::reject() {
    Play([this](CPersonKey key) { m_Dialog.PersonCloses(key); });
}

void CDialogWindow::Play(const std::function<void(CPersonKey)>& act) {
    if (m_Dialog.HasEnded() || !m_Dialog.IsWindowEnabled() || m_pFailure)
        return;
    try {
        act(m_Key);
        for (const auto& pAdapter : m_Adapters)
            pAdapter->ShowAfterAct();
    } catch (...) {
        Fail();
    }
}

void CDialogWindow::Fail() {
    m_pFailure = std::current_exception();
    done(Rejected);
}

void CDialogWindow::FinishEditing() {
    for (const auto& pAdapter : m_Adapters)
        pAdapter->FinishEditing();
}

void CDialogWindow::showEvent(QShowEvent* pEvent) {
    QDialog::showEvent(pEvent);
    QWidget* pFirst = nextInFocusChain();
    while (pFirst != this && (!(pFirst->focusPolicy() & Qt::TabFocus) || !pFirst->isEnabledTo(this)))
        pFirst = pFirst->nextInFocusChain();
    pFirst->setFocus(Qt::TabFocusReason);
}

} // namespace orrelix
