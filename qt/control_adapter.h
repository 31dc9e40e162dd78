// CControlAdapter: ties a control of the toolkit to the widget that shows it. There is one kind of adapter
// per kind of control, and none knows a dialog.
//
// What the program changes in the control comes in through OnControlChanged and is shown; what the person
// does to the widget goes out through CStage::Play to the control's Person operations. An adapter shows
// within a CShowing and takes no signal as the person's while IsShowing. The signals that only a person's
// events cause, such as QLineEdit::textEdited, would leave out who works the widget through an assistive
// tool.
#pragma once

#include "toolkit/control.h"
#include "toolkit/dialog_description.h"

#include <QLineEdit>
#include <QObject>
#include <QWidget>
#include <functional>
#include <memory>

namespace orrelix {

class CDialog;

// The window, as its adapters see it.
class CStage {
public:
    // Calls act(key), unless the dialog takes nothing at the time. Throws nothing.
    virtual void Play(const std::function<void(CPersonKey)>& act) = 0;
    // Ends the editing of a label, where one is under way, as leaving it would.
    virtual void FinishEditing() = 0;

protected:
    ~CStage() = default;
};

class CControlAdapter : public QObject, private CControlObserver {
public:
    // Both must outlive the adapter.
    CControlAdapter(CControl& control, CStage& stage);
    ~CControlAdapter() override;

    // The widget that has the focus. It belongs to the widget around it and outlives the adapter.
    virtual QWidget* Widget() const = 0;
    // What stands in the layout: the widget, or a box around it.
    virtual QWidget* Placed() const { return Widget(); }

    // Shows the control as it stands. Once, when the adapter is made; from then on changes are followed.
    void ShowControl() {
        ShowEnabled();
        ShowAll();
    }
    virtual void FinishEditing() {}
    // Shows what may be new after any act of the person, beyond what the control itself tells.
    virtual void ShowAfterAct() {}

    const CControl& Control() const { return m_Control; }

protected:
    virtual void ShowAll() = 0;
    // A change other than Enabled and Focus.
    virtual void Show(ControlChange, int /*nFirst*/, int /*nCount*/) { ShowAll(); }
    virtual void ShowEnabled();

    void Play(const std::function<void(CPersonKey)>& act) { m_Stage.Play(act); }
    CStage& Stage() { return m_Stage; }

    // Calls typed(text) for each text that the person puts into the box.
    void ListenTo(QLineEdit& box, std::function<void(const CString&)> typed);
    // Puts the text, which is the control's, into the box, where it differs. The cursor stays before the text that it stands
    // before; in a box that the person isn't in, the start of the text shows.
    void ShowText(QLineEdit& box, const CString& text);
    // The same as if the person had typed it: the box can undo it.
    void TypeText(QLineEdit& box, const CString& text);

    class CShowing {
    public:
        explicit CShowing(CControlAdapter& adapter) : m_Adapter(adapter) { ++m_Adapter.m_nShowing; }
        ~CShowing() { --m_Adapter.m_nShowing; }
        CShowing(const CShowing&) = delete;

    private:
        CControlAdapter& m_Adapter;
    };
    bool IsShowing() const { return m_nShowing > 0; }

private:
    void OnControlChanged(ControlChange change, int nFirst, int nCount) override;

    CControl& m_Control;
    CStage& m_Stage;
    int m_nShowing = 0;
};

// The adapter for the described control of the running dialog, with its widget made in `parent`; null for a
// control that another one's widget shows too, as a spin control is shown by its edit box.
std::unique_ptr<CControlAdapter> MakeAdapter(const CControlDescription& description, CDialog& dialog,
                                             CStage& stage, QWidget& parent);

} // namespace orrelix
