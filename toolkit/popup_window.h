// CPopupWindow: a window without a title that opens from a control, takes the mouse and the keys, and closes
// by itself.
//
//     pPopup = new CColourPickerPopup(...);
//     GetDesktop().OpenPopup(*pPopup);    // returns at once
//     ... the desktop calls OnMouseMove, OnLeftButtonUp, OnKeyDown, OnDeactivate, as the person acts ...
//     GetDesktop().ClosePopup(*this);     // from within one of these; OnClosed follows
//
// Points are in the popup's own coordinates, from its left upper corner; while it is open, mouse events from
// outside of it go to it too.
#pragma once

#include "toolkit/control.h"
#include "toolkit/drawing.h"

#include <vector>

namespace orrelix {

enum class PopupKey { Up, Down, Left, Right, Escape, Return, Space };

// Something in a popup that the person can choose.
struct CPopupCell {
    CRect m_Rect; // in the popup's coordinates
    CString m_Text;
    bool m_bTextShows = false; // the text is painted on it; otherwise a tip tells it
};

class CPopupWindow {
public:
    // On the screen. It doesn't change while the popup is open.
    virtual const CRect& GetWindowRect() const = 0;
    virtual std::vector<CPopupCell> GetCells() const = 0;
    // The cell that the pointer or the keyboard is on, -1 when it is on none.
    virtual int GetCurrentCell() const = 0;
    virtual void Draw(CCanvas& canvas) const = 0;

    virtual void OnMouseMove(CPersonKey, CPoint point) = 0;
    virtual void OnLeftButtonUp(CPersonKey, CPoint point) = 0;
    virtual void OnKeyDown(CPersonKey, PopupKey key) = 0;
    // The person went to another application, or the desktop can't keep the popup open.
    virtual void OnDeactivate(CPersonKey) = 0;

    // The window is gone: the last call that the popup gets. A popup that was made with new deletes itself.
    virtual void OnClosed() = 0;

    // Called by the popup when it looks different. Set by the desktop while the window is open.
    class CObserver {
    public:
        virtual void OnPopupChanged(CPopupWindow& popup) = 0;

    protected:
        ~CObserver() = default;
    };
    void SetObserver(CObserver* pObserver) { m_pObserver = pObserver; }

protected:
    virtual ~CPopupWindow() = default;

    void Invalidate() {
        if (m_pObserver)
            m_pObserver->OnPopupChanged(*this);
    }

private:
    CObserver* m_pObserver = nullptr;
};

} // namespace orrelix
