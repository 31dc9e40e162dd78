// The scripted person fails a test whose steps don't fit the screen.
#include "tests/support/everything_dialog.h"
#include "tests/support/scripted_person.h"
#include "tests/support/user_settings.h"

#include <gtest/gtest-spi.h>

namespace orrelix {

namespace {

// Runs the test dialog before a person who does this, or reads a text that isn't there.
int RunWith(const std::vector<CString>& acts) {
    const CUserSettings settings;
    CScriptedPerson person;
    person.In("Everything").Does(acts);
    if (acts.empty())
        person.Shows("Text", "wrong").Does("clicks OK");
    everything::CEverythingDlg dialog;
    dialog.m_Kind = "warn";
    return dialog.DoModal();
}

} // namespace

TEST(ScriptedPerson, AStepThatDoesNotFitTheScreenFailsTheTest) {
    const std::pair<std::vector<CString>, const char*> cases[] = {
        {{"clicks Apply"}, "no \"Apply\""},
        {{"clicks Add", "clicks Add"}, "disabled"},
        {{}, "wrong"},
        {{"in Other", "clicks OK"}, "in front"},
        {{"types Text = x"}, "no step is left"},
        {{"clicks OK", "clicks OK"}, "never reached"},
        {{"clicks More...", "clicks OK"}, "Gone!"},
        {{"reads and closes Gone!", "clicks OK"}, "Everything"},
        {{"opens Colour", "clicks OK"}, "behind the popup"},
    };
    for (const auto& [acts, pFailure] : cases) {
        static std::vector<CString> s_Acts; // a local variable is out of reach in the macro
        s_Acts = acts;
        EXPECT_NONFATAL_FAILURE(RunWith(s_Acts), pFailure);
    }
}

TEST(ScriptedPerson, ADialogInWhichAStepHasFailedIsClosed) {
    int nResult = IDOK;
    EXPECT_NONFATAL_FAILURE(nResult = RunWith({"clicks Apply"}), "Apply");
    EXPECT_EQ(nResult, IDCANCEL);
}

TEST(Desktop, WhereNobodyIsEveryDialogEndsInCancel) {
    SetDesktop(nullptr);
    everything::CEverythingDlg dialog;
    CFileDialog files("a.gif", "");
    CColour colour = 7;
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(files.DoModal(), IDCANCEL);
    EXPECT_FALSE(GetDesktop().RunColourDialog(colour));
    EXPECT_EQ(AfxMessageBox("?", MessageBoxKind::OkCancel), IDCANCEL);
    EXPECT_TRUE(GetDesktop().GetFontFamilies().IsEmpty());
}

} // namespace orrelix
