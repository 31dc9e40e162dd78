// What differs from Fade Select Box, whose list works in the same way.
#include "dialogs/cool_link_dlg.h"
#include "tests/support/person_test.h"

namespace orrelix {

namespace {

class CoolLinkDlg : public PersonTest {
protected:
    CPersonScript& Adds(const CString& text) {
        m_Steps.Clicks("Add...").In("Item Properties").Types("Item Text:", text).Clicks("OK");
        return m_Steps.In("Link Select Table");
    }
    // The effect's texts when the person is done and presses OK.
    CStringArray Run() {
        m_Steps.Clicks("OK");
        CCoolLinkDlg dialog;
        dialog.m_pGadget = &m_Gadget;
        EXPECT_EQ(dialog.DoModal(), IDOK);
        return m_Gadget.m_Texts;
    }

    CCoolLink m_Gadget;
    CPersonScript& m_Steps = m_Person.In("Link Select Table");
};

} // namespace

TEST_F(CoolLinkDlg, ShowsEachTextOfAnItemInItsColumnAndTheLastItemSelected) {
    m_Gadget.m_Texts = {"text", "second"};
    m_Gadget.m_Links = {"link"};
    m_Gadget.m_Images = {"image"};
    m_Gadget.m_ImageSizes = {{"height", "width", "border"}};
    m_Gadget.m_SelectBorderColor = "";
    m_Gadget.m_Target = "_blank";
    m_Steps.ShowsRows("Items", {"text | link | image | width | height | border", "second |  |  |  |  | "});
    m_Steps.ShowsSelected("Items", {1}).ShowsSelected("Link Target:", {}).Shows("Border Color:", "c0c0c0");
    ShowsMoves("none");
    // The numbers of an item that is modified are those of its spin controls.
    m_Steps.Clicks("Modify...").In("Item Properties").Shows("Width:", "0").Clicks("OK");
    m_Steps.In("Link Select Table");
    Run();
    EXPECT_EQ(m_Gadget.m_Links, CStringArray({"link", ""}));
    EXPECT_EQ(m_Gadget.m_ImageSizes,
              CArray<CCoolLinkImage>({{"height", "width", "border"}, {"0", "0", "0"}}));
    EXPECT_EQ(m_Gadget.m_SelectBorderColor + m_Gadget.m_Target, "c0c0c0_blank");
}

TEST_F(CoolLinkDlg, ANewItemIsTheOneThatMovesAndOneThatGoesLeavesNoneSelected) {
    m_Gadget.m_Texts.RemoveAll();
    Adds("a");
    ShowsMoves("none");
    Adds("b").ShowsSelected("Items", {1});
    ShowsMoves("up");
    Adds("c").SelectsRow("Items", 0);
    Adds("d").ShowsSelected("Items", {3}).Clicks("Move Up").Clicks("Move Up").ShowsSelected("Items", {1});
    ShowsMoves("both");
    m_Steps.Clicks("Delete").ShowsSelected("Items", {}).Then([](CDialog& dialog) {
        EXPECT_EQ(dialog.Item<CListCtrl>(ItemListId::Items).GetHotItem(), 1);
    });
    ShowsMoves("both");
    m_Steps.Clicks("Move Up")
        .Clicks("Move Down")
        .Clicks("Delete")
        .Answers("Please select an item to delete!");
    m_Steps.SelectsRow("Items", 2).Clicks("Delete");
    ShowsMoves("up");
    m_Steps.SelectsRow("Items", 0).Clicks("Delete");
    ShowsMoves("none");
    EXPECT_EQ(Run(), CStringArray({"b"}));
}

} // namespace orrelix
