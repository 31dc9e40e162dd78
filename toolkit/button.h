// CButton: a push button. COwnerDrawnButton: one that draws itself.
#pragma once

#include "toolkit/control.h"
#include "toolkit/drawing.h"

namespace orrelix {

class CButton : public CControl {
public:
    // Notifies Clicked, or whatever else OnClick does. A disabled button takes nothing.
    void PersonClicks(CPersonKey);

protected:
    virtual void OnClick() { NotifyDialog(Notification::Clicked); }
};

// The base of buttons that bring their own looks. The dialog that has one owns it and attaches it
// (CDialog::Attach); the window asks it for its size once and then to draw itself.
class COwnerDrawnButton : public CButton {
public:
    // The size that the button takes when the layout offers `size`. Asked once, when its window is made.
    virtual CSize Measure(CSize size) = 0;

    // Draws the whole button into the rectangle. Called whenever the window needs it, and after
    // ControlChange::Appearance, Enabled and Text.
    virtual void Draw(CCanvas& canvas, const CRect& rect, bool bPressed, bool bFocused) const = 0;
};

} // namespace orrelix
