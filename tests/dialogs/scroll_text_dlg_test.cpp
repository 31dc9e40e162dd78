#include "dialogs/scroll_text_dlg.h"
#include "tests/support/person_test.h"

namespace orrelix {

namespace {

const CString kAsk =
    "If you delete the Text, you will delete the Url in the same position. Do you want to continue?";

class ScrollTextDlg : public PersonTest {
protected:
    ScrollTextDlg() {
        m_Gadget.m_Texts = {"a", "b<br>c", "d"};
        m_Gadget.m_Links = {"A", "B", "D"};
    }

    int Run() {
        CScrollTextDlg dialog;
        dialog.m_pGadget = &m_Gadget;
        return dialog.DoModal();
    }
    void ShowsMovesOf(const std::string& texts, const std::string& urls) {
        ShowsMoves(texts, "Scroll Text / ");
        ShowsMoves(urls, "Text Url / ");
    }

    CScrollText m_Gadget;
    CPersonScript& m_Steps = m_Person.In("Scroll Text");
};

} // namespace

TEST_F(ScrollTextDlg, TextsAndAddressesMoveByThemselvesAndAreModifiedWhereTheyAre) {
    m_Steps.Clicks("Scroll Text / Modify").Answers("Please Select a Text in the Listbox");
    m_Steps.Clicks("Text Url / Modify").Answers("Please Select a Url in the Listbox");
    ShowsMovesOf("none", "none");
    m_Steps.ShowsRows("Texts", {"a", "b<br>c", "d"}).SelectsRow("Texts", 1).Shows("Text", "b\r\nc");
    m_Steps.Shows("Url", "").ShowsSelected("Urls", {});
    ShowsMovesOf("both", "none");
    m_Steps.Clicks("Scroll Text / Move Up").Types("Text", "x\r\ny").Clicks("Scroll Text / Modify");
    m_Steps.Shows("Text", "x\r\ny").ShowsRows("Texts", {"x<br>y", "a", "d"}).ShowsSelected("Texts", {0});
    m_Steps.SelectsRow("Urls", 1).Shows("Url", "B").Clicks("Text Url / Move Down");
    ShowsMovesOf("down", "up");
    m_Steps.Types("Url", "").Clicks("Text Url / Modify").Clicks("OK");
    EXPECT_EQ(Run(), IDOK);
    EXPECT_EQ(m_Gadget.m_Texts, CStringArray({"x<br>y", "a", "d"}));
    EXPECT_EQ(m_Gadget.m_Links, CStringArray({"A", "D", ""}));
}

TEST_F(ScrollTextDlg, APairIsAddedBelowAndTheSelectionsStay) {
    m_Steps.SelectsRow("Texts", 2).SelectsRow("Urls", 0);
    ShowsMovesOf("up", "down");
    m_Steps.Clicks("Add new text...").In("Add a Text").Types("Link Text:", "lost").Clicks("Cancel");
    m_Steps.In("Scroll Text").Clicks("Add new text...").In("Add a Text").Shows("Link Text:", "").Clicks("OK");
    m_Steps.In("Scroll Text").ShowsRows("Texts", {"a", "b<br>c", "d", ""}).ShowsSelected("Texts", {2});
    m_Steps.ShowsRows("Urls", {"A", "B", "D", ""}).ShowsSelected("Urls", {0});
    ShowsMovesOf("both", "down");
    m_Steps.Clicks("Cancel");
    Run();
}

// The address that is selected keeps its number and not its place in the list, and the box its text.
TEST_F(ScrollTextDlg, APairIsDeletedByItsText) {
    m_Steps.Clicks("Delete a text").Answers("Please select a words in Text List to delete!");
    m_Steps.SelectsRow("Urls", 1).SelectsRow("Texts", 0).Clicks("Delete a text").Answers(kAsk, IDCANCEL);
    m_Steps.ShowsRows("Texts", {"a", "b<br>c", "d"}).Clicks("Delete a text").Answers(kAsk);
    m_Steps.ShowsRows("Texts", {"b<br>c", "d"}).ShowsSelected("Texts", {0}).Shows("Text", "");
    m_Steps.ShowsRows("Urls", {"B", "D"}).ShowsSelected("Urls", {1}).Shows("Url", "B");
    ShowsMovesOf("down", "up");
    m_Steps.Clicks("Delete a text").Answers(kAsk).ShowsSelected("Urls", {0}).Shows("Url", "B");
    ShowsMovesOf("none", "none");
    m_Steps.Clicks("Delete a text")
        .Answers(kAsk)
        .ShowsRows("Texts", {})
        .ShowsRows("Urls", {})
        .Shows("Url", "");
    ShowsMovesOf("none", "none");
    m_Steps.Clicks("Scroll Text / Modify").Answers("Please Select a Text in the Listbox").Clicks("OK");
    EXPECT_EQ(Run(), IDOK);
    EXPECT_TRUE(m_Gadget.m_Texts.IsEmpty() && m_Gadget.m_Links.IsEmpty());
}

// In no parameter, and so on no road.
TEST_F(ScrollTextDlg, TheFontStyleOfAClickedLinkIsEditedToo) {
    for (const char* pEnd : {"Cancel", "OK"}) {
        m_Steps.Clicks("Mouse Click...").In("Link Style").Clicks("Font...").In("Font Properties");
        m_Steps.Picks("Font Style:", "oblique").Clicks("OK").In("Link Style").Clicks("OK");
        m_Steps.In("Scroll Text").Clicks(pEnd);
        Run();
        EXPECT_EQ(m_Gadget.m_ClickFontStyle, *pEnd == 'O' ? "oblique" : "normal");
    }
}

} // namespace orrelix
