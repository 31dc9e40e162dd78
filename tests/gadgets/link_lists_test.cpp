// Fade Select Box and Link Select Table: what holds for both.
#include "gadgets/cool_link.h"
#include "gadgets/fade_select.h"
#include "tests/support/expected_text.h"
#include "tests/support/named_fields.h"
#include "tests/support/temporary_directory.h"

#include <gtest/gtest.h>

namespace {

// Where each keeps the count of its items.
void SetCount(CVignelConfig& config, const CFadeSelect&, const char* pCount) {
    config.SetParameter("FadeSelectPara", CString(",,,,,,,,,,,") + pCount);
}
void SetCount(CVignelConfig& config, const CCoolLink&, const char* pCount) {
    config.SetParameter("CoolLinkOptionPara", CString(",,,,,,,,,") + pCount);
}

CString TextsKey(const CFadeSelect&) {
    return "FadeSelectTextStr";
}
CString TextsKey(const CCoolLink&) {
    return "CoolLinkTextStr";
}

const char* FieldsFile(const CFadeSelect&) {
    return "fade_select_fields.html";
}
const char* FieldsFile(const CCoolLink&) {
    return "cool_link_fields.html";
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

TYPED_TEST(LinkList, HasEveryFieldAtItsPlace) {
    CNamedFields names;
    this->m_Gadget.ExchangeParameters(names);
    this->m_Gadget.m_Images[1] = "";
    this->m_Config.SetTitle("TiTle");
    const CString text = this->m_Gadget.GetHTMLBody(this->m_Config, kPublish, 0);
    const std::filesystem::path expected = ORRELIX_SOURCE_DIR "/tests/expected";
    EXPECT_TRUE(EqualsExpected(expected / FieldsFile(this->m_Gadget), text));
}

TYPED_TEST(LinkList, ComesBackWithItsImagesBesideTheFile) {
    TypeParam& gadget = this->m_Gadget;
    gadget.m_Texts = {"one, two", "", "<b>three</b>"};
    gadget.m_Links = {"http://a/?x=1,2", "", "c"};
    gadget.m_Images = {"\\pictures\\one,two.gif", "", "three.gif"};
    gadget.m_ImageSizes = {{"10", "20", "1"}, {}, {"", "30", ""}};
    gadget.m_OverFont = "Georgia, serif";
    gadget.WriteParameters(this->m_Config);

    TypeParam again;
    EXPECT_TRUE(again.ReadParameters(this->m_Config, "\\pages\\"));
    EXPECT_EQ(again.m_Texts, gadget.m_Texts);
    EXPECT_EQ(again.m_Links, gadget.m_Links);
    EXPECT_EQ(again.m_Images, CStringArray({"\\pages\\one,two.gif", "", "\\pages\\three.gif"}));
    EXPECT_EQ(again.m_ImageSizes, gadget.m_ImageSizes);
    EXPECT_EQ(again.m_OverFont, gadget.m_OverFont);
}

TYPED_TEST(LinkList, KeepsItsSequencesEquallyLongWhateverTheCountSays) {
    const struct {
        const char* m_pCount;
        CStringArray::Index m_nItems;
    } cases[] = {{"", 0}, {"-3", 0}, {"none", 0}, {"1", 1}, {"5", 5}, {"99999999", 65535}};
    for (const auto& row : cases) {
        TypeParam gadget;
        this->m_Config.SetParameter(TextsKey(gadget), "first,second,");
        SetCount(this->m_Config, gadget, row.m_pCount);
        gadget.ReadParameters(this->m_Config, "\\pages\\");
        EXPECT_EQ(gadget.m_Texts.GetSize(), row.m_nItems) << row.m_pCount;
        EXPECT_EQ(gadget.m_Links.GetSize(), row.m_nItems) << row.m_pCount;
        EXPECT_EQ(gadget.m_Images.GetSize(), row.m_nItems) << row.m_pCount;
        EXPECT_EQ(gadget.m_ImageSizes.GetSize(), row.m_nItems) << row.m_pCount;
        EXPECT_EQ(gadget.m_OverFont, "@Fixedsys") << "missing fields stay, with the count " << row.m_pCount;
        EXPECT_TRUE(row.m_nItems < 3 || gadget.m_Texts[2].IsEmpty()) << row.m_pCount;
    }
}

TYPED_TEST(LinkList, WithoutItemsHasItsScriptsAlone) {
    this->m_Gadget.m_Texts.RemoveAll();
    EXPECT_EQ(this->m_Gadget.GetHTMLBody(this->m_Config, kPublish, 0), "");
    EXPECT_NE(this->m_Gadget.GetHTMLBody(this->m_Config, kPublish, 1), "");
    EXPECT_TRUE(this->m_Config.m_DescriptionMap.IsEmpty()) << "a property was looked at for nothing";
}

TYPED_TEST(LinkList, AsksForThePreviewPathOnlyToReferToFiles) {
    this->m_Config.SetTitle("t");
    const auto nProperties = this->m_Config.m_DescriptionMap.GetCount();
    this->m_Gadget.GetHTMLBody(this->m_Config, kPreview, 0);
    this->m_Gadget.GetHTMLBody(this->m_Config, kPublish, 1);
    EXPECT_EQ(this->m_Config.m_DescriptionMap.GetCount(), nProperties);
    this->m_Config.SetPreviewPath("p/");
    this->m_Gadget.m_Images[0] = "\\pictures\\a.gif";
    EXPECT_GE(this->m_Gadget.GetHTMLBody(this->m_Config, kPreview, 0).Find("<img src=\"p/a.gif\" "), 0);
}

// A host that sets the lists one by one may leave them so.
TYPED_TEST(LinkList, TakesItemsThatAreMissingFromAListAsEmpty) {
    this->m_Gadget.m_Links.RemoveAll();
    this->m_Gadget.m_ImageSizes.RemoveAll();
    this->m_Gadget.m_Images.SetSize(1);
    EXPECT_GE(this->m_Gadget.GetHTMLBody(this->m_Config, kPublish, 0).Find("Welcome to FadeSelect"), 0);
}

TYPED_TEST(LinkList, RegistersAndCopiesItsImages) {
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
    for (short i = 0; i < nLast; ++i)
        EXPECT_TRUE(
            std::filesystem::exists(directory.File("to") / this->m_Config.GetResourceName(i).GetString()));
}

TEST(FadeSelect, StartsWithItsDefaults) {
    CVignelConfig config;
    CFadeSelect().WriteParameters(config);
    const char* defaults[][2] = {
        {"FadeSelectActivePara", "d2b48c,ffffff,1,solid,@Fixedsys,20,normal,normal,1 solid #d2b48c,8b0000"},
        {"FadeSelectPara", ",200,hand,6,5,40,1,1,1,1,20,4"},
        {"FadeSelectDropButtonPara",
         "20,1,20,10,32cd32,ffad5b,none,1,1 none #32cd32,2 outset #00ff00,2,00ff00,outset"},
        {"FadeSelectMorePara", "c0c0c0,outset,1,32cd32,ffd700,ffad5b,none,0,1,1 outset #c0c0c0,0 none "
                               "#ffd700,,100,100,"},
        {"FadeSelectItemFontFam", ",,,,"},
    };
    for (const auto& [pKey, pValue] : defaults)
        EXPECT_EQ(config.GetParameter(pKey, "missing"), pValue) << pKey;
}

TEST(FadeSelect, KeepsTooltipsAndFontsWithCommas) {
    CVignelConfig config;
    CFadeSelect select;
    select.m_ToolTips = {"a, b", "", "c", ""};
    select.m_ItemFonts[0] = {"Georgia, serif", "bold", "italic", "18", "1f3a5f"};
    select.WriteParameters(config);
    CFadeSelect again;
    again.ReadParameters(config, "");
    EXPECT_EQ(again.m_ToolTips, select.m_ToolTips);
    EXPECT_EQ(again.m_ItemFonts, select.m_ItemFonts);
}

TEST(CoolLink, FormsTheBorderThatNoParameterHolds) {
    CVignelConfig config;
    config.SetParameter("CoolLinkOptionPara", ",,,,,,3,112233,dotted,0");
    CCoolLink link;
    link.m_OptionBorder = "stale";
    link.ReadParameters(config, "");
    EXPECT_EQ(link.m_OptionBorder, "3 dotted #112233");
    EXPECT_EQ(link.m_SelectBorder, "1 inset #ffd700") << "the whole border of the box stays as it is";
}
