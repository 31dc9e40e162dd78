// Fade Select Box and Link Select Table: what holds for both.
#include "gadgets/cool_link.h"
#include "gadgets/fade_select.h"

#include <gtest/gtest.h>

namespace orrelix {

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

TYPED_TEST(LinkList, KeepsItsSequencesAsLongAsTheCountSays) {
    TypeParam& gadget = this->m_Gadget;
    SetCount(this->m_Config, gadget, "5");
    gadget.ReadParameters(this->m_Config, "\\pages\\");
    for (const auto nItems : {gadget.m_Texts.GetSize(), gadget.m_Links.GetSize(), gadget.m_Images.GetSize(),
                              gadget.m_ImageSizes.GetSize()})
        EXPECT_EQ(nItems, 5);
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

TEST(CoolLink, FormsTheBorderThatNoParameterHolds) {
    CVignelConfig config;
    config.SetParameter("CoolLinkOptionPara", ",,,,,,3,112233,dotted,0");
    CCoolLink link;
    link.m_OptionBorder = "stale";
    link.ReadParameters(config, "");
    EXPECT_EQ(link.m_OptionBorder, "3 dotted #112233");
}

} // namespace orrelix
