// What every desktop promises, as tests. A test program of a desktop includes this once and names the
// desktop:
//
//     INSTANTIATE_TEST_SUITE_P(ScriptedPerson, DesktopPromises,
//                              testing::Values([]() -> std::unique_ptr<CPersonScript> {
//                                  return std::make_unique<CScriptedPerson>();
//                              }));
//
// The script that the factory makes is played before a desktop of its own, which is in force until the script
// goes.
#pragma once

#include "tests/support/everything_dialog.h"
#include "tests/support/person_script.h"
#include "tests/support/temporary_directory.h"
#include "tests/support/user_settings.h"

#include <gtest/gtest.h>
#include <memory>

namespace orrelix {

class DesktopPromises : public testing::TestWithParam<std::unique_ptr<CPersonScript> (*)()> {
protected:
    const CUserSettings m_Settings;
    std::unique_ptr<CPersonScript> m_Script = GetParam()();
    CPersonScript& m_Person = *m_Script;
    promises::CEverythingDlg m_Dialog;
};

TEST_P(DesktopPromises, TheDialogComesUpAsTheProgramSetItUpAndNobodyIsNotified) {
    m_Person.In("Everything")
        .Shows("Text:", "old")
        .Shows("Lines:", "first\r\nsecond")
        .Shows("Boxes / Number:", "12")
        .Shows("Kind:", "green")
        .ShowsRows("Kind:", {"blue", "green", "red"})
        .ShowsSelected("Kind:", {1})
        .ShowsSelected("Fixed:", {1})
        .ShowsRows("List:", {"row 0", "row 1", "row 2"})
        .ShowsSelected("List:", {})
        .ShowsRows("View:", {"item 0 | files/0", "item 1 | files/1", "item 2 | files/2"})
        .ShowsPosition("Level", 300)
        .Shows("Status", "ready")
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Log, "");
}

TEST_P(DesktopPromises, WhatThePersonLeavesReachesTheFields) {
    m_Person.In("Everything")
        .Types("Text:", "Gr\xc3\xbc\xc3\x9f"
                        "e & <b>")
        .Types("Lines:", "one\r\n\r\nthree \xc2\xa0\xe2\x80\xa8")
        .Types("Digits:", "4a5")
        .Types("Kind:", "violet")
        .Picks("Fixed:", "Chinese \xe4\xb8\x80")
        .Shows("Fixed:", "Chinese \xe4\xb8\x80")
        .Then([](CDialog& dialog) {
            EXPECT_EQ(dialog.Item<CComboBox>(promises::Id::Fixed).GetWindowText(), "\xd2\xbb");
        })
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Text, "Gr\xc3\xbc\xc3\x9f"
                               "e & <b>");
    EXPECT_EQ(m_Dialog.m_Lines, "one\r\n\r\nthree \xc2\xa0\xe2\x80\xa8");
    EXPECT_EQ(m_Dialog.m_Digits, "45");
    EXPECT_EQ(m_Dialog.m_Kind, "violet");
    EXPECT_EQ(m_Dialog.m_nFixed, 2);
}

TEST_P(DesktopPromises, PathsAndColoursAreTypedAsAPersonKnowsThem) {
    m_Dialog.m_Path = "\\home\\ann\\a.gif";
    m_Person.In("Everything")
        .Shows("Path:", "/home/ann/a.gif")
        .Types("Path:", "/srv/b.gif")
        .Shows("Path:", "/srv/b.gif")
        .Types("Boxes / Colour:", "#12aBef")
        .Shows("Boxes / Colour:", "12aBef")
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Path, "\\srv\\b.gif");
    EXPECT_EQ(m_Dialog.m_Colour, "12aBef");
}

TEST_P(DesktopPromises, ABoxForDigitsTakesNothingElseAndKeepsWhatTheProgramPutIn) {
    m_Dialog.m_Digits = "50%";
    m_Person.In("Everything");
    for (const auto& [pTyped, pShown] :
         {std::pair("50%x", "50%"), {"150%", "150%"}, {"150%", "150%"}, {"1a", "1"}})
        m_Person.Types("Digits:", pTyped).Shows("Digits:", pShown);
    m_Person.Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Digits, "1");
}

TEST_P(DesktopPromises, WhatAHandlerChangesShowsAtOnce) {
    m_Person.In("Everything")
        .Types("Text:", "new")
        .Clicks("Add")
        .ShowsDisabled("Add")
        .Shows("Text:", "")
        .CancelsRenaming("View:")
        .Shows("Status", "added new")
        .ShowsRows("List:", {"row 0", "row 1", "row 2", "new"})
        .Then([this](CDialog&) { m_Dialog.Enable(promises::Id::Add, true); })
        .ShowsEnabled("Add")
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
}

TEST_P(DesktopPromises, ASpinControlStepsTheNumberInItsBoxWithinItsRange) {
    m_Person.In("Everything")
        .Turns("Number:", 2)
        .Shows("Number:", "14")
        .Types("Number:", "48")
        .Turns("Number:", 1)
        .Shows("Number:", "49")
        .Turns("Number:", 3)
        .Shows("Number:", "50")
        .Types("Number:", "2em")
        .Turns("Number:", -1)
        .Shows("Number:", "49")
        .Types("Number:", "007")
        .Turns("Number:", 1)
        .Shows("Number:", "8")
        .Turns("Number:", -9)
        .Types("Number:", "none")
        .Turns("Number:", -1)
        .Shows("Number:", "none")
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Log.Left(7), "number ");
}

TEST_P(DesktopPromises, AComboBoxTellsEachClosingOfItsList) {
    m_Person.In("Everything")
        .Picks("Kind:", "red")
        .Shows("Kind:", "red")
        .Picks("Kind:", "red")
        .ClosesList("Kind:")
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Log, "list closed list closed list closed ");
    EXPECT_EQ(m_Dialog.m_Kind, "red");
}

TEST_P(DesktopPromises, RowsOfAListBoxAreSelectedAndDoubleClicked) {
    m_Person.In("Everything")
        .SelectsRow("List:", 2)
        .ShowsSelected("List:", {2})
        .DoubleClicks("List:", "row 1")
        .ShowsSelected("List:", {1})
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Log, "selected selected double ");
}

TEST_P(DesktopPromises, SeveralRowsOfAListViewAreSelected) {
    m_Person.In("Everything")
        .SelectsRows("View:", {0, 2})
        .ShowsSelected("View:", {0, 2})
        .Then([](CDialog& dialog) {
            dialog.Item<CListCtrl>(promises::Id::View).DeleteItem(0);
            dialog.Item<CListCtrl>(promises::Id::View).InsertItem(0, "top");
        })
        .ShowsRows("View:", {"top | ", "item 1 | files/1", "item 2 | files/2"})
        .ShowsSelected("View:", {2})
        .ShowsHotRow("View:", -1)
        .Then([](CDialog& dialog) { dialog.Item<CListCtrl>(promises::Id::View).SetHotItem(1); })
        .ShowsHotRow("View:", 1)
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Log.Left(5), "view ");
}

TEST_P(DesktopPromises, TheProgramAsksForALabelToBeEditedAndThePersonDoesOrDoesNot) {
    m_Person.In("Everything")
        .Clicks("Add")
        .Renames("View:", "other.gif")
        .ShowsRows("View:", {"item 0 | files/0", "other.gif | files/1", "item 2 | files/2"})
        .Then([this](CDialog&) { m_Dialog.Enable(promises::Id::Add, true); })
        .Clicks("Add")
        .CancelsRenaming("View:")
        .ShowsRows("View:", {"item 0 | files/0", "other.gif | files/1", "item 2 | files/2"})
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Log, "label edited label kept ");
}

TEST_P(DesktopPromises, ASliderMoves) {
    int nLevel = 0;
    m_Person.In("Everything")
        .Moves("Level", 700)
        .ShowsPosition("Level", 700)
        .Then([&](CDialog& dialog) { nLevel = dialog.Item<CSliderCtrl>(promises::Id::Level).GetPos(); })
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(nLevel, 700);
}

TEST_P(DesktopPromises, EscapeCancelsAndEnterPressesTheDefaultButton) {
    m_Person.In("Everything").Types("Text:", "new").PressesEscape();
    EXPECT_EQ(m_Dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(m_Dialog.m_Text, "old");
    m_Person.In("Everything").Types("Text:", "newer").PressesEnter();
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Text, "newer");
}

TEST_P(DesktopPromises, DialogsNestAndTheOuterOneGoesOn) {
    m_Dialog.m_OnMore = [](promises::CEverythingDlg& outer) {
        promises::CEverythingDlg inner;
        inner.m_Text = "inner";
        outer.m_Log += inner.DoModal() == IDOK ? inner.m_Text : "cancelled";
    };
    m_Person.In("Everything")
        .Types("Text:", "outer")
        .ShowsBeside("More...", "text ")
        .Clicks("More...")
        .Shows("Text:", "inner")
        .Types("Text:", "changed")
        .Clicks("OK")
        .Shows("Text:", "outer")
        .ShowsBeside("More...", "text changed")
        .Clicks("Cancel");
    EXPECT_EQ(m_Dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(m_Dialog.m_Log, "text changed");
}

TEST_P(DesktopPromises, MessageBoxesGiveThePersonsAnswer) {
    m_Dialog.m_OnMore = [](promises::CEverythingDlg& dialog) {
        for (MessageBoxKind kind :
             {MessageBoxKind::OkCancel, MessageBoxKind::OkCancel, MessageBoxKind::Warning})
            dialog.m_Log += AfxMessageBox("Do you want to Delete?", kind) == IDOK ? "yes " : "no ";
    };
    m_Person.In("Everything")
        .Clicks("More...")
        .Answers("Do you want to Delete?", IDOK)
        .Answers("Do you want to Delete?", IDCANCEL)
        .Answers("Do you want to Delete?", IDOK)
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Log, "yes no yes ");
}

TEST_P(DesktopPromises, APopupTakesMouseAndKeysAndClosesOnce) {
    m_Person.In("Everything")
        .OpensColours("Boxes / Colour:")
        .PicksColour("Right")
        .OpensColours("Colour:")
        .PressesInPopup({PopupKey::Escape})
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Log, ">picked closed escaped closed ");
}

TEST_P(DesktopPromises, AFileIsChosenAndTheAddedBoxIsRead) {
    CTemporaryDirectory directory;
    const CString path = directory.Write("a.gif", "");
    promises::CPathDialog files;
    m_Dialog.m_OnMore = [&](promises::CEverythingDlg& dialog) {
        dialog.m_Log += files.DoModal() == IDOK ? files.GetPathName() : CString("none");
        dialog.m_Log += " " + files.m_WebPath + " ";
    };
    m_Person.In("Everything")
        .Clicks("More...")
        .CancelsFile("typed/")
        .Clicks("More...")
        .ChoosesFile(path)
        .Clicks("More...")
        .ChoosesFile(path, "img/")
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Log, "none typed/ " + path + " typed/ " + path + " img/ ");
}

TEST_P(DesktopPromises, AColourIsMixedOrNot) {
    CColour colour = MakeColour(1, 2, 3);
    m_Dialog.m_OnMore = [&](promises::CEverythingDlg& dialog) {
        dialog.m_Log += GetDesktop().RunColourDialog(colour) ? "mixed " : "not ";
    };
    m_Person.In("Everything")
        .Clicks("More...")
        .CancelsColour()
        .Clicks("More...")
        .MixesColour(MakeColour(17, 34, 51))
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Log, "not mixed ");
    EXPECT_EQ(colour, MakeColour(17, 34, 51));
}

TEST_P(DesktopPromises, ADialogThatRunsAgainBeginsAfresh) {
    m_Person.In("Everything").Clicks("Add").CancelsRenaming("View:").Clicks("Cancel");
    EXPECT_EQ(m_Dialog.DoModal(), IDCANCEL);
    m_Person.In("Everything")
        .ShowsEnabled("Add")
        .ShowsRows("List:", {"row 0", "row 1", "row 2"})
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
}

} // namespace orrelix
