// What single effects do that no expected text shows.
#include "gadgets/dance_text.h"
#include "gadgets/scroll_text.h"
#include "gadgets/text_show.h"

#include <gtest/gtest.h>

namespace orrelix {

// A browser would take a comma behind the last for one colour more.
TEST(DanceText, AListOfColorsHasNoCommaBehindTheLastInTheScriptAlone) {
    const struct {
        CStringArray m_Colors;
        const char* m_pScript;
        const char* m_pParameter;
    } cases[] = {{{}, "(\r\n);", ""}, {{"ff0000", ""}, "(\r\n\"#ff0000\",\r\n\"#\"\r\n);", "ff0000,,"}};
    for (const auto& test : cases) {
        CDanceText gadget, again;
        gadget.m_Colors = test.m_Colors;
        CVignelConfig config;
        EXPECT_GT(gadget.GetHTMLBody(config, kPublish, 0).Find(test.m_pScript), 0) << test.m_pScript;
        gadget.WriteParameters(config);
        EXPECT_EQ(config.GetParameter("DanceTextColorPara", "?"), test.m_pParameter);
        again.ReadParameters(config, "");
        EXPECT_EQ(again.m_Colors, test.m_Colors) << test.m_pParameter;
    }
}

TEST(ScrollText, MayHaveNoTexts) {
    CVignelConfig config;
    CScrollText gadget;
    gadget.ReadParameters(config, "");
    const CString body = gadget.GetHTMLBody(config, kPreview, 0);
    EXPECT_EQ(body.Find("brndfnmessages["), body.Find("brndfnmessages[0])\r\n</script>"));
}

TEST(TextShow, LineBreaksBecomeTagsInItsFieldTooAndSingleOnesInTheFileAlone) {
    CTextShow gadget;
    gadget.m_Text = "first, second\r\nthird\nfourth";
    CVignelConfig config;
    gadget.WriteParameters(config);
    EXPECT_EQ(gadget.m_Text, "first, second<br>third\nfourth");
    EXPECT_EQ(config.GetParameter("TextShowText", ""), "first, second<br>third<br>fourth");
}

} // namespace orrelix
