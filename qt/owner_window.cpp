#include "qt/owner_window.h"

#include "qt/text.h"
#include "toolkit/desktop.h"

#include <QGuiApplication>
#include <limits>

namespace orrelix {

namespace {

// 0, which no window has, for what is no number.
WId OwnerNumber() {
    const qulonglong nNumber = ToQt(GetOwnerWindow()).toULongLong();
    return nNumber <= std::numeric_limits<quint32>::max() ? static_cast<WId>(nNumber) : 0;
}

} // namespace

QWidget* OwnerWidget() {
    const WId nOwner = OwnerNumber();
    QWidget* pOwner = nOwner ? QWidget::find(nOwner) : nullptr;
    return pOwner ? pOwner->window() : nullptr;
}

CForeignOwner::CForeignOwner(QDialog& window) {
    const WId nOwner = OwnerNumber();
    if (!nOwner || window.parentWidget() || QGuiApplication::platformName() != "xcb")
        return;
    m_pOwner.reset(QWindow::fromWinId(nOwner));
    window.winId(); // makes the window's own side, which isn't there before it is shown
    window.windowHandle()->setTransientParent(m_pOwner.get());
}

} // namespace orrelix
