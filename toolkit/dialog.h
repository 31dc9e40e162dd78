// CDialog: a modal dialog, without the windows. It is made from its description, keeps the control objects
// while it runs and calls the handlers of what the person does; the desktop shows it and plays the person's
// acts into the controls.
//
//     class CPaddingDlg : public CDialog { ... CString m_PaddingLeft; ... };
//
//     CPaddingDlg::CPaddingDlg() : CDialog(PaddingDescription()) {
//         SetHandlers<CPaddingDlg>({{Id::More, Notification::Clicked, &CPaddingDlg::OnMore}});
//     }
//     void CPaddingDlg::DoDataExchange(CDataExchange& exchange) { exchange.Text(Id::Left, m_PaddingLeft); }
//
//     CPaddingDlg dialog;
//     dialog.m_PaddingLeft = "3";
//     if (dialog.DoModal() == IDOK)
//         left = dialog.m_PaddingLeft;
//
// The controls exist from the start of DoModal to its end, afresh in each run; an id that the description
// doesn't have, or one of another kind, is a programmer's error and ends the process.
#pragma once

#include "toolkit/control.h"
#include "toolkit/data_exchange.h"
#include "toolkit/dialog_description.h"
#include "toolkit/spin_button_ctrl.h"

#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <utility>

namespace orrelix {

class COwnerDrawnButton;

// Set by the desktop's window, to be told of its dialog.
class CDialogObserver {
public:
    virtual void OnDialogEnded() = 0;

protected:
    ~CDialogObserver() = default;
};

// One row of a dialog's table of notifications.
template <class TDialog>
struct CNotificationHandler {
    int m_nId;
    Notification m_Notification;
    void (TDialog::*m_pHandler)();
};

class CDialog : private CNotificationTarget {
public:
    // The description must outlive the dialog.
    explicit CDialog(const CDialogDescription& description);
    virtual ~CDialog();
    CDialog(const CDialog&) = delete;
    CDialog& operator=(const CDialog&) = delete;

    // Shows the dialog until it ends; the result is what EndDialog was given, IDOK or IDCANCEL as a rule.
    // Where nobody is there to answer, and where the dialog runs already, it is IDCANCEL.
    virtual int DoModal();

    const CDialogDescription& GetDescription() const { return m_Description; }

    // The control with this id, while the dialog runs; null when there is none.
    CControl* FindItem(int nId) const;

    template <class TControl>
    TControl& Item(int nId) const {
        TControl* pControl = dynamic_cast<TControl*>(FindItem(nId));
        if (!pControl)
            StopOnWrongItem(nId);
        return *pControl;
    }

    // What stands beside a button, such as a few words on what it leads to. Only buttons of which ShowsBeside is
    // true have something beside them; what it is may be new after each act of the person.
    bool ShowsBeside(int nButton) const { return m_Beside.count(nButton) > 0; }
    CString GetTextBeside(int nButton) const {
        return ShowsBeside(nButton) ? m_Beside.at(nButton)() : CString();
    }

    // A disabled dialog takes nothing from the person; its popup does.
    void EnableWindow(bool bEnable);
    bool IsWindowEnabled() const { return m_bEnabled; }

    // Calls the handler of the message, if the dialog has one, before returning.
    void SendMessage(int nMessage, unsigned long nFirst, long nSecond);

    bool HasEnded() const { return m_bEnded; }

    // Not owned; set by the desktop for the length of the run.
    void SetObserver(CDialogObserver* pObserver) { m_pObserver = pObserver; }

    // Presses Escape or closes the window by its title bar.
    void PersonCloses(CPersonKey);

protected:
    // Runs when the controls stand and before the dialog shows. The base transfers the fields to the
    // controls. A dialog that ends in here doesn't show at all.
    virtual void OnInitDialog();

    // Carries each field to or from its control.
    virtual void DoDataExchange(CDataExchange&) {}

    // "OK": transfers the controls to the fields and ends with IDOK.
    virtual void OnOK();
    // "Cancel", Escape, the title bar: ends with IDCANCEL.
    virtual void OnCancel() { EndDialog(IDCANCEL); }

    // True: the controls go to the fields. False: the fields go to the controls.
    void UpdateData(bool bSave);

    void EndDialog(int nResult);

    void Enable(int nId, bool bEnable) const { Item<CControl>(nId).EnableWindow(bEnable); }

    // The tables of what to do, given once, in the constructor. OK and Cancel need no row.
    template <class TDialog>
    void SetHandlers(std::initializer_list<CNotificationHandler<TDialog>> handlers) {
        for (const CNotificationHandler<TDialog>& row : handlers) {
            SetHandler(row.m_nId, row.m_Notification,
                       [this, pHandler = row.m_pHandler] { (static_cast<TDialog*>(this)->*pHandler)(); });
        }
    }
    void SetHandler(int nId, Notification notification, std::function<void()> handler);
    void SetMessageHandler(int nMessage, std::function<void(unsigned long, long)> handler);

    // Puts a text beside a button; see GetTextBeside. In the constructor.
    void ShowBeside(int nButton, std::function<CString()> text) { m_Beside[nButton] = std::move(text); }

    // Puts an owner-drawn button, a member of the dialog, in its place. In the constructor.
    void Attach(int nId, COwnerDrawnButton& button);

private:
    void OnNotify(int nId, Notification notification) override;
    void CreateControls();
    void DropControls();
    [[noreturn]] void StopOnWrongItem(int nId) const;

    const CDialogDescription& m_Description;
    std::map<int, CControl*> m_Items;
    std::map<int, COwnerDrawnButton*> m_Attached;
    std::map<int, std::function<CString()>> m_Beside;
    std::map<std::pair<int, Notification>, std::function<void()>> m_Handlers;
    std::map<int, std::function<void(unsigned long, long)>> m_MessageHandlers;
    std::vector<std::unique_ptr<CControl>> m_Controls;
    CDialogObserver* m_pObserver = nullptr;
    bool m_bRunning = false;
    bool m_bEnded = false;
    bool m_bEnabled = true;
    int m_nResult = IDCANCEL;
};

} // namespace orrelix
