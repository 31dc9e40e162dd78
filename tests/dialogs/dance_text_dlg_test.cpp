#include "dialogs/dance_text_dlg.h"
#include "tests/support/person_test.h"

namespace orrelix {

namespace {

class DanceTextDlg : public PersonTest {
protected:
    DanceTextDlg() { m_Gadget.m_Colors = {"aaaaaa", "bbbbbb", "cccccc"}; }

    int Run() {
        CDanceTextDlg dialog;
        dialog.m_pGadget = &m_Gadget;
        return dialog.DoModal();
    }
    // Another colour through the dialog of one.
    void Adds(const CString& color) {
        m_Steps.Clicks("Add...").In("Color").Shows("Color:", "").Types("Color:", color).Clicks("OK");
        m_Steps.In("Color Link");
    }

    CDanceText m_Gadget;
    CPersonScript& m_Steps = m_Person.In("Color Link");
};

} // namespace

TEST_F(DanceTextDlg, TheDelayIsCutToAPositionAndComesBackWithSixDecimals) {
    const struct {
        const char* m_pDelay;
        int m_nPosition;
        const char* m_pStored;
    } cases[] = {{"0.5", 50, "0.500000"},   {"0.290000", 28, "0.280000"}, {"0", 0, "0.000000"},
                 {"1", 100, "1.000000"},    {" +.25s", 25, "0.250000"},   {"-3", 0, "0.000000"},
                 {"1e99", 100, "1.000000"}, {"nan", 0, "0.000000"},       {"", 0, "0.000000"}};
    for (const auto& c : cases) {
        m_Gadget.m_Delay = c.m_pDelay;
        m_Steps.ShowsPosition("Color Change Speed", c.m_nPosition).Clicks("OK");
        EXPECT_EQ(Run(), IDOK);
        EXPECT_EQ(m_Gadget.m_Delay, c.m_pStored) << c.m_pDelay;
    }
}

TEST_F(DanceTextDlg, ATargetThatTheListLacksStaysUntilAnotherIsPicked) {
    m_Gadget.m_LinkTarget = "frame7";
    m_Steps.ShowsSelected("Link Target:", {}).Clicks("OK");
    Run();
    EXPECT_EQ(m_Gadget.m_LinkTarget, "frame7");
    m_Steps.Picks("Link Target:", "New Browser Window(_blank)").Clicks("OK");
    Run();
    EXPECT_EQ(m_Gadget.m_LinkTarget, "blank");
    m_Steps.ShowsSelected("Link Target:", {3}).Picks("Link Target:", "").Clicks("OK");
    Run();
    EXPECT_EQ(m_Gadget.m_LinkTarget, "");
}

TEST_F(DanceTextDlg, ColoursAreAddedModifiedAndMoved) {
    m_Steps.ShowsSelected("Colors", {});
    ShowsMoves("none");
    Adds("d0");
    m_Steps.ShowsSelected("Colors", {});
    ShowsMoves("none");
    m_Steps.SelectsRow("Colors", 0);
    ShowsMoves("down");
    m_Steps.Clicks("Move Down").Clicks("Move Down").Clicks("Move Down").ShowsSelected("Colors", {3});
    m_Steps.ShowsRows("Colors", {"bbbbbb", "cccccc", "d0", "aaaaaa"});
    ShowsMoves("up");
    Adds(""); // below the selected last one
    ShowsMoves("both");
    m_Steps.Clicks("Modify...").In("Color").Shows("Color:", "aaaaaa").OpensColours("Color:");
    m_Steps.PicksColour("Red").Clicks("OK").In("Color Link").Clicks("Move Up");
    m_Steps.Clicks("Modify...").In("Color").Types("Color:", "0000ff").Clicks("Cancel").In("Color Link");
    m_Steps.ShowsRows("Colors", {"bbbbbb", "cccccc", "ff0000", "d0", ""}).ShowsSelected("Colors", {2});
    m_Steps.Clicks("Move Up").Clicks("Move Up");
    ShowsMoves("down");
    m_Steps.Clicks("OK");
    EXPECT_EQ(Run(), IDOK);
    EXPECT_EQ(m_Gadget.m_Colors, CStringArray({"ff0000", "bbbbbb", "cccccc", "d0", ""}));
}

TEST_F(DanceTextDlg, ColoursAreDeletedWhenThePersonSaysSo) {
    const CString ask = "Do you want to Delete?";
    m_Steps.Clicks("Delete").Answers("Please select a color in the List to delete!");
    m_Steps.Clicks("Modify...").Answers("Please select an item to modify!");
    m_Steps.SelectsRow("Colors", 1).Clicks("Delete").Answers(ask, IDCANCEL);
    ShowsMoves("both");
    m_Steps.Clicks("Delete")
        .Answers(ask)
        .ShowsRows("Colors", {"aaaaaa", "cccccc"})
        .ShowsSelected("Colors", {1});
    ShowsMoves("up");
    m_Steps.Clicks("Delete").Answers(ask).ShowsSelected("Colors", {0});
    ShowsMoves("none");
    Adds("dddddd"); // below the only one
    ShowsMoves("down");
    m_Steps.Clicks("Delete").Answers(ask).Clicks("Delete").Answers(ask).ShowsRows("Colors", {});
    Adds("eeeeee");
    ShowsMoves("none");
    m_Steps.SelectsRow("Colors", 0).Clicks("Delete").Answers(ask).Clicks("Cancel");
    EXPECT_EQ(Run(), IDCANCEL);
    EXPECT_EQ(m_Gadget.m_Colors.GetSize(), 3);
}

} // namespace orrelix
