// What the walks through the dialogs of fonts don't show.
#include "controls/font_dlg.h"
#include "tests/support/person_test.h"

namespace orrelix {

using FontDlg = PersonTest;

TEST_F(FontDlg, DoubleClicksGrowAFamilyListAndASizeThatIsNoNumberStaysUntilItIsTurned) {
    const CString face = "Specify the Font Face";
    const CString insert = "double-clicks Double Click to Insert into above = ";
    m_Person.In("Font Properties")
        .ShowsRows("Double Click to Insert into above", {"Arial", "Courier New", "Verdana"});
    m_Person.Does(insert + "Verdana")
        .Shows(face, "Verdana")
        .Does(insert + "Arial")
        .Shows(face, "Verdana,Arial");
    m_Person.Does({"types " + face + " = Verdana,serif", insert + "Courier New"});
    m_Person.Shows("Font Size", "larger").Does("clicks OK");
    CFontPropertiesDlg dialog;
    dialog.m_FontSize = "larger";
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_FontFace, "Verdana,serif,Courier New");
    EXPECT_EQ(dialog.m_FontSize, "larger");
    m_Person.Does("turns Font Size = 3").Shows("Font Size", "3").Does("clicks OK");
    dialog.DoModal();
    EXPECT_EQ(dialog.m_FontSize, "3");
}

TEST_F(FontDlg, ChoicesComeInTheirOrder) {
    m_Person.In("Calender Font Style").ShowsRows("Font Style:", {"italic", "normal", "oblique"});
    m_Person.ShowsRows("Text Align:", {"left", "center", "right", "justify"});
    m_Person.ShowsSelected("Font Weight:", {6}).Does("clicks OK");
    CCalanderFontDlg dialog;
    dialog.m_FontWeight = "bold";
    EXPECT_EQ(dialog.DoModal(), IDOK);
}

} // namespace orrelix
