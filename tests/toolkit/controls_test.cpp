// What the control kinds do by themselves; what shows of it is among the promises of desktops.
#include "toolkit/combo_box.h"
#include "toolkit/dialog_description.h"
#include "toolkit/file_dialog.h"
#include "toolkit/list_box.h"
#include "toolkit/list_ctrl.h"
#include "toolkit/slider_ctrl.h"
#include "toolkit/spin_button_ctrl.h"

#include <gtest/gtest.h>
#include <tuple>

namespace orrelix {

namespace {

template <class TControl>
void CreateWith(TControl& control, unsigned nStyle) {
    control.Create({.m_nStyle = nStyle}, nullptr);
}

CString RowsOf(const CListBox& list) {
    CString rows;
    for (int nRow = 0; nRow < list.GetCount(); ++nRow)
        rows += list.GetText(nRow) + (nRow == list.GetCurSel() ? "* " : " ");
    return rows;
}

// Counts what a window would be told.
struct CEar : CControlObserver {
    void OnControlChanged(ControlChange change, int, int nCount) override {
        if (change == ControlChange::Text)
            ++m_nTexts;
        if (change == ControlChange::RowsInserted)
            m_nRows += nCount;
        if (change == ControlChange::RowsRemoved)
            m_nRows -= nCount;
    }
    int m_nTexts = 0;
    int m_nRows = 0;
};

} // namespace

TEST(SpinButtonCtrl, ItsPositionIsSixteenBitsClippedToItsRangeAndWrittenIntoItsBox) {
    const std::pair<int, const char*> cases[] = {{0, "0"},     {5000, "5000"}, {5001, "5000"},
                                                 {-1, "0"},    {65536, "0"},   {70000, "4464"},
                                                 {40000, "0"}, {32767, "5000"}};
    for (const auto& [nSet, pShown] : cases) {
        CEdit edit;
        CSpinButtonCtrl spin;
        spin.SetBuddy(&edit);
        spin.SetRange(0, 5000);
        EXPECT_EQ(edit.GetWindowText(), "") << "a range writes nothing";
        spin.SetPos(nSet);
        EXPECT_EQ(edit.GetWindowText(), pShown) << nSet;
        EXPECT_EQ(spin.GetPos(), ToInteger(pShown)) << nSet;
    }
}

TEST(SpinButtonCtrl, SettingTheSamePositionRestoresItsBox) {
    CEdit edit;
    CSpinButtonCtrl spin;
    spin.SetBuddy(&edit);
    spin.SetPos(12);
    edit.SetWindowText("12px");
    spin.SetPos(12);
    EXPECT_EQ(edit.GetWindowText(), "12");
}

TEST(ListBox, TheSelectionStaysOnItsRowWhileRowsComeAndGo) {
    CListBox list;
    CreateWith(list, STYLE_NONE);
    for (const char* pText : {"b", "a", "c"})
        list.AddString(pText);
    list.SetCurSel(1);
    list.InsertString(0, "new");
    EXPECT_EQ(RowsOf(list), "new b a* c ");
    list.DeleteString(0);
    list.DeleteString(2);
    EXPECT_EQ(RowsOf(list), "b a* ");
    list.DeleteString(1);
    EXPECT_EQ(RowsOf(list), "b ");
    list.DeleteString(7);
    EXPECT_EQ(list.GetText(-1), "");
    EXPECT_EQ(list.InsertString(5, "far"), -1);
}

TEST(ListBox, ASortedOneDisregardsCase) {
    CListBox list;
    CreateWith(list, STYLE_SORTED);
    for (const char* pText : {"Verdana", "arial", "\xc3\x84rger", "Times", "Arial"})
        list.AddString(pText);
    EXPECT_EQ(RowsOf(list), "arial Arial Times Verdana \xc3\x84rger ");
}

TEST(ComboBox, ATextThatTheListHoldsSelectsItsRow) {
    CComboBox box;
    box.Create({.m_nStyle = STYLE_SORTED, .m_Choices = {"italic", "oblique", "normal"}}, nullptr);
    box.SetWindowText("normal");
    EXPECT_EQ(box.GetCurSel(), 1);
    box.SetWindowText("nor");
    EXPECT_EQ(box.GetCurSel(), -1);
    EXPECT_EQ(box.GetWindowText(), "nor");
    box.SetCurSel(9);
    EXPECT_EQ(box.GetWindowText(), "");
}

TEST(ComboBox, OneWithoutEditPartShowsNothingThatItsListDoesNotHold) {
    CComboBox box;
    box.Create({.m_nStyle = STYLE_LIST_ONLY, .m_Choices = {"", "self"}}, nullptr);
    box.SetWindowText("_blank");
    EXPECT_EQ(box.GetCurSel(), -1);
    EXPECT_EQ(box.GetWindowText(), "");
    box.SetWindowText("self");
    EXPECT_EQ(box.GetCurSel(), 1);
}

TEST(ListCtrl, MarksStayOnTheirRows) {
    CListCtrl list;
    CreateWith(list, STYLE_REPORT | STYLE_MULTIPLE_SELECTION);
    for (int nRow = 0; nRow < 4; ++nRow)
        list.SelectItem(list.InsertItem(nRow, ToText(nRow)));
    list.SelectItem(0, false);
    list.SetFocusedItem(2);
    list.SetHotItem(3);
    list.DeleteItem(0);
    EXPECT_EQ(list.GetSelectedCount(), 3);
    EXPECT_EQ(list.GetFocusedItem(), 1);
    EXPECT_EQ(list.GetHotItem(), 2);
    list.InsertItem(0, "new");
    EXPECT_EQ(list.GetFirstSelected(), 1);
    EXPECT_EQ(list.GetHotItem(), 3);
    list.DeleteItem(3);
    EXPECT_EQ(list.GetHotItem(), -1);
    list.SetFocusedItem(2);
    list.DeleteItem(2);
    EXPECT_EQ(list.GetFocusedItem(), 1) << "the focus of the last row goes to the new last row";
}

TEST(ListCtrl, WhereOneRowCanBeSelectedTheNextTakesItsPlace) {
    CListCtrl list;
    CreateWith(list, STYLE_SORTED);
    for (const char* pText : {"b.gif", "a.gif", "C.gif"})
        list.InsertItem(0, pText);
    EXPECT_EQ(list.GetItemText(2, 0), "C.gif");
    list.SelectItem(0);
    list.SelectItem(2);
    EXPECT_FALSE(list.IsSelected(0));
    EXPECT_EQ(list.GetFirstSelected(), 2);
    list.EditLabel(0); // labels of this one can't be edited
    EXPECT_EQ(list.GetLabelEdit().m_nRow, -1);
}

TEST(SliderCtrl, ItsThumbStaysWithinTheRange) {
    CSliderCtrl slider;
    slider.SetRange(0, 1000);
    slider.SetPos(4000);
    EXPECT_EQ(slider.GetPos(), 1000);
    slider.SetRange(0, 100);
    EXPECT_EQ(slider.GetPos(), 100);
}

TEST(Control, ItsObserverHearsOfEachChangeOnceAndOfNothingElse) {
    CEar ear;
    CListBox list;
    CreateWith(list, STYLE_NONE);
    list.SetObserver(&ear);
    for (int nRow = 0; nRow < 5000; ++nRow)
        list.AddString(ToText(nRow));
    list.DeleteString(17);
    EXPECT_EQ(ear.m_nRows, 4999);
    list.ResetContent();
    EXPECT_EQ(ear.m_nRows, 0);

    CEdit edit;
    edit.SetObserver(&ear);
    edit.SetWindowText("a");
    edit.SetWindowText("a");
    EXPECT_EQ(ear.m_nTexts, 1);
}

TEST(DialogDescription, MnemonicsAndNamesAreReadFromTheTexts) {
    const std::tuple<const char*, const char*, char> cases[] = {
        {"&Width:", "Width:", 'w'}, {"URL(&U)", "URL(U)", 'u'}, {"Fish && &Chips", "Fish & Chips", 'c'},
        {"Plain", "Plain", 0},      {"R&&D", "R&D", 0},         {"End&", "End&", 0}};
    for (const auto& [pText, pShown, mnemonic] : cases) {
        EXPECT_EQ(WithoutMnemonic(pText), pShown);
        EXPECT_EQ(MnemonicOf(pText), mnemonic) << pText;
    }
    EXPECT_EQ(AccessibleNameOf({.m_pLabel = "&Width:"}), "Width");
    EXPECT_EQ(AccessibleNameOf({.m_pLabel = "URL:", .m_pCaption = "...", .m_pName = "Edit URL"}), "Edit URL");
}

TEST(FileDialog, ItsFilterIsPairsOfNamesAndPatterns) {
    const CFileDialog dialog("", "Image Files(*.GIF,*.JPG.*.JPEG) | *.gif;*.jpg;*.jpeg ||");
    ASSERT_EQ(dialog.GetFilters().size(), 1u);
    EXPECT_EQ(dialog.GetFilters()[0].m_Name, "Image Files(*.GIF,*.JPG.*.JPEG)");
    EXPECT_EQ(dialog.GetFilters()[0].m_Patterns, CStringArray({"*.gif", "*.jpg", "*.jpeg"}));
    EXPECT_TRUE(CFileDialog("", "|").GetFilters().empty());
}

} // namespace orrelix
