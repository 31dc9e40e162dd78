// The scripted person fails a test whose steps don't fit the screen.
#include "tests/support/everything_dialog.h"
#include "tests/support/scripted_person.h"
#include "tests/support/user_settings.h"

#include <gtest/gtest-spi.h>

namespace orrelix {

namespace {

// Runs the test dialog before a person with these steps and gives its result.
template <class TSteps>
int RunWith(TSteps steps) {
    const CUserSettings settings;
    CScriptedPerson person;
    steps(person.In("Everything"));
    everything::CEverythingDlg dialog;
    dialog.m_Kind = "warn";
    return dialog.DoModal();
}

} // namespace

TEST(ScriptedPerson, AStepThatDoesNotFitTheScreenFailsTheTestAndClosesTheDialog) {
    int nResult = 0;
    EXPECT_NONFATAL_FAILURE(nResult = RunWith([](CPersonScript& p) { p.Does("clicks Apply"); }),
                            "no \"Apply\"");
    EXPECT_EQ(nResult, IDCANCEL);
    EXPECT_NONFATAL_FAILURE(RunWith([](CPersonScript& p) {
                                p.Does({"clicks Add", "clicks Add"});
                            }),
                            "disabled");
    EXPECT_NONFATAL_FAILURE(RunWith([](CPersonScript& p) { p.Shows("Text:", "wrong").Does("clicks OK"); }),
                            "wrong");
    EXPECT_NONFATAL_FAILURE(RunWith([](CPersonScript& p) { p.In("Other").Does("clicks OK"); }), "in front");
    EXPECT_NONFATAL_FAILURE(RunWith([](CPersonScript& p) { p.Does("types Text = x"); }), "no step is left");
    EXPECT_NONFATAL_FAILURE(RunWith([](CPersonScript& p) {
                                p.Does({"clicks OK", "clicks OK"});
                            }),
                            "never reached");
}

TEST(ScriptedPerson, WhatComesUpUnexpectedlyFailsTheTest) {
    EXPECT_NONFATAL_FAILURE(RunWith([](CPersonScript& p) {
                                p.Does({"clicks More...", "clicks OK"});
                            }),
                            "Gone!");
    EXPECT_NONFATAL_FAILURE(RunWith([](CPersonScript& p) {
                                p.Does({"reads and closes Gone!", "clicks OK"});
                            }),
                            "Everything");
    EXPECT_NONFATAL_FAILURE(RunWith([](CPersonScript& p) {
                                p.Does({"opens Colour", "clicks OK"});
                            }),
                            "behind the popup");
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
