#include "qt/dialog_window.h"

#include "qt/moving_picture.h"
#include "qt/text.h"
#include "qt/window_place.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QBoxLayout>
#include <QScreen>
#include <QScrollArea>

namespace orrelix {

namespace {

constexpr QSize kWindowFrame(16, 48); // roughly what title bar and edges take
constexpr int kGapBeforeBar = 4;

} // namespace

CDialogWindow::CDialogWindow(CDialog& dialog, CPersonKey key, QWidget* pParent)
    : QDialog(pParent), m_Dialog(dialog), m_Key(key), m_pBody(new QWidget(this)) {
    setLayoutDirection(Qt::LeftToRight); // as the texts in it, whatever the host's language
    setWindowTitle(ToQt(dialog.GetDescription().m_pTitle));
    LayOut();
    RestorePlace(*this, windowTitle());
    m_Dialog.SetObserver(this);
}

CDialogWindow::~CDialogWindow() {
    m_Dialog.SetObserver(nullptr);
    if (QWidget* pFocus = focusWidget()) // a button that loses it on its way looks at others that may be gone
        pFocus->clearFocus();
    delete m_pBody; // while the adapters are there to listen
}

CPlacedControl CDialogWindow::PlaceControl(const CControlDescription& control, QWidget& parent) {
    std::unique_ptr<CControlAdapter> pAdapter = MakeAdapter(control, m_Dialog, *this, parent);
    if (!pAdapter)
        return {};
    m_Adapters.push_back(std::move(pAdapter));
    return {m_Adapters.back()->Widget(), m_Adapters.back()->Placed()};
}

QWidget* CDialogWindow::PlacePicture(const CDialogItem& picture, QWidget& parent) {
    auto* pList = dynamic_cast<QAbstractItemView*>(WidgetOf(*m_Dialog.FindItem(picture.m_nList)));
    return new CMovingPicture(*pList, picture.m_Pictures, &parent);
}

// As large as the layout wants it, which Qt would not let a window become that it sizes itself. Where the screen
// is too small for the body, or the font too large, the body scrolls. The closing buttons stay.
void CDialogWindow::LayOut() {
    auto* pLayout = new QVBoxLayout(this);
    QWidget* pClosing = LayOutDialog(m_Dialog.GetDescription(), *m_pBody, *this, *this);
    pLayout->addWidget(m_pBody, 1);
    if (pClosing)
        pLayout->addWidget(pClosing);
    const QSize room = screen()->availableSize() - kWindowFrame;
    QSize wanted = pLayout->totalSizeHint().boundedTo(room);
    if (pLayout->hasHeightForWidth())
        wanted.setHeight(
            qBound(wanted.height(), pLayout->totalHeightForWidth(wanted.width()), room.height()));
    const QSize least = pLayout->totalMinimumSize();
    if (least.width() > room.width() || least.height() > room.height()) {
        const QMargins margins = pLayout->contentsMargins();
        pLayout->removeWidget(m_pBody);
        pLayout->insertWidget(0, Scrolling(room.width() - margins.left() - margins.right()), 1);
    }
    resize(wanted);
}

// The body in an area that scrolls, and never across while it fits `nRoom` beside the upright bar.
QWidget* CDialogWindow::Scrolling(int nRoom) {
    auto* pArea = new QScrollArea(this);
    pArea->setFrameShape(QFrame::NoFrame);
    pArea->setFocusPolicy(Qt::NoFocus);
    pArea->setWidgetResizable(true);
    pArea->setWidget(m_pBody);
    const int nBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, pArea) + kGapBeforeBar;
    m_pBody->layout()->setContentsMargins(0, 0, kGapBeforeBar, 0);
    pArea->setMinimumWidth(qMin(m_pBody->minimumSizeHint().width() + nBar, nRoom));
    connect(qApp, &QApplication::focusChanged, pArea, [pArea](QWidget*, QWidget* pNow) {
        if (pNow && pArea->isAncestorOf(pNow))
            pArea->ensureWidgetVisible(pNow);
    });
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

void CDialogWindow::done(int nResult) {
    if (isVisible())
        KeepPlace(*this, windowTitle());
    QDialog::done(nResult);
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
