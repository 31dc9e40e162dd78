// Where the person has left a window, kept from run to run in a file of the windows' own in the user's folder.
#pragma once

#include <QWidget>

namespace orrelix {

// Puts the window where one of this name was left, with its size then, as far as the screens still have room
// for it. Does nothing when there was none.
void RestorePlace(QWidget& window, const QString& name);

// Remembers the window's place. Where the file can't be written, it is forgotten.
void KeepPlace(const QWidget& window, const QString& name);

} // namespace orrelix
