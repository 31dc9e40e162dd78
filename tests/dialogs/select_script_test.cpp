#include "dialogs/select_script.h"
#include "tests/support/person_test.h"

namespace orrelix {

namespace {

const std::vector<CString> kNames = {"Animate Text",      "Slide Text",    "Calender",
                                     "Link Select Table", "Scroll Text",   "Fade Select Box",
                                     "ToolTip",           "Cool Calender", "Color Link"};

class SelectScript : public PersonTest {
protected:
    const CString m_List = "DHTML Scripts";
    CPersonScript& m_Steps = m_Person.In("Select a DHTML Scripts");
    CSelectScriptDlg m_Dialog;
};

} // namespace

TEST_F(SelectScript, ASelectedEffectIsDescribedAndTaken) {
    m_Steps.ShowsRows(m_List, kNames).ShowsSelected(m_List, {});
    m_Steps.Shows("Description", "Orrelix can provide 10 DHTML scripts to you")
        .Does("selects DHTML Scripts = 8");
    m_Steps.Shows("Description", "DHTML Color Link can show a Url with multilpe colors ").Does("clicks OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_nSelected, 8);
}

TEST_F(SelectScript, OkWithoutASelectionKeepsTheDialogOpen) {
    m_Steps.Does({"clicks OK", "reads and closes Please select a DHTML Scripts to add!",
                  "double-clicks DHTML Scripts = Slide Text"});
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_nSelected, 1);
}

TEST_F(SelectScript, ASecondRunBeginsAfresh) {
    m_Steps.Does({"selects DHTML Scripts = 3", "clicks Cancel"});
    EXPECT_EQ(m_Dialog.DoModal(), IDCANCEL);
    m_Steps.Then([](CDialog&) { throw std::bad_alloc(); });
    EXPECT_THROW(m_Dialog.DoModal(), std::bad_alloc);
    m_Steps.ShowsRows(m_List, kNames).ShowsSelected(m_List, {}).Does("presses Escape");
    EXPECT_EQ(m_Dialog.DoModal(), IDCANCEL);
}

} // namespace orrelix
