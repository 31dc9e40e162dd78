// Lays a dialog out from its description: labels and boxes in aligned columns, groups in frames, lists
// growing with the window, the closing buttons where the platform has them.
#pragma once

#include "toolkit/dialog_description.h"

#include <QWidget>
#include <vector>

namespace orrelix {

struct CPlacedControl {
    QWidget* m_pWidget = nullptr; // that has the focus; null: another control's widget shows this one too
    QWidget* m_pPlaced = nullptr; // that stands in the layout
};

// Makes the widgets that are to be laid out, each as a child of `parent`.
class CWidgetMaker {
public:
    virtual CPlacedControl PlaceControl(const CControlDescription& control, QWidget& parent) = 0;
    virtual QWidget* PlacePicture(const CDialogItem& picture, QWidget& parent) = 0;

protected:
    ~CWidgetMaker() = default;
};

// Fills `body`, a child of the window, with the controls in the order of the description. A row of closing
// buttons at its end isn't put into the body; it is given back, a child of the window, so that it can stay in
// sight when the body scrolls; null when there is none. The keyboard's way through the window is the order of
// the description too, but for the closing buttons, which it takes as they stand.
QWidget* LayOutDialog(const CDialogDescription& description, QWidget& body, QWidget& window,
                      CWidgetMaker& maker);

} // namespace orrelix
