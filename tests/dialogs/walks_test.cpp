// Walks through dialogs: the files of tests/dialogs/walks, named after dialogs of AllDialogs and after the one on
// which desktops are tried. A question is what a person does, the answer what changes on the screen then; "$ in" says
// in which dialog the person is from then on, and the other verbs are those of tests/support/person_script.cpp. A walk
// begins with "$ edits", behind which stand parameters that the effect has read ("DanceTextPara=,,,,,,0") and fields
// that aren't as they are at first ("m_Width=50%|m_Left="). Its last answer is what the fields have become, and what of
// an effect its parameters give back otherwise. That Cancel in the place of an effect's OK changes nothing is tried
// beside. Those of tests/qt/walks are by keyboard, before windows alone: they also say what has the keyboard, and what
// marks boxes have.
#include "platform/paths.h"
#include "tests/support/all_dialogs.h"
#include "tests/support/everything_dialog.h"
#include "tests/support/person_test.h"
#include "tests/support/session.h"
#include "tests/support/temporary_directory.h"
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

const fs::path kTests = ORRELIX_SOURCE_DIR "/tests";

struct CWalk {
    fs::path m_File;
    CTestedDialog m_Dialog;
    bool m_bByKeys;

    friend std::ostream& operator<<(std::ostream& out, const CWalk& walk) {
        return out << walk.m_File.filename();
    }
};

using CTexts = std::map<std::string, std::string>;

// With line breaks as acts have them.
CString Escaped(CString text) {
    text.Replace("\r\n", "\\n");
    return text;
}

class Walk : public PersonTest, public testing::WithParamInterface<CWalk> {
protected:
    const CTestedDialog& m_Dialog = GetParam().m_Dialog;

    // Puts the act into the script.
    void Add(CString act) {
        act.Replace("$IMAGE", m_Image);
        m_Person.Does(act);
    }

    // Runs the walk of these questions; each gets its answer.
    void Run(std::span<const std::string> questions, std::span<std::string> answers) {
        m_Person.m_OnStep = [this](CDialog& dialog, CPersonHands& hands) { Look(dialog, hands); };
        m_Person.In(m_Dialog.m_pDescription().m_pTitle);
        m_StepOf.clear();
        for (size_t i = 1; i < questions.size(); ++i) {
            Add(questions[i]);
            m_StepOf.resize(m_Person.StepsLeft(), i);
        }
        m_Answers = answers;
        const std::unique_ptr<CEditing> pEditing = Prepared(questions[0]);
        const CTexts before = FieldsIn(*pEditing);
        const int nResult = pEditing->Run();
        m_Person.m_OnStep = nullptr;
        const CTexts after = FieldsIn(*pEditing);
        answers.back() += (nResult == IDOK ? "OK\n" : "cancelled\n") + Changes(before, after);
        if (nResult != IDOK || !pEditing->Effect())
            return;
        answers.back() += ReadAgain(*pEditing->Effect(), after);
        m_Person.In(m_Dialog.m_pDescription().m_pTitle);
        for (size_t i = 1; i < questions.size(); ++i)
            Add(i + 1 < questions.size() ? questions[i] : "clicks Cancel");
        const std::unique_ptr<CEditing> pCancelled = Prepared(questions[0]);
        EXPECT_EQ(pCancelled->Run(), IDCANCEL);
        EXPECT_EQ(Changes(before, FieldsIn(*pCancelled)), "") << questions[0];
    }

    const CTemporaryDirectory m_Images;
    const CString m_Image = m_Images.Write("photo.gif", "an image");

private:
    std::unique_ptr<CEditing> Prepared(const std::string& question) {
        std::unique_ptr<CEditing> pEditing = m_Dialog.m_Edit();
        CVignelConfig parameters;
        CTexts fields;
        std::istringstream settings(question.substr(std::min(strlen("edits "), question.size())));
        for (std::string setting; std::getline(settings, setting, '|');) {
            const size_t nEquals = setting.find('=');
            if (setting.starts_with("m_"))
                fields[setting.substr(0, nEquals)] = setting.substr(nEquals + 1);
            else
                parameters.SetParameter(setting.substr(0, nEquals), setting.substr(nEquals + 1));
        }
        if (!parameters.m_ParameterMap.IsEmpty())
            pEditing->Effect()->ReadParameters(parameters, m_Images.Path());
        for (const auto& [name, pText] : pEditing->Fields())
            *pText = fields.count(name) ? CString(fields[name]) : *pText;
        return pEditing;
    }

    // What an effect with its parameters alone has otherwise.
    std::string ReadAgain(CDhtmlGadget& effect, const CTexts& fields) {
        CVignelConfig config;
        effect.WriteParameters(config);
        const std::unique_ptr<CEditing> pLater = m_Dialog.m_Edit();
        pLater->Effect()->ReadParameters(config, m_Images.Path());
        const std::string changes = Changes(fields, FieldsIn(*pLater));
        return changes.empty() ? "" : "read again:\n" + changes;
    }

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
        for (const auto& [name, value] : before)
            text += after.count(name) ? "" : name + " is gone\n";
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

    CTexts ScreenOf(CDialog& dialog, CPersonHands& hands) const {
        CTexts screen;
        if (GetParam().m_bByKeys)
            screen["keyboard"] = hands.Focused().GetString();
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
                if (control.m_Kind == ControlKind::ListCtrl && hands.HotRowOf(target) >= 0)
                    text += ", hot " + std::to_string(hands.HotRowOf(target));
                break;
            case ControlKind::Slider:
                text = std::to_string(hands.PositionOf(target));
                break;
            case ControlKind::Edit:
                if (GetParam().m_bByKeys && !hands.TextBeside(target).IsEmpty())
                    text = hands.TextBeside(target) + ": ";
                [[fallthrough]];
            case ControlKind::ComboBox:
            case ControlKind::Static:
                text += Escaped(hands.TextOf(target));
                break;
            case ControlKind::Button:
                text = Escaped(hands.TextBeside(target));
                text += text.empty() && hands.IsEnabled(target) ? "enabled" : "";
                break;
            default:
                return;
            }
            const CString group = *pGroup ? WithoutMnemonic(pGroup) + " / " : CString();
            screen[(group + AccessibleNameOf(control)).GetString()] = text + (hands.IsEnabled(target) ? ""
                                                                              : text.empty() ? "disabled"
                                                                                             : ", disabled");
        });
        return screen;
    }

    std::vector<size_t> m_StepOf; // the question of each step
    std::span<std::string> m_Answers;
    std::map<std::string, CTexts> m_Screens; // by title
    CString m_InFront;
};

std::vector<CWalk> Walks() {
    using Everything = everything::CEverythingDlg;
    std::vector<CTestedDialog> dialogs = AllDialogs();
    dialogs.push_back(
        {"everything", everything::Description,
         OfMembers<Everything>(
             {MEMBER(Everything, m_Text), MEMBER(Everything, m_Lines), MEMBER(Everything, m_Path),
              MEMBER(Everything, m_Digits), MEMBER(Everything, m_Colour), MEMBER(Everything, m_Number),
              MEMBER(Everything, m_Kind), MEMBER(Everything, m_Fixed), MEMBER(Everything, m_Log)})});
    std::vector<CWalk> walks;
    for (const bool bByKeys : {false, true}) {
        for (const CTestedDialog& dialog : dialogs) {
            const fs::path folder = kTests / (bByKeys ? "qt/walks" : "dialogs/walks");
            const fs::path file = folder / (std::string(dialog.m_pName) + ".txt");
            if (fs::exists(file) && (!bByKeys || HasKeyboard()))
                walks.push_back({file, dialog, bByKeys});
        }
    }
    return walks;
}

} // namespace

TEST_P(Walk, ShowsAndLeavesWhatItSays) {
    const std::vector<std::string> questions = QuestionsOf(GetParam().m_File);
    std::vector<std::string> answers(questions.size());
    for (size_t nBegin = 0, nEnd; nBegin < questions.size(); nBegin = nEnd) {
        nEnd = nBegin + 1;
        while (nEnd < questions.size() && !questions[nEnd].starts_with("edits"))
            ++nEnd;
        Run(std::span(questions).subspan(nBegin, nEnd - nBegin),
            std::span(answers).subspan(nBegin, nEnd - nBegin));
    }
    EXPECT_TRUE(GoesAsItStands(GetParam().m_File, [&, n = size_t(0)](const std::string&) mutable {
        CString answer = answers[n++];
        for (const CString& image : {m_Image, WithSlashes(m_Image)})
            answer.Replace(image, "$IMAGE");
        return std::string(answer.View());
    }));
}

INSTANTIATE_TEST_SUITE_P(All, Walk, testing::ValuesIn(Walks()), [](const auto& walk) {
    return std::string(walk.param.m_Dialog.m_pName) + (walk.param.m_bByKeys ? "_by_keys" : "");
});

} // namespace orrelix
