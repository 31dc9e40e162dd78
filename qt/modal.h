// The one place where windows run modally.
#pragma once

#include <QDialog>

namespace orrelix {

// Whether the calling thread is the one that windows belong to. No other may even make one.
bool IsWindowThread();

// Shows the window above the others, keeps all other windows of the process from the person and returns when
// it has closed: QDialog::Rejected also where its parent has deleted it meanwhile, and at once where it is
// running already.
int RunModal(QDialog& window);

// Where a new window belongs: the window that the person is in, which may be the host's; null when there is
// none.
QWidget* WindowInUse();

} // namespace orrelix
