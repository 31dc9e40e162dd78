// Walks through dialogs: the files of tests/dialogs/walks, named after dialogs of AllDialogs. A question is what a
// person does, the answer what changes on the screen then; a walk begins with "$ edits", behind which stand fields
// that aren't as they are at first ("m_Width=50%|m_Left="), and its last answer is what the fields have become.
// The verbs are in kVerbs; "$ in" says in which dialog the person is from then on.
#include "controls/hex_colour.h"
#include "tests/support/all_dialogs.h"
#include "tests/support/person_test.h"
#include "tests/support/session.h"
#include "toolkit/desktop.h"
#include "toolkit/list_box.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <span>
#include <sstream>

namespace orrelix {

namespace fs = std::filesystem;

namespace {

const fs::path kWalks = ORRELIX_SOURCE_DIR "/tests/dialogs/walks";

using CTexts = std::map<std::string, std::string>;

std::vector<std::string> Pieces(const std::string& text, char separator) {
    std::vector<std::string> pieces;
    std::istringstream stream(text);
    for (std::string piece; std::getline(stream, piece, separator);)
        pieces.push_back(piece);
    return pieces;
}

std::vector<int> Numbers(const std::string& text) {
    std::vector<int> numbers;
    for (const std::string& piece : Pieces(text, ','))
        numbers.push_back(ToInteger(piece));
    return numbers;
}

// Line breaks as walks have them.
CString Escaped(CString text) {
    text.Replace("\r\n", "\\n");
    return text;
}
CString Unescaped(CString text) {
    text.Replace("\\n", "\r\n");
    return text;
}

constexpr std::pair<const char*, PopupKey> kKeys[] = {
    {"Up", PopupKey::Up},       {"Down", PopupKey::Down},     {"Left", PopupKey::Left},
    {"Right", PopupKey::Right}, {"Escape", PopupKey::Escape}, {"Return", PopupKey::Return},
    {"Space", PopupKey::Space},
};

void PressKey(CPersonScript& person, const std::string& name) {
    for (const auto& [pName, key] : kKeys) {
        if (name == pName)
            person.PressesInPopup({key});
    }
}

// What stands behind the verb is NAME = VALUE, or either of them.
const struct {
    const char* m_pVerb;
    void (*m_pDo)(CPersonScript& person, const std::string& name, const std::string& value);
} kVerbs[] = {
    {"clicks", [](auto& person, auto& name, auto&) { person.Clicks(name); }},
    {"types", [](auto& person, auto& name, auto& value) { person.Types(name, Unescaped(value)); }},
    {"turns", [](auto& person, auto& name, auto& value) { person.Turns(name, ToInteger(value)); }},
    {"moves", [](auto& person, auto& name, auto& value) { person.Moves(name, ToInteger(value)); }},
    {"picks", [](auto& person, auto& name, auto& value) { person.Picks(name, value); }},
    {"closes", [](auto& person, auto& name, auto&) { person.ClosesList(name); }},
    {"selects", [](auto& person, auto& name, auto& value) { person.SelectsRows(name, Numbers(value)); }},
    {"double-clicks",
     [](auto& person, auto& name, auto& value) { person.DoubleClicks(name, CString(value)); }},
    {"renames", [](auto& person, auto& name, auto& value) { person.Renames(name, value); }},
    {"opens", [](auto& person, auto& name, auto&) { person.OpensColours(name); }},
    {"takes", [](auto& person, auto& name, auto&) { person.PicksColour(name); }},
    {"mixes", [](auto& person, auto& name, auto&) { person.MixesColour(ParseHexColour(name).value()); }},
    {"mixes nothing", [](auto& person, auto&, auto&) { person.CancelsColour(); }},
    {"key", [](auto& person, auto& name, auto&) { PressKey(person, name); }},
    {"presses Enter", [](auto& person, auto&, auto&) { person.PressesEnter(); }},
    {"presses Escape", [](auto& person, auto&, auto&) { person.PressesEscape(); }},
    {"reads and closes", [](auto& person, auto& name, auto&) { person.Answers(name); }},
    {"in", [](auto& person, auto& name, auto&) { person.In(name); }},
};

class Walk : public PersonTest, public testing::WithParamInterface<CTestedDialog> {
protected:
    Walk() {
        m_Person.m_OnStep = [this](CDialog& dialog, CPersonHands& hands) { Look(dialog, hands); };
    }

    // Puts the act into the script.
    void Add(const std::string& question) {
        const auto verb = std::find_if(std::rbegin(kVerbs), std::rend(kVerbs),
                                       [&](const auto& row) { return question.starts_with(row.m_pVerb); });
        ASSERT_NE(verb, std::rend(kVerbs)) << question;
        const std::string words = question.substr(std::min(strlen(verb->m_pVerb) + 1, question.size()));
        const size_t nEquals = std::min(words.find(" = "), words.size());
        verb->m_pDo(m_Person, words.substr(0, nEquals), words.substr(std::min(nEquals + 3, words.size())));
    }

    // Runs the walk of these questions; each gets its answer.
    void Run(std::span<const std::string> questions, std::span<std::string> answers) {
        m_Person.In(GetParam().m_pDescription().m_pTitle);
        m_StepOf.clear();
        for (size_t i = 1; i < questions.size(); ++i) {
            Add(questions[i]);
            m_StepOf.resize(m_Person.StepsLeft(), i);
        }
        const std::unique_ptr<CEditing> pEditing = GetParam().m_Edit();
        for (const std::string& setting :
             Pieces(questions[0].substr(std::min(strlen("edits "), questions[0].size())), '|')) {
            const size_t nEquals = setting.find('=');
            for (const auto& [name, pText] : pEditing->Fields())
                *pText = setting.substr(0, nEquals) == name ? CString(setting.substr(nEquals + 1)) : *pText;
        }
        m_Answers = answers;
        const CTexts before = FieldsIn(*pEditing);
        const int nResult = pEditing->Run();
        answers.back() += nResult == IDOK ? "OK\n" : "cancelled\n";
        answers.back() += Changes(before, FieldsIn(*pEditing));
    }

private:
    static CTexts FieldsIn(CEditing& editing) {
        CTexts fields;
        for (const auto& [name, pText] : editing.Fields())
            fields[name] = Escaped(*pText);
        return fields;
    }

    static std::string Changes(const CTexts& before, const CTexts& after) {
        std::string text;
        for (const auto& [name, value] : after) {
            if (const auto old = before.find(name); old == before.end() || old->second != value)
                text += name + ": " + value + "\n";
        }
        return text;
    }

    // Before each step: what has changed on the screen since the last look at this dialog, in this walk or before.
    void Look(CDialog& dialog, CPersonHands& hands) {
        const size_t nDone = m_StepOf.size() - m_Person.StepsLeft();
        std::string& answer = m_Answers[nDone == 0 ? 0 : m_StepOf[nDone - 1]];
        const CString title = dialog.GetDescription().m_pTitle;
        if (title != m_InFront)
            answer += "in front: " + std::string(title.View()) + "\n";
        m_InFront = title;
        CTexts& known = m_Screens[title.GetString()];
        const CTexts now = ScreenOf(dialog, hands);
        answer += Changes(known, now);
        known = now;
    }

    static std::string Joined(const std::vector<CString>& rows) {
        std::string text;
        for (const CString& row : rows)
            text += (text.empty() ? "" : " / ") + std::string(Escaped(row).View());
        return text;
    }

    // As a list shows them.
    static std::string FontsOfTheSystem() {
        CListBox fonts;
        fonts.Create({.m_nStyle = STYLE_SORTED}, nullptr);
        std::vector<CString> rows;
        for (const CString& family : GetDesktop().GetFontFamilies())
            fonts.AddString(family);
        for (int nRow = 0; nRow < fonts.GetCount(); ++nRow)
            rows.push_back(fonts.GetText(nRow));
        return Joined(rows);
    }

    static CTexts ScreenOf(CDialog& dialog, CPersonHands& hands) {
        CTexts screen;
        ForEachControl(dialog.GetDescription(), [&](const CControlDescription& control, const char* pGroup) {
            const CTarget target{dialog, control, dialog.Item<CControl>(control.m_nId)};
            std::string text;
            switch (control.m_Kind) {
            case ControlKind::ListBox:
            case ControlKind::ListCtrl:
                text = Joined(hands.RowsOf(target));
                if (!text.empty() && text == FontsOfTheSystem())
                    text = "the system's fonts";
                for (const int nRow : hands.SelectedRowsOf(target))
                    text += ", selected " + std::to_string(nRow);
                break;
            case ControlKind::Slider:
                text = std::to_string(hands.PositionOf(target));
                break;
            case ControlKind::Edit:
            case ControlKind::ComboBox:
            case ControlKind::Static:
                text = Escaped(hands.TextOf(target));
                break;
            case ControlKind::Button:
                text = "enabled";
                break;
            default:
                return;
            }
            const CString group = *pGroup ? WithoutMnemonic(pGroup) + " / " : CString();
            screen[(group + AccessibleNameOf(control)).GetString()] =
                text + (hands.IsEnabled(target) ? "" : ", disabled");
        });
        return screen;
    }

    std::vector<size_t> m_StepOf; // the question of each step
    std::span<std::string> m_Answers;
    std::map<std::string, CTexts> m_Screens; // by title
    CString m_InFront;
};

std::vector<CTestedDialog> DialogsWithWalks() {
    std::vector<CTestedDialog> dialogs = AllDialogs();
    std::erase_if(dialogs, [](const CTestedDialog& dialog) {
        return !fs::exists(kWalks / (std::string(dialog.m_pName) + ".txt"));
    });
    return dialogs;
}

} // namespace

TEST_P(Walk, ShowsAndLeavesWhatItSays) {
    const fs::path file = kWalks / (std::string(GetParam().m_pName) + ".txt");
    const std::vector<std::string> questions = QuestionsOf(file);
    std::vector<std::string> answers(questions.size());
    for (size_t nBegin = 0, nEnd; nBegin < questions.size(); nBegin = nEnd) {
        nEnd = nBegin + 1;
        while (nEnd < questions.size() && !questions[nEnd].starts_with("edits"))
            ++nEnd;
        Run(std::span(questions).subspan(nBegin, nEnd - nBegin),
            std::span(answers).subspan(nBegin, nEnd - nBegin));
    }
    EXPECT_TRUE(
        GoesAsItStands(file, [&, n = size_t(0)](const std::string&) mutable { return answers[n++]; }));
}

INSTANTIATE_TEST_SUITE_P(All, Walk, testing::ValuesIn(DialogsWithWalks()),
                         [](const auto& dialog) { return dialog.param.m_pName; });

} // namespace orrelix
