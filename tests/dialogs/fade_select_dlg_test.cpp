#include "dialogs/fade_select_dlg.h"
#include "tests/support/person_test.h"

namespace orrelix {

namespace {

class FadeSelectDlg : public PersonTest {
protected:
    FadeSelectDlg() {
        m_Gadget.m_Texts = {"a", "b", "c"};
        m_Gadget.m_Links = m_Gadget.m_ToolTips = {};
    }

    CPersonScript& Adds(const CString& text) {
        m_Steps.Clicks("Add...").In("Item Properties").Types("Item Text:", text).Clicks("OK");
        return m_Steps.In("Fade Select Box");
    }
    // The effect's texts when the person is done and presses OK.
    CStringArray Run() {
        m_Steps.Clicks("OK");
        CFadeSelectDlg dialog;
        dialog.m_pGadget = &m_Gadget;
        EXPECT_EQ(dialog.DoModal(), IDOK);
        return m_Gadget.m_Texts;
    }

    CFadeSelect m_Gadget;
    CPersonScript& m_Steps = m_Person.In("Fade Select Box");
};

} // namespace

TEST_F(FadeSelectDlg, ShowsEachTextOfAnItemInItsColumnAndAllItemsSelected) {
    m_Gadget.m_Texts = {"text", "second"};
    m_Gadget.m_Links = {"link"};
    m_Gadget.m_ToolTips = {"tip"};
    m_Gadget.m_Images = {"image"};
    m_Gadget.m_ImageSizes = {{"height", "width", "border"}};
    m_Gadget.m_ItemFonts = {{"family", "weight", "style", "size", "color"}};
    m_Steps.ShowsRows("Items",
                      {"text | link | tip | image | width | height | border | family | weight | size | "
                       "style | color",
                       "second |  |  |  |  |  |  |  |  |  |  | "});
    m_Steps.ShowsSelected("Items", {0, 1});
    ShowsMoves("none");
    Run();
    EXPECT_EQ(m_Gadget.m_Links, CStringArray({"link", ""}));
    EXPECT_EQ(m_Gadget.m_ImageSizes[0], (CCoolLinkImage{"height", "width", "border"}));
    EXPECT_EQ(m_Gadget.m_ItemFonts[0], (CFadeSelectFont{"family", "weight", "style", "size", "color"}));
}

TEST_F(FadeSelectDlg, TheFirstSelectedRowMovesAndGoes) {
    m_Steps.SelectsRows("Items", {1, 2});
    ShowsMoves("both");
    m_Steps.Clicks("Move Up").ShowsSelected("Items", {0, 2});
    ShowsMoves("down");
    m_Steps.Clicks("Move Down").ShowsSelected("Items", {1, 2});
    ShowsMoves("both");
    m_Steps.Clicks("Move Down").ShowsSelected("Items", {1, 2}); // it changed places with a selected one
    ShowsMoves("up");
    m_Steps.Clicks("Delete").ShowsSelected("Items", {1});
    ShowsMoves("up");
    m_Steps.Then(
        [](CDialog& dialog) { EXPECT_EQ(dialog.Item<CListCtrl>(ItemListId::Items).GetHotItem(), 1); });
    EXPECT_EQ(Run(), CStringArray({"a", "b"}));
}

// The rules leave buttons enabled that have nothing to do: these change nothing.
TEST_F(FadeSelectDlg, TheMoveButtonsWhileItemsComeAndGo) {
    m_Steps.SelectsRow("Items", 1).Clicks("Delete").ShowsSelected("Items", {});
    ShowsMoves("up");
    m_Steps.Clicks("Move Up").Clicks("Delete").Answers("Please select an item to delete!");
    ShowsMoves("up");
    m_Steps.SelectsRow("Items", 1);
    Adds("d").ShowsSelected("Items", {1, 2});
    ShowsMoves("both");
    m_Steps.SelectsRow("Items", 0).Clicks("Delete");
    ShowsMoves("down");
    m_Steps.SelectsRow("Items", 0).Clicks("Delete");
    ShowsMoves("none");
    Adds("e");
    ShowsMoves("down");
    m_Steps.Clicks("Move Down");
    EXPECT_EQ(Run(), CStringArray({"d", "e"}));
}

TEST_F(FadeSelectDlg, AllItemsCanGoOneByOne) {
    m_Steps.Clicks("Delete").Clicks("Delete").ShowsRows("Items", {"c |  |  |  |  |  |  |  |  |  |  | "});
    m_Steps.ShowsSelected("Items", {0}).Clicks("Delete");
    ShowsMoves("none");
    Adds("new");
    ShowsMoves("none");
    m_Steps.SelectsRow("Items", 0).Clicks("Delete");
    EXPECT_EQ(Run(), CStringArray());
}

TEST_F(FadeSelectDlg, NumbersAndColoursThatAreNoneShowAsTheyAreButInTheDropButton) {
    for (CString* pText : {&m_Gadget.m_BoxWidth, &m_Gadget.m_OverBorderWidth, &m_Gadget.m_DropBorderWidth,
                           &m_Gadget.m_ButtonWidth})
        *pText = "90%";
    for (CString* pText : {&m_Gadget.m_Top, &m_Gadget.m_ButtonHeight, &m_Gadget.m_SelectBackColor,
                           &m_Gadget.m_OverTextColor, &m_Gadget.m_DropBackColor, &m_Gadget.m_TableBackColor})
        pText->Empty();
    m_Gadget.m_Target = "_blank";
    m_Steps.Shows("Box Width:", "90%").Shows("Box Top:", "").Shows("Box Color:", "c0c0c0");
    m_Steps.Clicks("Selected Item...").In("Selected Item Style").Shows("Width:", "90%");
    m_Steps.Shows("Text Color:", "c0c0c0").ShowsSelected("Link Target:", {}).Clicks("OK");
    m_Steps.In("Fade Select Box").Clicks("Drop Table...").In("Drop Down Table Style");
    m_Steps.Shows("Border Width:", "90%").Shows("Background Color:", "c0c0c0").Clicks("Cancel");
    m_Steps.In("Fade Select Box").Clicks("Drop Button...").In("Drop Button Style");
    m_Steps.Shows("Click Button Layout Style / Width:", "90").Shows("Height:", "0");
    m_Steps.Shows("Click Button Color:", "").Clicks("OK").In("Fade Select Box");
    Run();
    EXPECT_EQ(m_Gadget.m_BoxWidth + "," + m_Gadget.m_OverBorderWidth + "," + m_Gadget.m_ButtonWidth,
              "90%,90%,90");
    EXPECT_EQ(m_Gadget.m_OverTextColor + "," + m_Gadget.m_TableBackColor, "c0c0c0,");
    EXPECT_EQ(m_Gadget.m_DropBackColor + "," + m_Gadget.m_Target, ",_blank");
}

} // namespace orrelix
