#include "qt/modal.h"

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
    return window.exec();
}

QWidget* WindowInUse() {
    QWidget* pModal = QApplication::activeModalWidget();
    return pModal ? pModal : QApplication::activeWindow();
}

} // namespace orrelix
