#include "dialogs/text_show_dlg.h"
#include "tests/support/scripted_person.h"
#include "tests/support/user_settings.h"

#include <gtest/gtest.h>

namespace orrelix {

namespace {

int RunOn(CTextShow& gadget) {
    CTextShowDlg dialog;
    dialog.m_pGadget = &gadget;
    return dialog.DoModal();
}

} // namespace

TEST(TextShowDlg, AnUntouchedNewEffectGetsItsGreyColoursAndItsBlankTitle) {
    CTextShow gadget;
    CScriptedPerson person;
    person.In("Slide Text")
        .Shows("Table / Width:", "716")
        .Shows("Text Area / Color:", "c0c0c0")
        .Shows("Text Title:", "")
        .ShowsPosition("Slide Speed", 100)
        .Clicks("OK");
    EXPECT_EQ(RunOn(gadget), IDOK);
    EXPECT_EQ(gadget.m_TextColor, "c0c0c0");
    EXPECT_EQ(gadget.m_TitleColor, "c0c0c0");
    EXPECT_EQ(gadget.m_TitleText, "&nbsp;");
    person.In("Slide Text").Shows("Text Title:", "").Clicks("Cancel");
    EXPECT_EQ(RunOn(gadget), IDCANCEL);
    EXPECT_EQ(gadget.m_TitleText, "&nbsp;");
}

TEST(TextShowDlg, BoxesShowTheirTextsThoughTheSpinControlsHoldNumbers) {
    CTextShow gadget;
    gadget.m_TableWidth = "90%";
    gadget.m_TextHeight = "70000";
    CScriptedPerson person;
    person.In("Slide Text")
        .Shows("Table / Width:", "90%")
        .Shows("Text Area / Height:", "70000")
        .Turns("Table / Width:", 1)
        .Shows("Table / Width:", "91")
        .Turns("Text Area / Height:", -1)
        .Clicks("OK");
    EXPECT_EQ(RunOn(gadget), IDOK);
    EXPECT_EQ(gadget.m_TableWidth, "91");
    EXPECT_EQ(gadget.m_TextHeight, "4463") << "the low 16 bits of 70000, less one";
}

TEST(TextShowDlg, EachColourBoxAndItsPickerFollowEachOther) {
    CTextShow gadget;
    CUserSettings settings;
    gadget.m_TitleColor = "0000ff";
    CScriptedPerson person;
    person.In("Slide Text")
        .Types("Text Area / Color:", "00FF")
        .OpensColours("Text Title Area / Color:")
        .PicksColour("Red")
        .Shows("Text Title Area / Color:", "ff0000")
        .Shows("Text Area / Color:", "c0c0c0")
        .Types("Text Area / Color:", "00FF00")
        .OpensColours("Text Title Area / Color:")
        .PressesInPopup({PopupKey::Right, PopupKey::Escape})
        .Shows("Text Title Area / Color:", "ff0000")
        .Types("Text Area / Color:", "00FF0g")
        .Answers("You must input a RGB value!")
        .Clicks("OK");
    EXPECT_EQ(RunOn(gadget), IDOK);
    EXPECT_EQ(gadget.m_TitleColor, "ff0000");
    EXPECT_EQ(gadget.m_TextColor, "00FF0g") << "nothing is validated on OK";
}

TEST(TextShowDlg, LinesComeUpAsLinesAndEachFontGoesToItsOwnFields) {
    CTextShow gadget;
    gadget.m_Text = "one<br>two";
    gadget.m_TextFontSize = "10";
    CScriptedPerson person;
    person.In("Slide Text")
        .Shows("Slide Text:", "one\r\ntwo")
        .Types("Slide Text:", "one\r\ntwo\r\nthree")
        .Moves("Slide Speed", 1000)
        .Clicks("Title Font...");
    person.In("Font Properties").Shows("Font Size:", "").Types("Font Style:", "italic").Clicks("OK");
    person.In("Slide Text").Clicks("Text Font...");
    person.In("Font Properties").Shows("Font Size:", "10").Types("Font Size:", "99").Clicks("Cancel");
    person.In("Slide Text").Clicks("OK");
    EXPECT_EQ(RunOn(gadget), IDOK);
    EXPECT_EQ(gadget.m_Text, "one\r\ntwo\r\nthree");
    EXPECT_EQ(gadget.m_Speed, "1000");
    EXPECT_EQ(gadget.m_TitleFontStyle, "italic");
    EXPECT_EQ(gadget.m_TextFontStyle, "");
    EXPECT_EQ(gadget.m_TextFontSize, "10");
}

} // namespace orrelix
