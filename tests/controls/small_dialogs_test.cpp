// What the walks through the dialogs of borders and fonts don't show.
#include "controls/border_dlg.h"
#include "controls/font_dlg.h"
#include "platform/profile.h"
#include "tests/support/person_test.h"

namespace orrelix {

using BorderDlg = PersonTest;
using FontDlg = PersonTest;

TEST_F(BorderDlg, AMixedColourIsRememberedAlsoByACancelledDialogAndACancelledOneIsNot) {
    const auto stored = [] { return GetProfileString("Specify Color CALANDER", "Name39", "none"); };
    m_Person.In("Border Properties").Types("Border Color", "123456").OpensColours("Border Color");
    m_Person.PressesInPopup({PopupKey::Up, PopupKey::Space}).CancelsColour();
    m_Person.Then([&](CDialog&) { EXPECT_EQ(stored(), "none"); }).OpensColours("Border Color");
    m_Person.PressesInPopup({PopupKey::Up, PopupKey::Space})
        .MixesColour(MakeColour(1, 2, 3))
        .Clicks("Cancel");
    EXPECT_EQ(CBorderPropertiesDlg().DoModal(), IDCANCEL);
    EXPECT_EQ(stored(), "010203");
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

} // namespace orrelix
