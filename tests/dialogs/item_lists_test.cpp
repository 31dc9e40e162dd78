// The lists of items whose texts a host has set to lengths of their own.
#include "dialogs/cool_link_dlg.h"
#include "dialogs/fade_select_dlg.h"
#include "tests/support/person_test.h"

namespace orrelix {

namespace {

class ItemLists : public PersonTest {
protected:
    template <class TDialog, class TGadget>
    void Edit(TGadget& gadget) {
        gadget.m_Texts = {"text", "second"};
        gadget.m_Links = {"link"};
        gadget.m_Images = {"image"};
        gadget.m_ImageSizes = {{"height", "width", "border"}};
        TDialog dialog;
        dialog.m_pGadget = &gadget;
        EXPECT_EQ(dialog.DoModal(), IDOK);
        EXPECT_EQ(gadget.m_Links, CStringArray({"link", ""}));
        EXPECT_EQ(gadget.m_ImageSizes[0], (CCoolLinkImage{"height", "width", "border"}));
    }
};

} // namespace

TEST_F(ItemLists, OfFadeSelectHaveEachTextInItsColumnAndAllItemsSelected) {
    m_Person.In("Fade Select Box")
        .ShowsSelected("Items", {0, 1})
        .ShowsRows(
            "Items",
            {"text | link | tip | image | width | height | border | family | weight | size | style | color",
             "second |  |  |  |  |  |  |  |  |  |  | "})
        .Does("clicks OK");
    CFadeSelect gadget;
    gadget.m_ToolTips = {"tip"};
    gadget.m_ItemFonts = {{"family", "weight", "style", "size", "color"}};
    Edit<CFadeSelectDlg>(gadget);
    EXPECT_EQ(gadget.m_ItemFonts[0], (CFadeSelectFont{"family", "weight", "style", "size", "color"}));
}

// The numbers of an item that is modified are those of its spin controls.
TEST_F(ItemLists, OfCoolLinkHaveEachTextInItsColumnAndTheLastItemSelected) {
    m_Person.In("Link Select Table").ShowsSelected("Items", {1});
    m_Person.ShowsRows("Items", {"text | link | image | width | height | border", "second |  |  |  |  | "});
    m_Person.ShowsSelected("Link Target:", {}).Shows("Border Color:", "c0c0c0").Does("clicks Modify...");
    m_Person.In("Item Properties")
        .Shows("Width:", "0")
        .Does("clicks OK")
        .In("Link Select Table")
        .Does("clicks OK");
    CCoolLink gadget;
    gadget.m_SelectBorderColor = "";
    gadget.m_Target = "_blank";
    Edit<CCoolLinkDlg>(gadget);
    EXPECT_EQ(gadget.m_ImageSizes[1], (CCoolLinkImage{"0", "0", "0"}));
    EXPECT_EQ(gadget.m_SelectBorderColor + gadget.m_Target, "c0c0c0_blank");
}

} // namespace orrelix
