#include "dialogs/tool_tip_dlg.h"
#include "tests/support/person_test.h"

namespace orrelix {

namespace {

class ToolTipDlg : public PersonTest {
protected:
    int Run() {
        CToolTipDlg dialog;
        dialog.m_pGadget = &m_Gadget;
        return dialog.DoModal();
    }

    CToolTip m_Gadget;
    CPersonScript& m_Steps = m_Person.In("ToolTip");
};

} // namespace

TEST_F(ToolTipDlg, EachButtonFollowsItsTagWhenTheListCloses) {
    m_Steps.ShowsEnabled("Url.").ShowsEnabled("...").Types("HTML Tag:", "h1").Types("ToolTip Tag:", "i");
    m_Steps.ShowsEnabled("Url.").ShowsEnabled("...").ClosesList("HTML Tag:").ShowsDisabled("Url.");
    m_Steps.ShowsEnabled("...").ClosesList("ToolTip Tag:").ShowsDisabled("...");
    m_Steps.Picks("HTML Tag:", "a").ShowsEnabled("Url.").Picks("HTML Tag:", "td").ShowsDisabled("Url.");
    m_Steps.Picks("ToolTip Tag:", "marquee").ShowsEnabled("...").Picks("ToolTip Tag:", "span").Clicks("OK");
    EXPECT_EQ(Run(), IDOK);
    EXPECT_EQ(m_Gadget.m_HtmlTag + " " + m_Gadget.m_TipTag, "td span");
    EXPECT_EQ(m_Gadget.m_MarqueeWidth, "");
    m_Steps.ShowsDisabled("Url.").ShowsDisabled("...").Types("ToolTip Tag:", "marquee").Clicks("OK");
    EXPECT_EQ(Run(), IDOK);
    EXPECT_EQ(m_Gadget.m_MarqueeWidth, "") << "nothing has set it since";
}

TEST_F(ToolTipDlg, AnImageComesWithItsDirectoryFromTheFileDialogAlone) {
    CTemporaryDirectory directory;
    const CString image = directory.Write("a.gif", "");
    m_Gadget.m_ImagePath = "old/";
    m_Steps.Clicks("image...").In("Insert an image File").Shows("Width:", "0").Clicks("OK");
    m_Steps.In("ToolTip").Clicks("OK");
    Run();
    EXPECT_EQ(m_Gadget.m_Image + m_Gadget.m_ImagePath + m_Gadget.m_ImageSize.m_Width, "old/0");
    m_Steps.Clicks("image...").In("Insert an image File").Clicks("...").CancelsFile("lost");
    m_Steps.Types("Border:", "1px").Clicks("...").ChoosesFile(image).Shows("Border:", "1px");
    m_Steps.Clicks("...").ChoosesFile(image, "img\\small").Clicks("OK").In("ToolTip").Clicks("OK");
    Run();
    EXPECT_EQ(m_Gadget.m_Image, image);
    EXPECT_EQ(m_Gadget.m_ImagePath, "img/small/");
    EXPECT_EQ(m_Gadget.m_ImageSize.m_Border, "1px");
}

} // namespace orrelix
