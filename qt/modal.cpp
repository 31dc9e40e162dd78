#include "qt/modal.h"

#include "qt/owner_window.h"

#include <QApplication>
#include <QThread>

namespace orrelix {

bool IsWindowThread() {
    return QThread::currentThread() == qApp->thread();
}

int RunModal(QDialog& window) {
    if (window.isVisible())
        return QDialog::Rejected;
    // A host that quits with its last window means one of its own.
    window.setAttribute(Qt::WA_QuitOnClose, false);
    const CForeignOwner owner(window);
    return window.exec();
}

QWidget* WindowInUse() {
    if (QWidget* pModal = QApplication::activeModalWidget())
        return pModal;
    QWidget* pOwner = OwnerWidget();
    return pOwner ? pOwner : QApplication::activeWindow();
}

} // namespace orrelix
