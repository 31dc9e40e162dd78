// The host's window, which the host names by its number in the window system (see GetOwnerWindow): the windows of the
// dialogs belong to it.
#pragma once

#include <QDialog>
#include <QWindow>
#include <memory>

namespace orrelix {

// The window of that number as a widget, where it is one of this process's; else null.
QWidget* OwnerWidget();

// Puts a window without a parent on top of the owner where that is another toolkit's window, as long as this lives.
// X11 only: elsewhere no window has a number that others know it by. A number that no window has is the window
// system's to ignore.
class CForeignOwner {
public:
    // Shall be there before the window is shown.
    explicit CForeignOwner(QDialog& window);

private:
    std::unique_ptr<QWindow> m_pOwner;
};

} // namespace orrelix
