#include "core/vignel_config.h"
#include "gadgets/scroll_text.h"

#include <gtest/gtest.h>

TEST(ScrollText, AFileKeepsAllButTheStyleOfAClickedLinkAndMayHaveNoTexts) {
    CVignelConfig config;
    CScrollText gadget;
    gadget.m_ClickFontStyle = "oblique";
    gadget.WriteParameters(config);
    CScrollText read;
    read.m_ClickFontStyle = "italic";
    read.ReadParameters(config, "\\");
    EXPECT_EQ(read.m_ClickFontStyle, "italic");

    config.SetParameter("ScrollTextPara", "");
    read.ReadParameters(config, "\\");
    const CString body = read.GetHTMLBody(config, kPreview, 0);
    EXPECT_EQ(body.Find("brndfnmessages["), body.Find("brndfnmessages[0])\r\n</script>"));
}
