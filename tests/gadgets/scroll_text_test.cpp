#include "core/vignel_config.h"
#include "gadgets/scroll_text.h"

#include <gtest/gtest.h>

TEST(ScrollText, AFileKeepsEveryFieldButTheStyleOfAClickedLink) {
    CVignelConfig config;
    CScrollText written;
    written.m_Texts = {"one, two", "", "a<br>b"};
    written.m_Links = {"a,b.htm", "b.htm", ""};
    written.m_ClickFontStyle = "oblique";
    written.WriteParameters(config);

    CScrollText read;
    read.m_ClickFontStyle = "italic";
    EXPECT_TRUE(read.ReadParameters(config, "\\"));
    EXPECT_EQ(read.m_ClickFontStyle, "italic");
    read.m_ClickFontStyle = "oblique";
    EXPECT_EQ(read.GetHTMLBody(config, kPublish, 0), written.GetHTMLBody(config, kPublish, 0));
}

TEST(ScrollText, AFileWithoutACountHasNoTextsAndItsBoxStands) {
    CVignelConfig config;
    config.SetParameter("ScrollTextStr", "one,two,");
    CScrollText gadget;
    gadget.ReadParameters(config, "\\");
    EXPECT_TRUE(gadget.m_Texts.IsEmpty());
    EXPECT_TRUE(gadget.m_Links.IsEmpty());
    EXPECT_EQ(gadget.m_LayerSpeed, "3000");

    const CString body = gadget.GetHTMLBody(config, kPreview, 0);
    EXPECT_EQ(body.Find("brndfnmessages["), body.Find("brndfnmessages[0])\r\n</script>"));
    EXPECT_EQ(body.Right(10), "</table>\r\n");
}
