// The one place where windows run modally.
#pragma once

#include <QDialog>

// Shows the window above the others, keeps all other windows of the process from the person and returns when
// it has closed. Returns at once, with QDialog::Rejected, outside of the thread of the windows and for a
// window that runs already. The window must have been made with new; one that its parent deletes meanwhile is
// closed.
int RunModal(QDialog& window);

// Where a new window belongs: the window that the person is in, which may be the host's; null when there is
// none.
QWidget* WindowInUse();
