#include "controls/border_dlg.h"
#include "platform/profile.h"
#include "tests/support/colour_settings.h"
#include "tests/support/scripted_person.h"

#include <gtest/gtest.h>

namespace orrelix {

namespace {

class BorderDlg : public testing::Test {
protected:
    // Runs the dialog on these fields; the result is what the caller has then, or "cancelled".
    CString Run(const char* pStyle, const char* pColour, const char* pWidth) {
        CBorderPropertiesDlg dialog;
        dialog.m_BorderStyle = pStyle;
        dialog.m_BorderColor = pColour;
        dialog.m_BorderWidth = pWidth;
        if (dialog.DoModal() != IDOK)
            return "cancelled";
        return dialog.m_BorderWidth + " " + dialog.m_BorderStyle + " #" + dialog.m_BorderColor;
    }

    CColourSettings m_Settings;
    CScriptedPerson m_Person;
};

} // namespace

TEST_F(BorderDlg, AnEmptyColourStaysEmptyUnlessTheDialogShowsItsFieldsAgain) {
    m_Person.In("Border Properties")
        .Shows("Border Color", "")
        .Shows("Border Width:", "0")
        .Types("Border Style:", "wavy")
        .Clicks("OK");
    EXPECT_EQ(Run("", "", "wide"), "0 wavy #");
    m_Person.OpensColours("Border Color").PressesInPopup({PopupKey::Return}).Clicks("OK");
    EXPECT_EQ(Run("", "", ""), "0  #c0c0c0") << "the picker starts at c0c0c0";
}

TEST_F(BorderDlg, ItsBoxesReachTheFields) {
    m_Person.In("Border Properties")
        .Types("Border Color", "00FF00")
        .OpensColours("Border Color")
        .PressesInPopup({PopupKey::Return})
        .Shows("Border Color", "00ff00")
        .Picks("Border Style:", "groove")
        .Turns("Border Width:", 2)
        .Clicks("OK");
    EXPECT_EQ(Run("solid", "112233", "3"), "5 groove #00ff00");
}

TEST_F(BorderDlg, AMixedColourIsRememberedAndACancelledOneIsNot) {
    m_Person.In("Border Properties")
        .OpensColours("Border Color")
        .PressesInPopup({PopupKey::Up, PopupKey::Space})
        .CancelsColour()
        .Shows("Border Color", "112233")
        .Then(
            [](CDialog&) { EXPECT_EQ(GetProfileString("Specify Color CALANDER", "Name39", "none"), "none"); })
        .OpensColours("Border Color")
        .PressesInPopup({PopupKey::Up, PopupKey::Space})
        .MixesColour(MakeColour(1, 2, 3))
        .Shows("Border Color", "010203")
        .Clicks("Cancel");
    EXPECT_EQ(Run("solid", "112233", "3"), "cancelled");
    EXPECT_EQ(GetProfileString("Specify Color CALANDER", "Name39"), "010203");
    m_Person.OpensColours("Border Color").PicksColour("010203").Clicks("OK");
    EXPECT_EQ(Run("solid", "112233", "3"), "3 solid #010203");
}

} // namespace orrelix
