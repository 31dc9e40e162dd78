#include "dialogs/animate_text_dlg.h"
#include "tests/support/scripted_person.h"

#include <gtest/gtest.h>

namespace orrelix {

namespace {

class AnimateTextDlg : public testing::Test {
protected:
    AnimateTextDlg() { m_Gadget.m_Messages = {"one", "two", "three"}; }

    int Run() {
        CAnimateTextDlg dialog;
        dialog.m_pGadget = &m_Gadget;
        return dialog.DoModal();
    }
    // The state of the move buttons as a person sees it: "up", "down", "both" or "none".
    void ShowsMoves(const std::string& moves) {
        m_Person.ShowsEnabled("Move Up", moves == "up" || moves == "both");
        m_Person.ShowsEnabled("Move Down", moves == "down" || moves == "both");
    }

    CAnimateText m_Gadget;
    CScriptedPerson m_Person;
    CPersonScript& m_Steps = m_Person.In("Animate Text");
};

} // namespace

TEST_F(AnimateTextDlg, ComesUpWithTheGadgetsFieldsAsTheyAre) {
    m_Gadget.m_Messages = {"first<br>second"};
    m_Gadget.m_Width = "50%";
    m_Gadget.m_PopUpInterval = "4000";
    m_Gadget.m_BackColor = "";
    m_Steps.ShowsRows("Messages", {"first\r\nsecond"})
        .ShowsSelected("Messages", {})
        .ShowsDisabled("Move Up")
        .ShowsDisabled("Move Down")
        .Shows("Width:", "50%")
        .Shows("Top:", "200")
        .ShowsPosition("Text Pop up Interval Time", 1000)
        .ShowsPosition("Circulate Interval Time", 50)
        .Shows("Text Fade Color:", "FFFFFF")
        .Shows("Background Color:", "c0c0c0")
        .Clicks("OK");
    EXPECT_EQ(Run(), IDOK);
    EXPECT_EQ(m_Gadget.m_Messages, CStringArray({"first<br>second"}));
    EXPECT_EQ(m_Gadget.m_Width, "50%");
    EXPECT_EQ(m_Gadget.m_PopUpInterval, "1000");
    EXPECT_EQ(m_Gadget.m_BackColor, "c0c0c0");
}

TEST_F(AnimateTextDlg, OkStoresWhatThePersonLeft) {
    m_Steps.Types("Message", "a\r\nb").Clicks("Add").Turns("Text Scroll Start:", 5).Types("Left:", "auto");
    m_Steps.Types("Top:", "1x2").Moves("Circulate Interval Time", 0).Types("Text Font Color:", "00ff7f");
    m_Steps.Types("Specify animate.js Remote Directory:", "scripts\\js").Clicks("Font...");
    m_Person.In("Font Properties").Types("Font Size:", "12").Picks("Font Weight:", "bold").Clicks("OK");
    m_Person.In("Animate Text").Clicks("OK");
    EXPECT_EQ(Run(), IDOK);
    EXPECT_EQ(m_Gadget.m_Messages[3], "a<br>b");
    EXPECT_EQ(m_Gadget.m_ScrollStart, "115");
    EXPECT_EQ(m_Gadget.m_Left, "auto");
    EXPECT_EQ(m_Gadget.m_Top, "12") << "a box for digits";
    EXPECT_EQ(m_Gadget.m_CirculateInterval, "0");
    EXPECT_EQ(m_Gadget.m_TextColor, "00ff7f");
    EXPECT_EQ(m_Gadget.m_ScriptPath, "scripts/js/");
    EXPECT_EQ(m_Gadget.m_FontSize, "12");
    EXPECT_EQ(m_Gadget.m_FontWeight, "bold");
}

TEST_F(AnimateTextDlg, CancelLeavesTheGadgetAlone) {
    m_Steps.SelectsRow("Messages", 0).Clicks("Delete").Types("Width:", "1").Clicks("Font...");
    m_Person.In("Font Properties").Types("Font Size:", "12").Clicks("OK");
    m_Person.In("Animate Text").Clicks("Cancel");
    EXPECT_EQ(Run(), IDCANCEL);
    EXPECT_EQ(m_Gadget.m_Messages.GetSize(), 3);
    EXPECT_EQ(m_Gadget.m_Width, "269");
    EXPECT_EQ(m_Gadget.m_FontSize, "");
}

TEST_F(AnimateTextDlg, TheMoveButtonsFollowTheSelection) {
    m_Steps.SelectsRow("Messages", 0);
    ShowsMoves("down");
    m_Steps.SelectsRow("Messages", 2);
    ShowsMoves("up");
    m_Steps.SelectsRow("Messages", 1);
    ShowsMoves("both");
    m_Steps.Clicks("Move Up").ShowsRows("Messages", {"two", "one", "three"}).ShowsSelected("Messages", {0});
    ShowsMoves("down");
    m_Steps.Clicks("Move Down");
    ShowsMoves("both");
    m_Steps.Clicks("Move Down").ShowsRows("Messages", {"one", "three", "two"});
    ShowsMoves("up");
    // A row below the selected last one makes room for it to move down.
    m_Steps.Types("Message", "four").Clicks("Add").ShowsSelected("Messages", {2});
    ShowsMoves("both");
    m_Steps.Clicks("OK");
    Run();
}

TEST_F(AnimateTextDlg, TheMoveButtonsWhileMessagesComeAndGo) {
    m_Gadget.m_Messages.RemoveAll();
    m_Steps.Types("Message", "a").Clicks("Add");
    ShowsMoves("both");
    m_Steps.Clicks("Move Up").Clicks("Move Down").ShowsRows("Messages", {"a"}); // nothing is selected
    m_Steps.Types("Message", "b").Clicks("Add");
    ShowsMoves("down");
    m_Steps.Types("Message", "c").Clicks("Add").SelectsRow("Messages", 1).Clicks("Delete");
    m_Steps.ShowsRows("Messages", {"a", "c"}).ShowsSelected("Messages", {1});
    ShowsMoves("up");
    m_Steps.Clicks("Delete").ShowsSelected("Messages", {0});
    ShowsMoves("none");
    m_Steps.Clicks("Delete").ShowsRows("Messages", {}).Clicks("OK");
    EXPECT_EQ(Run(), IDOK);
    EXPECT_EQ(m_Gadget.m_Messages.GetSize(), 0);
}

TEST_F(AnimateTextDlg, ModifyKeepsToTheRowThatWasPickedWhateverMoved) {
    m_Steps.SelectsRow("Messages", 1).Shows("Message", "two").Clicks("Move Up").Types("Message", "new");
    m_Steps.Clicks("Modify").ShowsRows("Messages", {"two", "new", "three"}).ShowsSelected("Messages", {1});
    m_Steps.SelectsRow("Messages", 2).Clicks("Delete").Shows("Message", "");
    m_Steps.Clicks("Modify").Answers("Please input a words into the inputbox").Types("Message", "lost");
    // The picked row was the last one and is gone.
    m_Steps.Clicks("Modify").Answers("Please Select a words in the Listbox");
    m_Steps.ShowsRows("Messages", {"two", "new"}).Clicks("OK");
    Run();
}

TEST_F(AnimateTextDlg, ItsComplaintsChangeNothing) {
    const CString noText = "Please input a words into the inputbox";
    m_Steps.Clicks("Add").Answers(noText).Clicks("Delete").Answers("Please select a words to delete!");
    m_Steps.Clicks("Modify").Answers("Please Select a words in the Listbox");
    m_Steps.SelectsRow("Messages", 1).Types("Message", "").Clicks("Modify").Answers(noText);
    m_Steps.ShowsRows("Messages", {"one", "two", "three"}).Clicks("OK");
    EXPECT_EQ(Run(), IDOK);
}

} // namespace orrelix
