#include "gadgets/dance_text.h"

#include <gtest/gtest.h>

// A browser would take a comma behind the last for one colour more.
TEST(DanceText, AListOfColorsHasNoCommaBehindTheLastInTheScriptAlone) {
    const struct {
        CStringArray m_Colors;
        const char* m_pScript;
        const char* m_pParameter;
    } cases[] = {
        {{}, "(\r\n);", ""},
        {{"ff0000"}, "(\r\n\"#ff0000\"\r\n);", "ff0000,"},
        {{"ff0000", ""}, "(\r\n\"#ff0000\",\r\n\"#\"\r\n);", "ff0000,,"},
    };
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
