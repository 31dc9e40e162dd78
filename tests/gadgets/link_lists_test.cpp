// Fade Select Box and Link Select Table, and Scroll Text: what holds for lists that a host has set one by one.
#include "gadgets/cool_link.h"
#include "gadgets/fade_select.h"
#include "gadgets/scroll_text.h"

#include <gtest/gtest.h>

namespace orrelix {

template <class TGadget>
class LinkList : public testing::Test {};
using LinkLists = testing::Types<CFadeSelect, CCoolLink>;
TYPED_TEST_SUITE(LinkList, LinkLists);

TYPED_TEST(LinkList, TakesItemsThatAreMissingAsEmptyAndWithoutAnyHasItsScriptsAlone) {
    CVignelConfig config, untouched;
    TypeParam gadget;
    gadget.m_Links.RemoveAll();
    gadget.m_ImageSizes.RemoveAll();
    gadget.m_Images.SetSize(1);
    EXPECT_GE(gadget.GetHTMLBody(config, kPublish, 0).Find("Welcome to FadeSelect"), 0);

    gadget.m_Texts.RemoveAll();
    EXPECT_EQ(gadget.GetHTMLBody(untouched, kPublish, 0), "");
    EXPECT_NE(gadget.GetHTMLBody(untouched, kPublish, 1), "");
    EXPECT_TRUE(untouched.m_DescriptionMap.IsEmpty()) << "a property was looked at for nothing";
}

TEST(ScrollText, TakesLinksThatAreMissingAsEmpty) {
    CVignelConfig config;
    CScrollText gadget;
    gadget.m_Links.RemoveAll();
    gadget.m_Texts.SetSize(10'000);
    EXPECT_GE(gadget.GetHTMLBody(config, kPublish, 0).Find("[9999]=\"<a href='' "), 0);
}

} // namespace orrelix
