// The dialogs of addresses, fonts and paddings.
#include "controls/font_dlg.h"
#include "controls/padding_dlg.h"
#include "controls/url_dlg.h"
#include "tests/support/scripted_person.h"

#include <gtest/gtest.h>

namespace orrelix {

TEST(UrlDlg, TheKindFollowsFromHowTheAddressBegins) {
    const struct {
        const char* m_pUrl;
        const char* m_pType;
    } cases[] = {{"HTTP://abc", "http:"}, {"http:abc", "(other)"}, {"gopher:x", "gopher:"},
                 {"https://a", "https:"}, {"file:/a", "(other)"},  {"Mailto:ann", "mailto:"},
                 {"telnet:", "telnet:"},  {"", "(other)"},         {" http://a", "(other)"}};
    for (const auto& c : cases) {
        CScriptedPerson person;
        person.In("Input an URL:").Shows("URL Type:", c.m_pType).Shows("URL", c.m_pUrl).Clicks("OK");
        CUrlDlg dialog;
        dialog.m_Url = c.m_pUrl;
        EXPECT_EQ(dialog.DoModal(), IDOK);
        EXPECT_EQ(dialog.m_Type, c.m_pType) << c.m_pUrl;
    }
}

TEST(UrlDlg, PickingAKindSwapsThePrefix) {
    const struct {
        const char* m_pUrl;
        const char* m_pPicked;
        const char* m_pResult;
    } cases[] = {{"http://abc", "mailto:", "mailto:abc"},
                 {"http://abc", "(other)", "abc"},
                 {"HTTP://Abc", "ftp:", "ftp://Abc"},
                 {"http:abc", "http:", "http://http:abc"},
                 {"", "news:", "news:"},
                 {"gopher:abc", "wais:", "wais:c"},
                 {"mailto:ann", "gopher:", "gopher://ann"},
                 {"http://abc", "http:", "http://abc"}};
    for (const auto& c : cases) {
        CScriptedPerson person;
        person.In("Input an URL:").Picks("URL Type:", c.m_pPicked).Shows("URL", c.m_pResult).Clicks("OK");
        CUrlDlg dialog;
        dialog.m_Url = c.m_pUrl;
        dialog.DoModal();
        EXPECT_EQ(dialog.m_Url, c.m_pResult) << c.m_pUrl << " to " << c.m_pPicked;
    }
}

TEST(UrlDlg, ClosingTheListGivesTheKindsPrefixToAnAddressWithoutOne) {
    CScriptedPerson person;
    person.In("Input an URL:")
        .Types("URL", "abc")
        .Picks("URL Type:", "http:")
        .Types("URL", "abc")
        .ClosesList("URL Type:")
        .Shows("URL", "http://abc")
        .ClosesList("URL Type:")
        .Shows("URL", "http://abc")
        .Types("URL Type:", "irc:")
        .ClosesList("URL Type:")
        .Shows("URL", "irc:abc")
        .Clicks("OK");
    CUrlDlg dialog;
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_Type, "irc:");
}

TEST(FontDlg, DoubleClicksGrowAFamilyList) {
    CScriptedPerson person;
    const CString list = "Double Click to Insert into above:";
    person.In("Font Properties")
        .ShowsRows(list, {"Arial", "Courier New", "Verdana"})
        .DoubleClicks(list, "Verdana")
        .DoubleClicks(list, "Arial")
        .Types("Specify the Font Face:", "Verdana,serif")
        .DoubleClicks(list, "Courier New")
        .Shows("Specify the Font Face:", "Verdana,serif,Courier New")
        .Clicks("OK");
    CFontPropertiesDlg dialog;
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_FontFace, "Verdana,serif,Courier New");
}

TEST(FontDlg, ASizeThatIsNoNumberStaysUntilItIsTurned) {
    CScriptedPerson person;
    person.In("Font Properties").Shows("Font Size:", "larger").Clicks("OK");
    CFontPropertiesDlg dialog;
    dialog.m_FontSize = "larger";
    dialog.DoModal();
    EXPECT_EQ(dialog.m_FontSize, "larger");
    person.In("Font Properties").Turns("Font Size:", 3).Shows("Font Size:", "3").Clicks("OK");
    dialog.DoModal();
    EXPECT_EQ(dialog.m_FontSize, "3");
}

TEST(FontDlg, ChoicesComeInTheirOrderAndOtherWordsPass) {
    CScriptedPerson person;
    person.In("Calender Font Style")
        .ShowsRows("Font Style:", {"italic", "normal", "oblique"})
        .ShowsRows("Text Align:", {"left", "center", "right", "justify"})
        .ShowsSelected("Font Weight:", {6})
        .Picks("Text Align:", "center")
        .Picks("Font Style:", "oblique")
        .Types("Font Weight:", "700")
        .Clicks("OK");
    CCalanderFontDlg dialog;
    dialog.m_FontWeight = "bold";
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_TextAlign, "center");
    EXPECT_EQ(dialog.m_FontStyle, "oblique");
    EXPECT_EQ(dialog.m_FontWeight, "700");
}

TEST(PaddingDlg, SpinControlsWriteWhatTheyHoldAndTypedTextPasses) {
    CScriptedPerson person;
    person.In("Padding Style")
        .Shows("Left:", "12")
        .Shows("Right:", "0")
        .Shows("Top:", "5000")
        .Types("Bottom:", "1em")
        .Clicks("OK");
    CPaddingDlg dialog;
    dialog.m_PaddingLeft = "12px";
    dialog.m_PaddingTop = "6000";
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_PaddingLeft, "12");
    EXPECT_EQ(dialog.m_PaddingRight, "0");
    EXPECT_EQ(dialog.m_PaddingTop, "5000");
    EXPECT_EQ(dialog.m_PaddingBottom, "1em");
}

} // namespace orrelix
