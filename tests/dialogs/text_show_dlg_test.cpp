#include "dialogs/text_show_dlg.h"
#include "tests/support/person_test.h"

namespace orrelix {

namespace {

class TextShowDlg : public PersonTest {
protected:
    int Run() {
        CTextShowDlg dialog;
        dialog.m_pGadget = &m_Gadget;
        return dialog.DoModal();
    }

    CTextShow m_Gadget;
    CPersonScript& m_Steps = m_Person.In("Slide Text");
};

} // namespace

TEST_F(TextShowDlg, AnUntouchedNewEffectGetsItsGreyColoursAndItsBlankTitle) {
    m_Steps.Shows("Text Area / Color:", "c0c0c0").Shows("Text Title:", "").PressesEnter();
    EXPECT_EQ(Run(), IDOK);
    EXPECT_EQ(m_Gadget.m_TextColor, "c0c0c0");
    EXPECT_EQ(m_Gadget.m_TitleColor, "c0c0c0");
    EXPECT_EQ(m_Gadget.m_TitleText, "&nbsp;");
    m_Steps.Shows("Text Title:", "").Clicks("Cancel");
    EXPECT_EQ(Run(), IDCANCEL);
    EXPECT_EQ(m_Gadget.m_TitleText, "&nbsp;");
}

TEST_F(TextShowDlg, BoxesShowTheirTextsThoughTheSpinControlsHoldNumbers) {
    m_Gadget.m_TableWidth = "90%";
    m_Gadget.m_TextHeight = "70000";
    m_Steps.Shows("Table / Width:", "90%").Shows("Text Area / Height:", "70000");
    m_Steps.Turns("Table / Width:", 1).Shows("Table / Width:", "91");
    m_Steps.Turns("Text Area / Height:", -1).Clicks("OK");
    EXPECT_EQ(Run(), IDOK);
    EXPECT_EQ(m_Gadget.m_TableWidth, "91");
    EXPECT_EQ(m_Gadget.m_TextHeight, "4463") << "the low 16 bits of 70000, less one";
}

TEST_F(TextShowDlg, EachColourBoxAndItsPickerFollowEachOther) {
    const CString title = "Text Title Area / Color:", text = "Text Area / Color:";
    m_Gadget.m_TitleColor = "0000ff";
    m_Steps.Types(text, "00FF").OpensColours(title).PicksColour("Red").Shows(title, "ff0000");
    m_Steps.Shows(text, "c0c0c0").Types(text, "00FF00").OpensColours(title);
    m_Steps.PressesInPopup({PopupKey::Right, PopupKey::Escape}).Shows(title, "ff0000");
    m_Steps.Types(text, "00FF0g").Answers("You must input a RGB value!").Clicks("OK");
    EXPECT_EQ(Run(), IDOK);
    EXPECT_EQ(m_Gadget.m_TitleColor, "ff0000");
    EXPECT_EQ(m_Gadget.m_TextColor, "00FF0g") << "nothing is validated on OK";
}

TEST_F(TextShowDlg, LinesComeUpAsLinesAndEachFontGoesToItsOwnFields) {
    m_Gadget.m_Text = "one<br>two";
    m_Gadget.m_TextFontSize = "10";
    m_Steps.Shows("Slide Text:", "one\r\ntwo").Types("Slide Text:", "one\r\ntwo\r\nthree");
    m_Steps.Clicks("Title Font...").In("Font Properties").Shows("Font Size:", "");
    m_Steps.Types("Font Style:", "italic").Picks("Font Weight:", "bold").Types("Font Size:", "14");
    m_Steps.Types("Specify the Font Face:", "Arial").Turns("Font Size:", -2).Clicks("OK");
    m_Steps.In("Slide Text").Clicks("Text Font...").In("Font Properties").Shows("Font Size:", "10");
    m_Steps.Types("Font Size:", "99").Clicks("Cancel").In("Slide Text").Clicks("Text Font...");
    m_Steps.In("Font Properties").Types("Font Style:", "oblique").Clicks("OK").In("Slide Text").Clicks("OK");
    EXPECT_EQ(Run(), IDOK);
    EXPECT_EQ(m_Gadget.m_Text, "one\r\ntwo\r\nthree");
    EXPECT_EQ(m_Gadget.m_TitleFontStyle + m_Gadget.m_TitleFontWeight, "italicbold");
    EXPECT_EQ(m_Gadget.m_TitleFontFamily + m_Gadget.m_TitleFontSize, "Arial12");
    EXPECT_EQ(m_Gadget.m_TextFontStyle + m_Gadget.m_TextFontSize, "oblique10");
}

} // namespace orrelix
