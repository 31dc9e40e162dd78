#include "tests/support/person_script.h"

#include <algorithm>

namespace orrelix {

namespace {

bool IsCalled(const CControlDescription& control, const CString& name) {
    return name == WithoutMnemonic(control.m_pLabel) || name == WithoutMnemonic(control.m_pCaption) ||
           name == WithoutMnemonic(control.m_pName) || name == AccessibleNameOf(control) ||
           "Choose " + name == AccessibleNameOf(control); // the colour button of a box
}

int RowWithText(const CTarget& target, CPersonHands& hands, const CString& text) {
    const std::vector<CString> rows = hands.RowsOf(target);
    const auto row = std::find(rows.begin(), rows.end(), text);
    if (row != rows.end())
        return static_cast<int>(row - rows.begin());
    ADD_FAILURE() << "there is no row \"" << text << "\" in " << AccessibleNameOf(target.m_Description);
    return -1;
}

CPoint MiddleOf(const CRect& rect) {
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

} // namespace

void CPersonHands::Focus(const CTarget& target) {
    ADD_FAILURE() << "no keyboard can be led to " << AccessibleNameOf(target.m_Description);
}

void CPersonHands::Write(const CString& text) {
    ADD_FAILURE() << "there is no keyboard to write " << text;
}

const CControlDescription* FindByName(const CDialogDescription& description, const CString& name,
                                      const std::vector<ControlKind>& kinds) {
    const CControlDescription* pAlone = nullptr; // what the name means without a group
    const CControlDescription* pExact = nullptr;
    int nAlone = 0;
    ForEachControl(description, [&](const CControlDescription& control, const char* pGroup) {
        if (std::find(kinds.begin(), kinds.end(), control.m_Kind) == kinds.end())
            return;
        const CString prefix = *pGroup ? WithoutMnemonic(pGroup) + " / " : CString();
        if (name.Left(prefix.GetLength()) == prefix && IsCalled(control, name.Mid(prefix.GetLength())))
            pExact = pExact ? pExact : &control;
        if (IsCalled(control, name)) {
            pAlone = &control;
            ++nAlone;
        }
    });
    return pExact ? pExact : nAlone == 1 ? pAlone : nullptr;
}

CPersonScript::~CPersonScript() {
    if (m_bLost)
        return;
    for (const CStep& step : m_Steps)
        ADD_FAILURE() << "never reached, in \"" << step.m_Dialog << "\": the person " << step.m_Words;
}

CPersonScript& CPersonScript::In(const CString& title) {
    m_Dialog = title;
    return *this;
}

CPersonScript& CPersonScript::Add(CStep step) {
    step.m_Dialog = m_Dialog;
    m_Steps.push_back(std::move(step));
    return *this;
}

CPersonScript& CPersonScript::AddAct(const CString& words, std::function<void(CDialog&, CPersonHands&)> act) {
    return Add({.m_Words = words, .m_Act = std::move(act)});
}

CPersonScript& CPersonScript::AddLook(const CString& verb, const CString& name, Kinds kinds, Act act) {
    const CString words = verb + " " + name;
    return AddAct(words, [this, name, kinds, act, words](CDialog& dialog, CPersonHands& hands) {
        const CControlDescription* pControl = FindByName(dialog.GetDescription(), name, kinds);
        if (!pControl) {
            Fail(CString("there is no \"") + name + "\", or more than one, for: " + words);
            return;
        }
        act({dialog, *pControl, dialog.Item<CControl>(pControl->m_nId)}, hands);
    });
}

CPersonScript& CPersonScript::AddAct(const CString& verb, const CString& name, Kinds kinds, Act act) {
    return AddLook(verb, name, std::move(kinds),
                   [this, verb, name, act](const CTarget& target, CPersonHands& hands) {
                       if (hands.GetPopup())
                           Fail(CString("behind the popup: ") + verb + " " + name);
                       else if (!target.m_Dialog.IsWindowEnabled() || !hands.IsEnabled(target))
                           Fail(CString("disabled: ") + verb + " " + name);
                       else
                           act(target, hands);
                   });
}

CPersonScript& CPersonScript::DoubleClicks(const CString& name, const CString& row) {
    return AddAct("double-clicks in", name, {ControlKind::ListBox},
                  [row](const CTarget& target, CPersonHands& hands) {
                      hands.DoubleClick(target, RowWithText(target, hands, row));
                  });
}

CPersonScript& CPersonScript::Picks(const CString& name, const CString& choice) {
    return AddAct("picks from", name, {ControlKind::ComboBox},
                  [choice](const CTarget& target, CPersonHands& hands) {
                      hands.Pick(target, RowWithText(target, hands, choice));
                  });
}

CPersonScript& CPersonScript::Presses(const CString& keys) {
    return AddAct("presses " + keys,
                  [keys](CDialog& dialog, CPersonHands& hands) { hands.Press(dialog, keys); });
}

CPersonScript& CPersonScript::Writes(const CString& text) {
    return AddAct("writes " + text, [text](CDialog&, CPersonHands& hands) { hands.Write(text); });
}

CPersonScript& CPersonScript::AddPopupAct(const CString& words,
                                          std::function<void(CPopupWindow&, CPersonHands&)> act) {
    return AddAct(words, [this, words, act](CDialog&, CPersonHands& hands) {
        if (CPopupWindow* pPopup = hands.GetPopup())
            act(*pPopup, hands);
        else
            Fail(CString("no popup is open: ") + words);
    });
}

CPersonScript& CPersonScript::PicksColour(const CString& colourName) {
    return AddPopupAct(CString("picks the colour ") + colourName,
                       [this, colourName](CPopupWindow& popup, CPersonHands& hands) {
                           for (const CPopupCell& cell : popup.GetCells()) {
                               if (cell.m_Text == colourName) {
                                   hands.MoveInPopup(MiddleOf(cell.m_Rect));
                                   hands.ReleaseInPopup(MiddleOf(cell.m_Rect));
                                   return;
                               }
                           }
                           Fail(CString("the popup has no colour ") + colourName);
                       });
}

CPersonScript& CPersonScript::PressesInPopup(std::initializer_list<PopupKey> keys) {
    for (PopupKey key : keys) {
        AddPopupAct("presses a key in the popup",
                    [key](CPopupWindow&, CPersonHands& hands) { hands.PressInPopup(key); });
    }
    return *this;
}

CPersonScript& CPersonScript::Answers(const CString& message, int nAnswer) {
    return Add({.m_Kind = Kind::Message,
                .m_Words = "answers the message \"" + message + "\"",
                .m_Message = message,
                .m_nAnswer = nAnswer});
}

CPersonScript& CPersonScript::ChoosesFile(const CString& path, const std::optional<CString>& addedText) {
    return Add({.m_Kind = Kind::File, .m_Words = "chooses the file " + path, .m_File = {path, addedText}});
}

CPersonScript& CPersonScript::CancelsFile(const std::optional<CString>& addedText) {
    return Add({.m_Kind = Kind::File, .m_Words = "cancels the file dialog", .m_File = {{}, addedText}});
}

CPersonScript& CPersonScript::MixesColour(CColour colour) {
    return Add({.m_Kind = Kind::Colour, .m_Words = "mixes a colour", .m_Colour = colour});
}

CPersonScript& CPersonScript::CancelsColour() {
    return Add({.m_Kind = Kind::Colour, .m_Words = "cancels the colour dialog"});
}

CPersonScript& CPersonScript::Then(std::function<void(CDialog&)> action) {
    return AddAct("does something", [action](CDialog& dialog, CPersonHands&) { action(dialog); });
}

bool CPersonScript::PlayStep(CDialog& dialog, CPersonHands& hands) {
    if (m_OnStep)
        m_OnStep(dialog, hands);
    const CString title = dialog.GetDescription().m_pTitle;
    const std::optional<CStep> step = Take(Kind::Act, CString("the dialog \"") + title + "\"");
    if (!step)
        return false;
    if (step->m_Dialog != title) {
        Fail(CString("in front is the dialog \"") + title + "\", not \"" + step->m_Dialog +
             "\" where the person " + step->m_Words);
        return false;
    }
    step->m_Act(dialog, hands);
    return !m_bLost;
}

int CPersonScript::AnswerMessageBox(const CString& text, MessageBoxKind kind) {
    const bool bCancel = kind == MessageBoxKind::OkCancel;
    const std::optional<CStep> step = Take(Kind::Message, CString("the message \"") + text + "\"");
    if (!step)
        return bCancel ? IDCANCEL : IDOK;
    EXPECT_EQ(text, step->m_Message);
    if (bCancel || step->m_nAnswer == IDOK)
        return step->m_nAnswer;
    Fail(CString("there is no Cancel where the person ") + step->m_Words);
    return IDOK;
}

CPersonScript::CFileAnswer CPersonScript::AnswerFileDialog() {
    const std::optional<CStep> step = Take(Kind::File, "a file dialog");
    return step ? step->m_File : CFileAnswer();
}

std::optional<CColour> CPersonScript::AnswerColourDialog() {
    const std::optional<CStep> step = Take(Kind::Colour, "the colour dialog");
    return step ? step->m_Colour : std::nullopt;
}

std::optional<CPersonScript::CStep> CPersonScript::Take(Kind kind, const CString& what) {
    if (m_bLost)
        return {};
    if (m_Steps.empty()) {
        Fail(what + " is on the screen and no step is left");
        return {};
    }
    if (m_Steps.front().m_Kind != kind) {
        Fail(what + " is on the screen where, in \"" + m_Steps.front().m_Dialog + "\", the person " +
             m_Steps.front().m_Words);
        return {};
    }
    CStep step = std::move(m_Steps.front());
    m_Steps.pop_front();
    return step;
}

void CPersonScript::Fail(const CString& message) {
    if (!m_bLost)
        ADD_FAILURE() << message;
    m_bLost = true;
}

} // namespace orrelix
