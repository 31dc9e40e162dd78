// The dialogs of addresses, borders, fonts and paddings: what a table of their boxes doesn't show.
#include "controls/border_dlg.h"
#include "controls/font_dlg.h"
#include "controls/padding_dlg.h"
#include "controls/url_dlg.h"
#include "platform/profile.h"
#include "tests/support/person_test.h"

namespace orrelix {

namespace {

class UrlDlg : public PersonTest {
protected:
    // Runs the dialog on this address and gives what the caller has then.
    std::string Run(const char* pUrl = "") {
        CUrlDlg dialog;
        dialog.m_Url = pUrl;
        EXPECT_EQ(dialog.DoModal(), IDOK);
        return std::string(dialog.m_Type.View()) + " " + dialog.m_Url.GetString();
    }

    CPersonScript& m_Steps = m_Person.In("Input an URL:");
};

class BorderDlg : public PersonTest {
protected:
    // The same, or "cancelled".
    CString Run(const char* pStyle, const char* pColour, const char* pWidth) {
        CBorderPropertiesDlg dialog;
        dialog.m_BorderStyle = pStyle;
        dialog.m_BorderColor = pColour;
        dialog.m_BorderWidth = pWidth;
        if (dialog.DoModal() != IDOK)
            return "cancelled";
        return dialog.m_BorderWidth + " " + dialog.m_BorderStyle + " #" + dialog.m_BorderColor;
    }

    CPersonScript& m_Steps = m_Person.In("Border Properties");
};

using FontDlg = PersonTest;
using PaddingDlg = PersonTest;

} // namespace

TEST_F(UrlDlg, TheKindFollowsFromHowTheAddressBegins) {
    const std::pair<const char*, const char*> cases[] = {
        {"HTTP://abc", "http:"}, {"http:abc", "(other)"}, {"gopher:x", "gopher:"},
        {"https://a", "https:"}, {"file:/a", "(other)"},  {"Mailto:ann", "mailto:"},
        {"telnet:", "telnet:"},  {"", "(other)"},         {" http://a", "(other)"}};
    for (const auto& [pUrl, pType] : cases) {
        m_Steps.Shows("URL Type:", pType).Shows("URL", pUrl).Clicks("OK");
        EXPECT_EQ(Run(pUrl), std::string(pType) + " " + pUrl);
    }
}

TEST_F(UrlDlg, PickingAKindSwapsThePrefix) {
    const struct {
        const char* m_pUrl;
        const char* m_pPicked;
        const char* m_pResult;
    } cases[] = {{"http://abc", "mailto:", "mailto:abc"},  {"http://abc", "(other)", "abc"},
                 {"(other)x", "ftp:", "ftp://(other)x"},   {"HTTP://Abc", "ftp:", "ftp://Abc"},
                 {"http:abc", "http:", "http://http:abc"}, {"", "news:", "news:"},
                 {"gopher:abc", "wais:", "wais:c"},        {"mailto:ann", "gopher:", "gopher://ann"},
                 {"http://abc", "http:", "http://abc"}};
    for (const auto& [pUrl, pPicked, pResult] : cases) {
        m_Steps.Picks("URL Type:", pPicked).Shows("URL", pResult).Clicks("OK");
        EXPECT_EQ(Run(pUrl), std::string(pPicked) + " " + pResult);
    }
}

TEST_F(UrlDlg, ClosingTheListGivesTheKindsPrefixToAnAddressWithoutOne) {
    m_Steps.Types("URL", "abc").Picks("URL Type:", "http:").Types("URL", "abc");
    for (int nTime = 0; nTime < 2; ++nTime)
        m_Steps.ClosesList("URL Type:").Shows("URL", "http://abc");
    m_Steps.Types("URL Type:", "irc:").ClosesList("URL Type:").Clicks("OK");
    EXPECT_EQ(Run(), "irc: irc:abc");
}

TEST_F(BorderDlg, AnEmptyColourStaysEmptyUnlessTheDialogShowsItsFieldsAgain) {
    m_Steps.Shows("Border Color", "").Shows("Border Width:", "0").Types("Border Style:", "wavy").Clicks("OK");
    EXPECT_EQ(Run("", "", "wide"), "0 wavy #");
    m_Steps.OpensColours("Border Color").PressesInPopup({PopupKey::Return}).Clicks("OK");
    EXPECT_EQ(Run("", "", ""), "0  #c0c0c0") << "the picker starts at c0c0c0";
    m_Steps.Types("Border Color", "00FF00").OpensColours("Border Color").PressesInPopup({PopupKey::Return});
    m_Steps.Shows("Border Color", "00ff00").Turns("Border Width:", 2).Clicks("OK");
    EXPECT_EQ(Run("solid", "112233", "3"), "5 solid #00ff00");
}

TEST_F(BorderDlg, AMixedColourIsRememberedAndACancelledOneIsNot) {
    const auto stored = [] { return GetProfileString("Specify Color CALANDER", "Name39", "none"); };
    m_Steps.OpensColours("Border Color").PressesInPopup({PopupKey::Up, PopupKey::Space}).CancelsColour();
    m_Steps.Shows("Border Color", "112233").Then([&](CDialog&) { EXPECT_EQ(stored(), "none"); });
    m_Steps.OpensColours("Border Color").PressesInPopup({PopupKey::Up, PopupKey::Space});
    m_Steps.MixesColour(MakeColour(1, 2, 3)).Shows("Border Color", "010203").Clicks("Cancel");
    EXPECT_EQ(Run("solid", "112233", "3"), "cancelled");
    EXPECT_EQ(stored(), "010203");
    m_Steps.OpensColours("Border Color").PicksColour("010203").Clicks("OK");
    EXPECT_EQ(Run("solid", "112233", "3"), "3 solid #010203");
}

TEST_F(FontDlg, DoubleClicksGrowAFamilyListAndASizeThatIsNoNumberStaysUntilItIsTurned) {
    const CString list = "Double Click to Insert into above:";
    m_Person.In("Font Properties").ShowsRows(list, {"Arial", "Courier New", "Verdana"});
    m_Person.DoubleClicks(list, "Verdana").DoubleClicks(list, "Arial");
    m_Person.Types("Specify the Font Face:", "Verdana,serif").DoubleClicks(list, "Courier New");
    m_Person.Shows("Specify the Font Face:", "Verdana,serif,Courier New").Shows("Font Size:", "larger");
    m_Person.Clicks("OK");
    CFontPropertiesDlg dialog;
    dialog.m_FontSize = "larger";
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_FontFace, "Verdana,serif,Courier New");
    EXPECT_EQ(dialog.m_FontSize, "larger");
    m_Person.Turns("Font Size:", 3).Shows("Font Size:", "3").Clicks("OK");
    dialog.DoModal();
    EXPECT_EQ(dialog.m_FontSize, "3");
}

TEST_F(FontDlg, ChoicesComeInTheirOrder) {
    m_Person.In("Calender Font Style").ShowsRows("Font Style:", {"italic", "normal", "oblique"});
    m_Person.ShowsRows("Text Align:", {"left", "center", "right", "justify"});
    m_Person.ShowsSelected("Font Weight:", {6}).Clicks("OK");
    CCalanderFontDlg dialog;
    dialog.m_FontWeight = "bold";
    EXPECT_EQ(dialog.DoModal(), IDOK);
}

TEST_F(PaddingDlg, SpinControlsWriteWhatTheyHoldAndTypedTextPasses) {
    m_Person.In("Padding Style").Shows("Left:", "12").Shows("Right:", "0").Shows("Top:", "5000");
    m_Person.Types("Bottom:", "1em").Clicks("OK");
    CPaddingDlg dialog;
    dialog.m_PaddingLeft = "12px";
    dialog.m_PaddingTop = "6000";
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_PaddingTop, "5000");
    EXPECT_EQ(dialog.m_PaddingBottom, "1em");
}

} // namespace orrelix
