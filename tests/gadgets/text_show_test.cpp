#include "gadgets/text_show.h"

#include <gtest/gtest.h>

TEST(TextShow, ItsTextIsNoListAndLineBreaksBecomeTags) {
    CTextShow gadget;
    gadget.m_Text = "first, second\r\nthird\nfourth";
    CVignelConfig config;
    gadget.WriteParameters(config);
    EXPECT_EQ(gadget.m_Text, "first, second<br>third\nfourth");

    CTextShow again;
    again.ReadParameters(config, "");
    EXPECT_EQ(again.m_Text, "first, second<br>third<br>fourth");
}
