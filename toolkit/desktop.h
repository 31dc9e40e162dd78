// CDesktop: the screen and the person before it. Everything that a dialog asks of a window system goes
// through here; everything that the person does comes back through the Person operations of the controls.
//
// There is one desktop in force. Real windows are one, and in force from the start where there is a screen
// (toolkit/desktop_loader.h); the tests' scripted person is another. Without a screen, and after
// SetDesktop(nullptr), nobody is there: each dialog ends in Cancel.
//
// Who writes a desktop: show what the controls hold when RunDialog is called and follow their observers from
// then on, never the other way round; play every act of the person through the Person operations; take all
// observers away again before RunDialog returns. A dialog's handler may run another dialog, so all of this
// nests. Everything happens on the thread that called DoModal.
#pragma once

#include "platform/array.h"
#include "toolkit/control.h"
#include "toolkit/drawing.h"

namespace orrelix {

class CDialog;
class CFileDialog;
class COwnerDrawnButton;
class CPopupWindow;

enum class MessageBoxKind {
    Ok,       // one button, "OK"
    OkCancel, // "OK" and "Cancel"
    Warning,  // one button, "OK", and the sign of a warning
};

// Measures of the theme, in pixels.
struct CThemeMetrics {
    CSize m_Edge;        // the two lines of an edge around a control
    CSize m_ScrollThumb; // the thumb of a horizontal scroll bar in width, of a vertical one in height
};

class CDesktop {
public:
    virtual ~CDesktop() = default;

    // Shows the dialog and returns when it has ended (CDialog::HasEnded).
    virtual void RunDialog(CDialog& dialog) = 0;

    // IDOK or IDCANCEL; closing a box that has only "OK" gives IDOK.
    virtual int ShowMessageBox(const CString& text, MessageBoxKind kind) = 0;

    // True when the person chose a file; PersonChooses has been called then.
    virtual bool RunFileDialog(CFileDialog& dialog) = 0;

    // The system's dialog for any colour, starting at `colour`; true when the person chose one.
    virtual bool RunColourDialog(CColour& colour) = 0;

    // Shows the popup and returns at once. One can be open at a time.
    virtual void OpenPopup(CPopupWindow& popup) = 0;
    // Takes the popup's window away; its OnClosed is called, now or as soon as no event of it is under way.
    virtual void ClosePopup(CPopupWindow& popup) = 0;

    // Where the button stands on the screen.
    virtual CRect GetScreenRect(const COwnerDrawnButton& button) const = 0;
    // The screen that the place is on, without what the system keeps for itself there.
    virtual CRect GetScreenAround(const CRect& place) const = 0;
    virtual CThemeMetrics GetMetrics() const = 0;
    // The size of one line in the dialogs' font.
    virtual CSize MeasureText(const CString& text) const = 0;
    virtual CColour GetSystemColour(SystemColour colour) const = 0;

    // The names of the font families, in any order.
    virtual CStringArray GetFontFamilies() const = 0;

protected:
    // The permit to call the Person operations. A desktop may hand it to its windows.
    static CPersonKey Person() { return {}; }
};

CDesktop& GetDesktop();

// Not owned; it must stay until another one is set. Null: nobody is there.
void SetDesktop(CDesktop* pDesktop);

// The host's window, on top of which a desktop opens its dialogs: the number by which the window system knows it, in
// decimal. Empty at start, for none.
const CString& GetOwnerWindow();
void SetOwnerWindow(const CString& window);

// A message box with one "OK", or the kind that is named.
int AfxMessageBox(const CString& text, MessageBoxKind kind = MessageBoxKind::Ok);

} // namespace orrelix
