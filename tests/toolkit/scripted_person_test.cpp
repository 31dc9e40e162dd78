// The scripted person keeps the promises of a desktop, and fails a test whose steps don't fit the screen.
#include "tests/support/desktop_promises.h"
#include "tests/support/scripted_person.h"

#include <gtest/gtest-spi.h>

namespace orrelix {

INSTANTIATE_TEST_SUITE_P(ScriptedPerson, DesktopPromises,
                         testing::Values([]() -> std::unique_ptr<CPersonScript> {
                             return std::make_unique<CScriptedPerson>();
                         }));

namespace {

// Runs the test dialog before a person with these steps and gives its result.
template <class TSteps>
int RunWith(TSteps steps) {
    CScriptedPerson person;
    steps(person.In("Everything"));
    promises::CEverythingDlg dialog;
    dialog.m_OnMore = [](promises::CEverythingDlg&) { AfxMessageBox("boo"); };
    return dialog.DoModal();
}

} // namespace

TEST(ScriptedPerson, AStepThatDoesNotFitTheScreenFailsTheTestAndClosesTheDialog) {
    int nResult = 0;
    EXPECT_NONFATAL_FAILURE(nResult = RunWith([](CPersonScript& p) { p.Clicks("Apply"); }), "no \"Apply\"");
    EXPECT_EQ(nResult, IDCANCEL);
    EXPECT_NONFATAL_FAILURE(RunWith([](CPersonScript& p) { p.Clicks("Add").Clicks("Add"); }), "disabled");
    EXPECT_NONFATAL_FAILURE(RunWith([](CPersonScript& p) { p.Shows("Text:", "wrong").Clicks("OK"); }),
                            "wrong");
    EXPECT_NONFATAL_FAILURE(RunWith([](CPersonScript& p) { p.In("Other").Clicks("OK"); }), "in front");
    EXPECT_NONFATAL_FAILURE(RunWith([](CPersonScript& p) { p.Types("Text:", "x"); }), "no step is left");
    EXPECT_NONFATAL_FAILURE(RunWith([](CPersonScript& p) { p.Clicks("OK").Clicks("OK"); }), "never reached");
}

TEST(ScriptedPerson, WhatComesUpUnexpectedlyFailsTheTest) {
    EXPECT_NONFATAL_FAILURE(RunWith([](CPersonScript& p) { p.Clicks("More...").Clicks("OK"); }), "boo");
    EXPECT_NONFATAL_FAILURE(RunWith([](CPersonScript& p) { p.Answers("boo").Clicks("OK"); }), "Everything");
    EXPECT_NONFATAL_FAILURE(RunWith([](CPersonScript& p) { p.OpensColours("Colour:").Clicks("OK"); }),
                            "behind the popup");
}

TEST(Desktop, WhereNobodyIsEveryDialogEndsInCancel) {
    SetDesktop(nullptr);
    promises::CEverythingDlg dialog;
    CFileDialog files("a.gif", "");
    CColour colour = 7;
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(files.DoModal(), IDCANCEL);
    EXPECT_FALSE(GetDesktop().RunColourDialog(colour));
    EXPECT_EQ(AfxMessageBox("?", MessageBoxKind::OkCancel), IDCANCEL);
    EXPECT_TRUE(GetDesktop().GetFontFamilies().IsEmpty());
}

} // namespace orrelix
