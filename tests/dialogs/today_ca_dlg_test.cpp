#include "dialogs/today_ca_dlg.h"
#include "tests/support/person_test.h"

namespace orrelix {

namespace {

class TodayCaDlg : public PersonTest {
protected:
    int Run() {
        CTodayCaDlg dialog;
        dialog.m_pGadget = &m_Gadget;
        return dialog.DoModal();
    }

    CTodayCa m_Gadget;
    CPersonScript& m_Steps = m_Person.In("Cool Calender");
};

} // namespace

TEST_F(TodayCaDlg, TheFirstTitleTellsTheStyleAndTitlesOfNoneStay) {
    const struct {
        const char* m_pFirst;
        std::vector<int> m_Selected;
        const char* m_pLast; // after an untouched OK
    } cases[] = {
        {"M", {0}, "S"},       {",T", {0}, "S"},       {"II", {1}, "VII"}, {"\xc8\xfd", {2}, "\xc8\xd5"},
        {"", {2}, "\xc8\xd5"}, {"\u4e00", {}, "last"},
    };
    for (const auto& c : cases) {
        m_Gadget.m_Titles = {c.m_pFirst, "", "", "", "", "", "last"};
        m_Steps.ShowsSelected("Title Style:", c.m_Selected).Clicks("OK");
        EXPECT_EQ(Run(), IDOK);
        ASSERT_EQ(m_Gadget.m_Titles.GetSize(), 7);
        EXPECT_EQ(m_Gadget.m_Titles[6], c.m_pLast) << c.m_pFirst;
    }
    m_Gadget.m_Titles.RemoveAll();
    m_Steps.ShowsSelected("Title Style:", {}).Picks("Title Style:", "I,II,III...").Clicks("OK");
    EXPECT_EQ(Run(), IDOK);
    EXPECT_EQ(m_Gadget.m_Titles, CStringArray({"I", "II", "III", "IV", "V", "VI", "VII"}));
}

TEST_F(TodayCaDlg, NumbersAndColoursThatAreNoneShowAsTheyAreButInYearAndMonth) {
    for (CString* pText :
         {&m_Gadget.m_BorderWidth, &m_Gadget.m_ButtonWidth, &m_Gadget.m_TodayAreaSize,
          &m_Gadget.m_SatTitle.m_Width, &m_Gadget.m_SunCell.m_Width, &m_Gadget.m_InputAreaSize})
        *pText = "90%";
    for (CString* pText : {&m_Gadget.m_BorderColor, &m_Gadget.m_ButtonColor, &m_Gadget.m_TodayTextColor,
                           &m_Gadget.m_SatTitle.m_TextColor, &m_Gadget.m_SundayBoxColor,
                           &m_Gadget.m_InputAreaColor, &m_Gadget.m_InputBoxColor})
        pText->Empty();
    m_Steps.Shows("Border Width:", "90%").Shows("Border Color:", "c0c0c0");
    const struct {
        const char* m_pButton;
        const char* m_pTitle;
        const char* m_pNumber;
        const char* m_pColour;
        bool m_bYearMonth = false;
    } parts[] = {
        {"Click Button...", "Click Button Area Style", "Button Width ", "Button Color:"},
        {"Current Day...", "Current Day input Style", "Input Area Size:", "Text Color"},
        {"Saturday Title...", "Calender Title Style", "Box Width:", "Text Color:"},
        {"Sunday...", "Calender Date Style", "Box Width:", "Box Color:"},
        {"Year/Month...", "Year/Month Input Box Style", "Input Area Size:", "Box Color:", true},
    };
    for (const auto& part : parts) {
        m_Steps.Clicks(part.m_pButton).In(part.m_pTitle);
        m_Steps.Shows(part.m_pNumber, part.m_bYearMonth ? "90" : "90%");
        m_Steps.Shows(part.m_pColour, part.m_bYearMonth ? "" : "c0c0c0").Clicks("OK").In("Cool Calender");
    }
    m_Steps.Clicks("OK");
    EXPECT_EQ(Run(), IDOK);
    EXPECT_EQ(m_Gadget.m_ButtonWidth + "," + m_Gadget.m_InputAreaSize, "90%,90");
    EXPECT_EQ(m_Gadget.m_SundayBoxColor + "," + m_Gadget.m_InputAreaColor, "c0c0c0,");

    // One picked colour sets them all.
    m_Steps.Clicks("Year/Month...").In("Year/Month Input Box Style").OpensColours("Input Area Color:");
    m_Steps.PicksColour("Red").Shows("Box Color:", "c0c0c0").Clicks("OK").In("Cool Calender").Clicks("OK");
    EXPECT_EQ(Run(), IDOK);
    EXPECT_EQ(m_Gadget.m_InputAreaColor + "," + m_Gadget.m_InputBoxColor, "ff0000,c0c0c0");
}

} // namespace orrelix
