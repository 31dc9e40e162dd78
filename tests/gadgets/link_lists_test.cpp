// Fade Select Box and Link Select Table: what holds for both.
#include "gadgets/cool_link.h"
#include "gadgets/fade_select.h"
#include "tests/support/temporary_directory.h"

#include <gtest/gtest.h>

namespace {

// Two items, and what count each may keep of them.
void SetCount(CVignelConfig& config, const CFadeSelect&, const char* pCount) {
    config.SetParameter("FadeSelectTextStr", "first,second,");
    config.SetParameter("FadeSelectPara", CString(",,,,,,,,,,,") + pCount);
}
void SetCount(CVignelConfig& config, const CCoolLink&, const char* pCount) {
    config.SetParameter("CoolLinkTextStr", "first,second,");
    config.SetParameter("CoolLinkOptionPara", CString(",,,,,,,,,") + pCount);
}

template <class TGadget>
class LinkList : public testing::Test {
protected:
    TGadget m_Gadget;
    CVignelConfig m_Config;
};
using LinkLists = testing::Types<CFadeSelect, CCoolLink>;
TYPED_TEST_SUITE(LinkList, LinkLists);

} // namespace

TYPED_TEST(LinkList, KeepsItsSequencesEquallyLongWhateverTheCountSays) {
    const struct {
        const char* m_pCount;
        CStringArray::Index m_nItems;
    } cases[] = {{"", 0}, {"-3", 0}, {"none", 0}, {"1", 1}, {"5", 5}, {"99999999", 65535}};
    for (const auto& row : cases) {
        TypeParam gadget;
        SetCount(this->m_Config, gadget, row.m_pCount);
        gadget.ReadParameters(this->m_Config, "\\pages\\");
        EXPECT_EQ(gadget.m_Texts.GetSize(), row.m_nItems) << row.m_pCount;
        EXPECT_EQ(gadget.m_Links.GetSize(), row.m_nItems) << row.m_pCount;
        EXPECT_EQ(gadget.m_Images.GetSize(), row.m_nItems) << row.m_pCount;
        EXPECT_EQ(gadget.m_ImageSizes.GetSize(), row.m_nItems) << row.m_pCount;
    }
}

// A host that sets the lists one by one may leave them so.
TYPED_TEST(LinkList, TakesItemsThatAreMissingAsEmptyAndWithoutAnyHasItsScriptsAlone) {
    this->m_Gadget.m_Links.RemoveAll();
    this->m_Gadget.m_ImageSizes.RemoveAll();
    this->m_Gadget.m_Images.SetSize(1);
    EXPECT_GE(this->m_Gadget.GetHTMLBody(this->m_Config, kPublish, 0).Find("Welcome to FadeSelect"), 0);

    CVignelConfig untouched;
    this->m_Gadget.m_Texts.RemoveAll();
    EXPECT_EQ(this->m_Gadget.GetHTMLBody(untouched, kPublish, 0), "");
    EXPECT_NE(this->m_Gadget.GetHTMLBody(untouched, kPublish, 1), "");
    EXPECT_TRUE(untouched.m_DescriptionMap.IsEmpty()) << "a property was looked at for nothing";
}

TYPED_TEST(LinkList, RegistersCopiesAndFindsItsImagesAgain) {
    const CTemporaryDirectory directory;
    TypeParam& gadget = this->m_Gadget;
    std::filesystem::create_directory(directory.File("from"));
    std::filesystem::create_directory(directory.File("to"));
    directory.Write("from/Photo.GIF", "bytes");
    gadget.m_Images = {directory.Path("from\\photo.gif"), "", directory.Path("from\\gone.gif"), ""};
    gadget.m_ImagePath = "images/";

    const short nResources = gadget.RegisterResources(this->m_Config);
    const short nLast = static_cast<short>(nResources - 1);
    EXPECT_EQ(this->m_Config.GetResourceName(nLast), "Photo.GIF") << "as the disk spells it";
    EXPECT_EQ(this->m_Config.GetResourceLocalPath(nLast), directory.Path("from") + "\\");
    EXPECT_EQ(this->m_Config.GetResourceWebPath(nLast), "images/");
    EXPECT_EQ(gadget.m_Images, CStringArray({directory.Path("from\\photo.gif"), "", "", ""}));

    gadget.CopyResources(directory.Path("to") + "\\", 0);
    EXPECT_EQ(gadget.m_Images[0], directory.Path("to\\photo.gif"));
    EXPECT_EQ(FileContent(directory.File("to/photo.gif")), "bytes");

    gadget.WriteParameters(this->m_Config);
    TypeParam again;
    again.ReadParameters(this->m_Config, "\\pages\\");
    EXPECT_EQ(again.m_Images, CStringArray({"\\pages\\photo.gif", "", "", ""}));
}

TEST(CoolLink, FormsTheBorderThatNoParameterHolds) {
    CVignelConfig config;
    config.SetParameter("CoolLinkOptionPara", ",,,,,,3,112233,dotted,0");
    CCoolLink link;
    link.m_OptionBorder = "stale";
    link.ReadParameters(config, "");
    EXPECT_EQ(link.m_OptionBorder, "3 dotted #112233");
}
