#include "gadgets/text_show.h"

#include <gtest/gtest.h>

TEST(TextShow, PacksItsDefaultsWithEmptyItems) {
    CTextShow gadget;
    CVignelConfig config;
    gadget.WriteParameters(config);
    EXPECT_EQ(config.GetParameter("TextShowPara", ""), "100,0,47,716,122,551,134,188,,");
    EXPECT_EQ(config.GetParameter("TextShowFontPara", ""), ",,,,,,,");
}

TEST(TextShow, TitleAndTextAreNoListsAndLineBreaksBecomeTags) {
    CTextShow gadget;
    gadget.m_TitleText = "one, two";
    gadget.m_Text = "first, second\r\nthird\nfourth";
    gadget.m_TextFontFamily = "Georgia,serif";
    CVignelConfig config;
    gadget.WriteParameters(config);
    EXPECT_EQ(gadget.m_Text, "first, second<br>third\nfourth");

    CTextShow again;
    again.ReadParameters(config, "");
    EXPECT_EQ(again.m_TitleText, "one, two");
    EXPECT_EQ(again.m_Text, "first, second<br>third<br>fourth");
    EXPECT_EQ(again.m_TextFontFamily, "Georgia,serif");
}

TEST(TextShow, AMissingKeyEmptiesTitleAndTextOnly) {
    CTextShow gadget;
    gadget.m_TitleText = "old";
    CVignelConfig empty;
    gadget.ReadParameters(empty, "");
    EXPECT_EQ(gadget.m_TitleText, "");
    EXPECT_EQ(gadget.m_Text, "");
    EXPECT_EQ(gadget.m_Speed, "100");
}
