#include "tests/support/person_script.h"

#include "controls/hex_colour.h"

#include <algorithm>
#include <sstream>

namespace orrelix {

namespace {

bool IsCalled(const CControlDescription& control, const CString& name) {
    return name == WithoutMnemonic(control.m_pLabel) || name == WithoutMnemonic(control.m_pCaption) ||
           name == WithoutMnemonic(control.m_pName) || name == AccessibleNameOf(control) ||
           "Choose " + name == AccessibleNameOf(control); // the colour button of a box
}

// The control of one of these kinds that the name means, or null: see the head of the header.
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

// What stands behind the verb of an act: NAME = VALUE, or either of them.
struct CWords {
    CString m_All;
    CString m_Name;
    CString m_Value;

    std::optional<CString> Given() const { return m_Value.IsEmpty() ? std::nullopt : std::optional(m_Value); }
};

std::optional<CWords> WordsBehind(std::string_view verb, std::string_view act) {
    if (act == verb)
        return CWords{};
    if (!act.starts_with(verb) || act[verb.size()] != ' ')
        return std::nullopt;
    const std::string_view all = act.substr(verb.size() + 1);
    const size_t nEquals = std::min(all.find(" = "), all.size());
    return CWords{all, all.substr(0, nEquals), all.substr(std::min(nEquals + 3, all.size()))};
}

std::vector<int> Numbers(const CString& list) {
    std::vector<int> numbers;
    std::istringstream stream(list.GetString());
    for (std::string number; std::getline(stream, number, ',');)
        numbers.push_back(ToInteger(number));
    return numbers;
}

CString WithLineBreaks(CString text) {
    text.Replace("\\n", "\r\n");
    return text;
}

struct CControlVerb {
    const char* m_pVerb;
    std::vector<ControlKind> m_Kinds;
    void (*m_pDo)(CPersonHands& hands, const CTarget& target, const CString& value);
};

// What is done to the control alone; with a number; with the row that has the text.
template <auto pDo>
void Just(CPersonHands& hands, const CTarget& target, const CString&) {
    (hands.*pDo)(target);
}
template <auto pDo>
void WithNumber(CPersonHands& hands, const CTarget& target, const CString& value) {
    (hands.*pDo)(target, ToInteger(value));
}
template <auto pDo>
void WithRow(CPersonHands& hands, const CTarget& target, const CString& value) {
    (hands.*pDo)(target, RowWithText(target, hands, value));
}
void Type(CPersonHands& hands, const CTarget& target, const CString& value) {
    hands.Type(target, WithLineBreaks(value));
}
void SelectRows(CPersonHands& hands, const CTarget& target, const CString& value) {
    hands.SelectRows(target, Numbers(value));
}
void Rename(CPersonHands& hands, const CTarget& target, const CString& value) {
    hands.Rename(target, value);
}
void KeepLabel(CPersonHands& hands, const CTarget& target, const CString&) {
    hands.Rename(target, std::nullopt);
}

using Hands = CPersonHands;
using enum ControlKind;
const CControlVerb kControlVerbs[] = {
    {"types", {Edit, ComboBox}, Type},
    {"turns", {Spin}, WithNumber<&Hands::Turn>},
    {"clicks", {Button}, Just<&Hands::Click>},
    {"selects", {ListBox, ListCtrl}, SelectRows},
    {"double-clicks", {ListBox}, WithRow<&Hands::DoubleClick>},
    {"picks", {ComboBox}, WithRow<&Hands::Pick>},
    {"closes", {ComboBox}, Just<&Hands::CloseList>},
    {"moves", {Slider}, WithNumber<&Hands::Move>},
    {"renames", {ListCtrl}, Rename},
    {"keeps the label of", {ListCtrl}, KeepLabel},
    {"goes to", {Edit, ComboBox, ListBox, ListCtrl}, Just<&Hands::Focus>},
    {"opens", {OwnerDrawnButton}, Just<&Hands::Click>}, // the colours of the edit box of this name
};

void TakeCell(CPersonHands& hands, CPopupWindow& popup, const CString& name) {
    const std::vector<CPopupCell> cells = popup.GetCells();
    const auto cell =
        std::find_if(cells.begin(), cells.end(), [&](const CPopupCell& c) { return c.m_Text == name; });
    if (cell == cells.end()) {
        ADD_FAILURE() << "the popup has no " << name;
        return;
    }
    hands.MoveInPopup(MiddleOf(cell->m_Rect));
    hands.ReleaseInPopup(MiddleOf(cell->m_Rect));
}

void PressKey(CPersonHands& hands, CPopupWindow&, const CString& name) {
    hands.PressInPopup(PopupKeyNamed(name));
}

struct CPopupVerb {
    const char* m_pVerb;
    void (*m_pDo)(CPersonHands& hands, CPopupWindow& popup, const CString& name);
};

const CPopupVerb kPopupVerbs[] = {{"takes", TakeCell}, {"key", PressKey}};

} // namespace

void CPersonHands::Focus(const CTarget& target) {
    ADD_FAILURE() << "no keyboard can be led to " << AccessibleNameOf(target.m_Description);
}

void CPersonHands::Write(const CString& text) {
    ADD_FAILURE() << "there is no keyboard to write " << text;
}

PopupKey PopupKeyNamed(const CString& name) {
    static const std::vector<CString> names = {"Up", "Down", "Left", "Right", "Escape", "Return", "Space"};
    const auto key = std::find(names.begin(), names.end(), name);
    EXPECT_NE(key, names.end()) << "popups know no key " << name;
    return static_cast<PopupKey>(key - names.begin());
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

CPersonScript& CPersonScript::AddLook(const CString& words, const CString& name, const Kinds& kinds,
                                      Act act) {
    return AddAct(words, [this, name, kinds, act, words](CDialog& dialog, CPersonHands& hands) {
        const CControlDescription* pControl = FindByName(dialog.GetDescription(), name, kinds);
        if (!pControl) {
            Fail(CString("there is no \"") + name + "\", or more than one, for: " + words);
            return;
        }
        act({dialog, *pControl, dialog.Item<CControl>(pControl->m_nId)}, hands);
    });
}

CPersonScript& CPersonScript::AddControlAct(const CString& words, const CString& name, const Kinds& kinds,
                                            Act act) {
    return AddLook(words, name, kinds, [this, words, act](const CTarget& target, CPersonHands& hands) {
        if (hands.GetPopup())
            Fail("behind the popup: " + words);
        else if (!target.m_Dialog.IsWindowEnabled() || !hands.IsEnabled(target))
            Fail("disabled: " + words);
        else
            act(target, hands);
    });
}

CPersonScript& CPersonScript::AddPopupAct(const CString& words,
                                          std::function<void(CPopupWindow&, CPersonHands&)> act) {
    return AddAct(words, [this, words, act](CDialog&, CPersonHands& hands) {
        if (CPopupWindow* pPopup = hands.GetPopup())
            act(*pPopup, hands);
        else
            Fail("no popup is open: " + words);
    });
}

CPersonScript& CPersonScript::Does(const std::vector<CString>& acts) {
    for (const CString& act : acts)
        Does(act);
    return *this;
}

CPersonScript& CPersonScript::Does(const CString& act) {
    for (const CControlVerb& verb : kControlVerbs) {
        if (const auto words = WordsBehind(verb.m_pVerb, act))
            return AddControlAct(
                act, words->m_Name, verb.m_Kinds,
                [pDo = verb.m_pDo, value = words->m_Value](const CTarget& target, CPersonHands& hands) {
                    pDo(hands, target, value);
                });
    }
    for (const CPopupVerb& verb : kPopupVerbs) {
        if (const auto words = WordsBehind(verb.m_pVerb, act))
            return AddPopupAct(
                act, [pDo = verb.m_pDo, name = words->m_Name](CPopupWindow& popup, CPersonHands& hands) {
                    pDo(hands, popup, name);
                });
    }
    if (const auto words = WordsBehind("in", act))
        return In(words->m_All);
    if (const auto words = WordsBehind("presses", act))
        return AddAct(
            act, [keys = words->m_All](CDialog& dialog, CPersonHands& hands) { hands.Press(dialog, keys); });
    if (const auto words = WordsBehind("writes", act))
        return AddAct(act, [text = words->m_All](CDialog&, CPersonHands& hands) { hands.Write(text); });
    return Add(AnswerOf(act));
}

// What comes up by itself is answered.
CPersonScript::CStep CPersonScript::AnswerOf(const CString& act) {
    CStep step{.m_Words = act};
    if (const auto read = WordsBehind("reads and closes", act))
        step = {.m_Kind = Kind::Message, .m_Words = act, .m_Message = read->m_All};
    else if (const auto refused = WordsBehind("refuses", act))
        step = {.m_Kind = Kind::Message, .m_Words = act, .m_Message = refused->m_All, .m_nAnswer = IDCANCEL};
    else if (const auto typed = WordsBehind("chooses no file, but types", act))
        step = {.m_Kind = Kind::File, .m_Words = act, .m_File = {{}, typed->m_All}};
    else if (const auto file = WordsBehind("chooses file", act)) // the added box keeps what it shows, or not
        step = {.m_Kind = Kind::File, .m_Words = act, .m_File = {file->m_Name, file->Given()}};
    else if (WordsBehind("mixes nothing", act))
        step = {.m_Kind = Kind::Colour, .m_Words = act};
    else if (const auto mixed = WordsBehind("mixes", act))
        step = {.m_Kind = Kind::Colour, .m_Words = act, .m_Colour = ParseHexColour(mixed->m_All)};
    else
        ADD_FAILURE() << "nobody knows how one " << act;
    return step;
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
