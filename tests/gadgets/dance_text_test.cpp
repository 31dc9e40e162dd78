#include "gadgets/dance_text.h"

#include <gtest/gtest.h>

namespace {

CString ColorsOfScript(CDanceText& gadget) {
    CVignelConfig config;
    config.SetTitle("T");
    const CString html = gadget.GetHTMLBody(config, kPublish, 0);
    const char* pBegin = "Tcolors = new TinitArray(\r\n";
    const CString::Position nBegin = html.Find(pBegin) + CString(pBegin).GetLength();
    return html.Mid(nBegin, html.Find(");\r\nTdelay") - nBegin);
}

} // namespace

TEST(DanceText, AListOfColorsHasNoCommaBehindTheLast) {
    const struct {
        CStringArray m_Colors;
        const char* m_pScript;
        const char* m_pParameter;
        const char* m_pCount;
    } cases[] = {
        {{}, "", "", "0"},
        {{"ff0000"}, "\"#ff0000\"\r\n", "ff0000,", "1"},
        {{"ff0000", ""}, "\"#ff0000\",\r\n\"#\"\r\n", "ff0000,,", "2"},
    };
    for (const auto& test : cases) {
        CDanceText gadget;
        gadget.m_Colors = test.m_Colors;
        EXPECT_EQ(ColorsOfScript(gadget), test.m_pScript);
        CVignelConfig config;
        gadget.WriteParameters(config);
        EXPECT_EQ(config.GetParameter("DanceTextColorPara", "?"), test.m_pParameter);
        EXPECT_EQ(config.GetParameter("DanceTextPara", ""),
                  CString("0.5,none,30,oblique,normal,,") + test.m_pCount);
        CDanceText again;
        again.ReadParameters(config, "");
        EXPECT_EQ(again.m_Colors, test.m_Colors) << test.m_pParameter;
    }
}

TEST(DanceText, AnUnmaskedCommaCutsTheTextWhenItIsRead) {
    CDanceText gadget;
    gadget.m_LinkText = "Here, there";
    gadget.m_FontFamily = "Arial,Verdana";
    gadget.m_LinkUrl = "http://a.example/?x,y";
    CVignelConfig config;
    gadget.WriteParameters(config);
    EXPECT_EQ(config.GetParameter("DanceTextFontFamPara", ""), "Arial,Verdana");

    gadget.ReadParameters(config, "");
    EXPECT_EQ(gadget.m_LinkText, "Here");
    EXPECT_EQ(gadget.m_FontFamily, "Arial");
    EXPECT_EQ(gadget.m_LinkUrl, "http://a.example/?x");
}

TEST(DanceText, ACountThatLiesGivesEmptyColors) {
    CVignelConfig config;
    config.SetParameter("DanceTextPara", ",,,,,,3");
    config.SetParameter("DanceTextColorPara", "ff0000,");
    CDanceText gadget;
    gadget.ReadParameters(config, "");
    EXPECT_EQ(gadget.m_Colors, (CStringArray{"ff0000", "", ""}));
    EXPECT_EQ(gadget.m_Delay, "0.5");
}
