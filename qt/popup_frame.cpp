#include "qt/popup_frame.h"

#include "qt/canvas.h"
#include "qt/popup_accessible.h"
#include "qt/text.h"

#include <QApplication>
#include <QMouseEvent>
#include <QToolTip>

namespace orrelix {

namespace {

CPoint PointOf(const QMouseEvent& event) {
    return {event.position().toPoint().x(), event.position().toPoint().y()};
}

} // namespace

CPopupFrame::CPopupFrame(CPopupWindow& popup, CPersonKey key, QWidget* pParent, std::function<void()> fail)
    : QWidget(pParent, Qt::Popup), m_pPopup(&popup), m_Key(key), m_Fail(std::move(fail)) {
    MakePopupsAccessible();
    setAttribute(Qt::WA_QuitOnClose, false);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    if (const QWidget* pButton = pParent ? pParent->focusWidget() : nullptr)
        setAccessibleName(pButton->accessibleName());
    const QRect rect = ToQt(popup.GetWindowRect());
    setFixedSize(rect.size());
    setGeometry(rect);
    popup.SetObserver(this);
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationInactive)
            Deactivate();
    });
    show();
    setFocus(Qt::PopupFocusReason);
}

CPopupFrame::~CPopupFrame() {
    Deactivate();
    LetGo();
}

void CPopupFrame::OnPopupChanged(CPopupWindow&) {
    AnnounceCurrentCell(*this);
    update();
}

void CPopupFrame::Play(const std::function<void(CPopupWindow&)>& act) {
    if (!m_pPopup || m_bClosing)
        return;
    ++m_nEvents;
    try {
        act(*m_pPopup);
    } catch (...) {
        m_bClosing = true;
        m_Fail();
    }
    --m_nEvents;
    if (m_bClosing)
        Close();
}

void CPopupFrame::Deactivate() {
    Play([this](CPopupWindow& popup) { popup.OnDeactivate(m_Key); });
}

void CPopupFrame::Close() {
    m_bClosing = true;
    if (m_nEvents > 0)
        return;
    hide();
    LetGo();
    deleteLater();
}

void CPopupFrame::LetGo() {
    if (!m_pPopup)
        return;
    m_pPopup->SetObserver(nullptr);
    std::exchange(m_pPopup, nullptr)->OnClosed();
}

bool CPopupFrame::event(QEvent* pEvent) {
    if (pEvent->type() == QEvent::ToolTip && m_pPopup) {
        ShowToolTip(*static_cast<QHelpEvent*>(pEvent));
        return true;
    }
    return QWidget::event(pEvent);
}

void CPopupFrame::ShowToolTip(const QHelpEvent& help) {
    for (const CPopupCell& cell : m_pPopup->GetCells()) {
        if (cell.m_Rect.PtInRect({help.pos().x(), help.pos().y()}))
            return ShowToolTip(cell, help.globalPos());
    }
    QToolTip::hideText();
}

void CPopupFrame::ShowToolTip(const CPopupCell& cell, QPoint place) {
    if (cell.m_bTextShows)
        QToolTip::hideText();
    else
        QToolTip::showText(place, PlainTip(ToQt(cell.m_Text)), this, ToQt(cell.m_Rect));
}

void CPopupFrame::paintEvent(QPaintEvent*) {
    if (!m_pPopup)
        return;
    CQtCanvas canvas(*this);
    m_pPopup->Draw(canvas);
}

// A press elsewhere doesn't close the window yet, as Qt would have it: the release ends the popup.
void CPopupFrame::mousePressEvent(QMouseEvent* pEvent) {
    pEvent->accept();
}

void CPopupFrame::mouseMoveEvent(QMouseEvent* pEvent) {
    Play([&](CPopupWindow& popup) { popup.OnMouseMove(m_Key, PointOf(*pEvent)); });
}

void CPopupFrame::mouseReleaseEvent(QMouseEvent* pEvent) {
    if (pEvent->button() == Qt::LeftButton)
        Play([&](CPopupWindow& popup) { popup.OnLeftButtonUp(m_Key, PointOf(*pEvent)); });
}

void CPopupFrame::keyPressEvent(QKeyEvent* pEvent) {
    static const QHash<int, PopupKey> keys{
        {Qt::Key_Up, PopupKey::Up},         {Qt::Key_Down, PopupKey::Down},
        {Qt::Key_Left, PopupKey::Left},     {Qt::Key_Right, PopupKey::Right},
        {Qt::Key_Escape, PopupKey::Escape}, {Qt::Key_Return, PopupKey::Return},
        {Qt::Key_Enter, PopupKey::Return},  {Qt::Key_Space, PopupKey::Space},
    };
    const auto key = keys.constFind(pEvent->key());
    if (key == keys.constEnd())
        return;
    Play([&](CPopupWindow& popup) { popup.OnKeyDown(m_Key, *key); });
    ShowToolTipOfCurrentCell();
}

// Who works it by keys gets the tips without a pointer's resting.
void CPopupFrame::ShowToolTipOfCurrentCell() {
    const int nCurrent = GetCurrentCell();
    if (m_bClosing || nCurrent < 0)
        return;
    const CPopupCell cell = GetCells()[static_cast<size_t>(nCurrent)];
    ShowToolTip(cell, mapToGlobal(ToQt(cell.m_Rect).bottomLeft()));
}

// The system takes popups away when the person goes elsewhere, and so does a new window.
void CPopupFrame::hideEvent(QHideEvent*) {
    Deactivate();
}

} // namespace orrelix
