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

// Where a new window belongs: the dialog that is running, or else the host's window, the one that it named or
// the one that the person is in; null when it has none here.
QWidget* WindowInUse();

} // namespace orrelix
