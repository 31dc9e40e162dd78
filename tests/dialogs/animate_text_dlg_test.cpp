#include "dialogs/animate_text_dlg.h"
#include "tests/support/person_test.h"

namespace orrelix {

namespace {

class AnimateTextDlg : public PersonTest {
protected:
    AnimateTextDlg() { m_Gadget.m_Messages = {"one", "two", "three"}; }

    int Run() {
        CAnimateTextDlg dialog;
        dialog.m_pGadget = &m_Gadget;
        return dialog.DoModal();
    }

    CAnimateText m_Gadget;
    CPersonScript& m_Steps = m_Person.In("Animate Text");
};

} // namespace

TEST_F(AnimateTextDlg, ComesUpWithTheGadgetsFieldsAsTheyAre) {
    m_Gadget.m_Messages = {"first<br>second"};
    m_Gadget.m_Width = "50%";
    m_Gadget.m_PopUpInterval = "4000";
    m_Gadget.m_BackColor = "";
    m_Steps.ShowsRows("Messages", {"first\r\nsecond"}).ShowsSelected("Messages", {}).Shows("Width:", "50%");
    m_Steps.ShowsPosition("Text Pop up Interval Time", 1000).Shows("Background Color:", "c0c0c0");
    ShowsMoves("none");
    m_Steps.Types("Message", "a\r\nb").Clicks("Add").Types("Top:", "1x2").Clicks("OK");
    EXPECT_EQ(Run(), IDOK);
    EXPECT_EQ(m_Gadget.m_Messages, CStringArray({"first<br>second", "a<br>b"}));
    EXPECT_EQ(m_Gadget.m_Width, "50%");
    EXPECT_EQ(m_Gadget.m_PopUpInterval, "1000");
    EXPECT_EQ(m_Gadget.m_BackColor, "c0c0c0");
    EXPECT_EQ(m_Gadget.m_Top, "12") << "a box for digits";
}

TEST_F(AnimateTextDlg, MessagesAndFontAreStoredOnOkAlone) {
    for (const char* pEnd : {"Cancel", "OK"}) {
        m_Steps.SelectsRow("Messages", 0).Clicks("Delete").Clicks("Font...").In("Font Properties");
        m_Steps.Types("Font Size:", "12").Types("Font Style:", "italic").Picks("Font Weight:", "bold");
        m_Steps.Types("Specify the Font Face:", "Arial").Clicks("OK").In("Animate Text").Clicks(pEnd);
        Run();
        const CAnimateText before, &now = m_Gadget;
        const bool bStored = *pEnd == 'O';
        EXPECT_EQ(now.m_Messages.GetSize(), bStored ? 2 : 3);
        EXPECT_EQ(now.m_FontSize, bStored ? "12" : before.m_FontSize);
        EXPECT_EQ(now.m_FontStyle, bStored ? "italic" : before.m_FontStyle);
        EXPECT_EQ(now.m_FontWeight, bStored ? "bold" : before.m_FontWeight);
        EXPECT_EQ(now.m_FontFamily, bStored ? "Arial" : before.m_FontFamily);
    }
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
