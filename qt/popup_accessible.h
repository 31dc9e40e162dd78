// What a screen reader finds in a popup: a list of cells, of which one may have the focus.
#pragma once

#include <QWidget>

namespace orrelix {

class CPopupFrame;

// To be called once before the first popup opens; further calls do nothing.
void MakePopupsAccessible();

// The popup has another current cell: says so.
void AnnounceCurrentCell(CPopupFrame& frame);

} // namespace orrelix
