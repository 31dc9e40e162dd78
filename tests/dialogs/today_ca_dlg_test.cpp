#include "dialogs/today_ca_dlg.h"
#include "tests/support/person_test.h"

#include <tuple>

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
    const std::tuple<const char*, std::vector<int>, const char*> cases[] = {
        {"M", {0}, "S"},       {",T", {0}, "S"},       {"II", {1}, "VII"}, {"\xc8\xfd", {2}, "\xc8\xd5"},
        {"", {2}, "\xc8\xd5"}, {"\u4e00", {}, "last"},
    };
    for (const auto& [pFirst, selected, pLast] : cases) {
        m_Gadget.m_Titles = {pFirst, "", "", "", "", "", "last"};
        m_Steps.ShowsSelected("Title Style:", selected).Does("clicks OK");
        EXPECT_EQ(Run(), IDOK);
        ASSERT_EQ(m_Gadget.m_Titles.GetSize(), 7);
        EXPECT_EQ(m_Gadget.m_Titles[6], pLast) << pFirst;
    }
    m_Gadget.m_Titles.RemoveAll();
    m_Steps.ShowsSelected("Title Style:", {}).Does({"picks Title Style = I,II,III...", "clicks OK"});
    EXPECT_EQ(Run(), IDOK);
    EXPECT_EQ(m_Gadget.m_Titles, CStringArray({"I", "II", "III", "IV", "V", "VI", "VII"}));
}

} // namespace orrelix
