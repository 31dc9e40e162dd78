// CControl: what every control of a dialog has, and the two doors through which it is changed.
//
// What the program does to a control (sets a text, adds a row, enables it) changes its state and tells the
// dialog nothing. What the person does (types, clicks, picks a row) goes through the operations whose names
// begin with "Person": they change the state and then notify the dialog. They need a key that only a desktop
// can make, so that no dialog plays the person by mistake.
//
//     edit.SetWindowText("12");           // the program: silent
//     edit.PersonTypes(Person(), "12");   // a desktop: the dialog's handler for Changed runs
//
// Either way the control's observer hears of the new state, so that a window shows what the control holds.
#pragma once

#include "platform/string.h"

namespace orrelix {

struct CControlDescription;

// The permit to act as the person at the screen.
class CPersonKey {
    friend class CDesktop;
    CPersonKey() {}
};

// What a person's act tells the dialog.
enum class Notification {
    Clicked, // a button was pressed; a row of a list view was chosen, by either mouse button or the keys
    Changed, // the text of an edit box, or of a combo box's edit part, was edited
    SelectionChanged, // a row of a list box was picked
    DoubleClicked,    // a row of a list box was double-clicked
    ListClosed,       // the list of a combo box closed, whether or not something new was picked
    LabelEditEnded,   // the editing of a row's label in a list view ended
};

// Whoever is notified: the dialog.
class CNotificationTarget {
public:
    virtual void OnNotify(int nId, Notification notification) = 0;

protected:
    ~CNotificationTarget() = default;
};

// Which part of a control's state is new. The two numbers that go with it are a first row and a count of
// rows, where the change is about rows, and else 0.
enum class ControlChange {
    Text,
    Enabled,
    Focus,        // the program asks that the control get the keyboard focus
    Range,        // of a spin control or a slider
    Position,     // of a spin control or a slider
    Columns,      // of a list view
    RowsInserted, // these rows are new
    RowsRemoved,  // these rows are gone
    RowsChanged,  // the texts of these rows
    RowMarks,     // which of these rows are selected, focused or hot
    LabelEdit,    // the program asks that this row's label be edited in place
    Appearance,   // an owner-drawn button wants to be drawn again
};

// A window's ear on its control. It is called within each change, whoever made it, and must not change the
// control itself.
class CControlObserver {
public:
    virtual void OnControlChanged(ControlChange change, int nFirst, int nCount) = 0;

protected:
    ~CControlObserver() = default;
};

class CControl {
public:
    CControl() = default;
    CControl(const CControl&) = delete;
    CControl& operator=(const CControl&) = delete;
    virtual ~CControl() = default;

    // Called by the dialog at the start of each run, before any other operation: takes over id, caption,
    // styles and choices, and begins with a fresh state. The target must outlive the run; it may be null.
    void Create(const CControlDescription& description, CNotificationTarget* pTarget);

    int GetDlgCtrlID() const { return m_nId; }

    // The caption of a button or static text, the content of an edit box or of a combo box's edit part. Lines
    // are separated by CR LF.
    const CString& GetWindowText() const { return m_Text; }
    virtual void SetWindowText(const CString& text);

    bool IsWindowEnabled() const { return m_bEnabled; }
    void EnableWindow(bool bEnable);

    // Asks the window, if there is one, to give this control the keyboard focus.
    void SetFocus();

    // At most one observer at a time, not owned; null takes it away. It has to be taken away before it dies.
    void SetObserver(CControlObserver* pObserver) { m_pObserver = pObserver; }

protected:
    // Where a kind takes over what only it has. The base has taken over its own part by then.
    virtual void OnCreate(const CControlDescription&) {}

    void NotifyDialog(Notification notification);
    void TellObserver(ControlChange change, int nFirst = 0, int nCount = 0);

private:
    int m_nId = 0;
    CString m_Text;
    bool m_bEnabled = true;
    CNotificationTarget* m_pTarget = nullptr;
    CControlObserver* m_pObserver = nullptr;
};

// The order of sorted lists: case of A to Z plays no part, other bytes count as they are.
bool SortsBefore(const CString& left, const CString& right);

} // namespace orrelix
