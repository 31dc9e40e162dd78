// Lays a dialog out from its description: labels and boxes in aligned columns, groups in frames, lists
// growing with the window, the closing buttons where the platform has them.
#pragma once

#include "toolkit/dialog_description.h"

#include <QWidget>
#include <functional>
#include <vector>

namespace orrelix {

struct CPlacedControl {
    QWidget* m_pWidget = nullptr; // that has the focus; null: another control's widget shows this one too
    QWidget* m_pPlaced = nullptr; // that stands in the layout
};
using CPlaceControl = std::function<CPlacedControl(const CControlDescription&, QWidget& parent)>;

// Fills the window. `place` is called for each control, in the order of the description, to make its widget
// as a child of `parent`. The keyboard's way through the window is the order of the description too, but for
// the closing buttons, which it takes as they stand.
void LayOutDialog(const CDialogDescription& description, QWidget& window, const CPlaceControl& place);

} // namespace orrelix
