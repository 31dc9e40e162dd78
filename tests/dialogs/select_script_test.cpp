#include "dialogs/select_script.h"
#include "tests/support/scripted_person.h"

#include <gtest/gtest.h>

namespace orrelix {

namespace {

const std::vector<CString> kNames = {"Animate Text",      "Slide Text",    "Calender",
                                     "Link Select Table", "Scroll Text",   "Fade Select Box",
                                     "ToolTip",           "Cool Calender", "Color Link"};

} // namespace

TEST(SelectScript, ASelectedEffectIsDescribedAndTaken) {
    CScriptedPerson person;
    person.In("Select a DHTML Scripts")
        .ShowsRows("DHTML Scripts", kNames)
        .ShowsSelected("DHTML Scripts", {})
        .Shows("Description", "Orrelix can provide 10 DHTML scripts to you")
        .SelectsRow("DHTML Scripts", 8)
        .Shows("Description", "DHTML Color Link can show a Url with multilpe colors ")
        .Clicks("OK");
    CSelectScriptDlg dialog;
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_nSelected, 8);
}

TEST(SelectScript, OkWithoutASelectionKeepsTheDialogOpen) {
    CScriptedPerson person;
    person.In("Select a DHTML Scripts")
        .Clicks("OK")
        .Answers("Please select a DHTML Scripts to add!")
        .DoubleClicks("DHTML Scripts", "Slide Text");
    CSelectScriptDlg dialog;
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_nSelected, 1);
}

TEST(SelectScript, ASecondRunBeginsAfresh) {
    CScriptedPerson person;
    CSelectScriptDlg dialog;
    person.In("Select a DHTML Scripts").SelectsRow("DHTML Scripts", 3).Clicks("Cancel");
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    person.ShowsRows("DHTML Scripts", kNames).ShowsSelected("DHTML Scripts", {}).PressesEscape();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

} // namespace orrelix
