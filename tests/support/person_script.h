// CPersonScript: what a person does at the screen, step by step, to be played before any desktop.
//
//     script.In("Slide Text").Does({"types Table / Width = 300", "clicks Title Font..."});
//     script.In("Font Properties").Does({"turns Font Size = 2", "clicks OK"});
//     script.In("Slide Text").Shows("Table / Width", "300").Does("clicks OK");
//
// Controls go by what a person sees: their label, caption or spoken name, after the title of their group and
// " / " where the name alone could mean two. A step fails the test when it names what isn't there, is
// disabled or lies behind another dialog; so does a dialog or message box that no step is about, and a step
// that is never reached. After a failure the person closes whatever comes up.
#pragma once

#include "toolkit/desktop.h"
#include "toolkit/dialog.h"
#include "toolkit/popup_window.h"

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

namespace orrelix {

class CFileDialog;

// A control as a step found it on the screen.
struct CTarget {
    CDialog& m_Dialog;
    const CControlDescription& m_Description;
    CControl& m_Control;
};

// How a person reaches what is on the screen: each desktop under test has its own.
class CPersonHands {
public:
    virtual ~CPersonHands() = default;

    virtual void Type(const CTarget& target, const CString& text) = 0;
    virtual void Turn(const CTarget& target, int nSteps) = 0;
    virtual void Click(const CTarget& target) = 0;
    virtual void SelectRows(const CTarget& target, const std::vector<int>& rows) = 0;
    virtual void DoubleClick(const CTarget& target, int nRow) = 0;
    virtual void Pick(const CTarget& target, int nRow) = 0;
    virtual void CloseList(const CTarget& target) = 0;
    virtual void Move(const CTarget& target, int nPos) = 0;
    // Ends the editing of a label that is under way; no text: cancels it.
    virtual void Rename(const CTarget& target, const std::optional<CString>& text) = 0;
    // Keys by name, such as "Escape" and "Enter", which every desktop knows, or "Ctrl+A".
    virtual void Press(CDialog& dialog, const CString& keys) = 0;
    // With windows alone: leads the keyboard to the control, and types into what has it.
    virtual void Focus(const CTarget& target);
    virtual void Write(const CString& text);

    // The popup that is open, or null.
    virtual CPopupWindow* GetPopup() = 0;
    virtual void MoveInPopup(CPoint point) = 0;
    virtual void ReleaseInPopup(CPoint point) = 0;
    virtual void PressInPopup(PopupKey key) = 0;

    virtual CString TextOf(const CTarget& target) = 0;
    virtual bool IsEnabled(const CTarget& target) = 0;
    virtual int PositionOf(const CTarget& target) = 0;
    // Rows of a list or combo box; the cells of a row with columns are joined by " | ".
    virtual std::vector<CString> RowsOf(const CTarget& target) = 0;
    virtual std::vector<int> SelectedRowsOf(const CTarget& target) = 0;
    virtual int HotRowOf(const CTarget& target) = 0; // -1: no row is hot
    virtual CString TextBeside(const CTarget& target) = 0;
    // The name of what has the keyboard; empty where there are no windows.
    virtual CString Focused() { return {}; }
};

class CPersonScript {
public:
    // Fails the test for each step that was never reached.
    virtual ~CPersonScript();

    // The steps that follow happen in the dialog with this title.
    CPersonScript& In(const CString& title);

    // What the person does next: a verb of the tables in person_script.cpp, and what it is about.
    CPersonScript& Does(const CString& act);
    CPersonScript& Does(const std::vector<CString>& acts);

    // What the person sees.
    CPersonScript& Shows(const CString& name, const CString& text) {
        return Sees("reads", name, {ControlKind::Edit, ControlKind::ComboBox, ControlKind::Static},
                    &CPersonHands::TextOf, text);
    }
    CPersonScript& ShowsRows(const CString& name, const std::vector<CString>& rows) {
        return Sees("reads the rows of", name, kRows, &CPersonHands::RowsOf, rows);
    }
    CPersonScript& ShowsSelected(const CString& name, const std::vector<int>& rows) {
        return Sees("looks at the selection of", name, kRows, &CPersonHands::SelectedRowsOf, rows);
    }

    // Anything else, done when the steps before have been.
    CPersonScript& Then(std::function<void(CDialog&)> action);

    // Called before each act and look, with the dialog in front: for who notes what the screen has come to.
    std::function<void(CDialog&, CPersonHands&)> m_OnStep;
    size_t StepsLeft() const { return m_Steps.size(); }

    // --- For who plays the script ---

    // Plays the next step in this dialog, which is the one in front. False when the dialog has to be closed:
    // the next step isn't about it. The failure has been reported then.
    bool PlayStep(CDialog& dialog, CPersonHands& hands);

    // IDOK for a box that has nothing else.
    int AnswerMessageBox(const CString& text, MessageBoxKind kind);

    struct CFileAnswer {
        std::optional<CString> m_Path; // none: cancels
        std::optional<CString> m_AddedText;
    };
    CFileAnswer AnswerFileDialog();
    std::optional<CColour> AnswerColourDialog();

private:
    enum class Kind { Act, Message, File, Colour };

    struct CStep {
        Kind m_Kind = Kind::Act;
        CString m_Dialog = {};
        CString m_Words = {}; // how the step reads, for failures
        std::function<void(CDialog&, CPersonHands&)> m_Act = [](CDialog&, CPersonHands&) {};
        CString m_Message = {};
        int m_nAnswer = IDOK;
        CFileAnswer m_File = {};
        std::optional<CColour> m_Colour = {};
    };

    static CStep AnswerOf(const CString& act);

    using Kinds = std::vector<ControlKind>;
    static inline const Kinds kRows = {ControlKind::ListBox, ControlKind::ListCtrl, ControlKind::ComboBox};

    using Act = std::function<void(const CTarget&, CPersonHands&)>;
    CPersonScript& Add(CStep step);
    CPersonScript& AddAct(const CString& words, std::function<void(CDialog&, CPersonHands&)> act);
    // A look at a control that must be there, of one of these kinds; and an act upon one, which must be enabled.
    CPersonScript& AddLook(const CString& words, const CString& name, const Kinds& kinds, Act act);
    CPersonScript& AddControlAct(const CString& words, const CString& name, const Kinds& kinds, Act act);
    CPersonScript& AddPopupAct(const CString& words, std::function<void(CPopupWindow&, CPersonHands&)> act);
    template <class T>
    CPersonScript& Sees(const char* pVerb, const CString& name, const Kinds& kinds,
                        T (CPersonHands::*look)(const CTarget&), const std::type_identity_t<T>& expected) {
        return AddLook(pVerb + (" " + name), name, kinds,
                       [look, name, expected](const CTarget& target, CPersonHands& hands) {
                           EXPECT_EQ((hands.*look)(target), expected) << name;
                       });
    }
    std::optional<CStep> Take(Kind kind, const CString& what);
    void Fail(const CString& message);

    std::deque<CStep> m_Steps;
    CString m_Dialog;
    bool m_bLost = false;
};

// "Up", "Down", "Left", "Right", "Escape", "Return" or "Space".
PopupKey PopupKeyNamed(const CString& name);

} // namespace orrelix
