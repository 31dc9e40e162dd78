// What every desktop promises, as tests. A test program of a desktop includes this once and names the
// desktop:
//
//     INSTANTIATE_TEST_SUITE_P(ScriptedPerson, DesktopPromises,
//                              testing::Values([]() -> std::unique_ptr<CPersonScript> {
//                                  return std::make_unique<CScriptedPerson>();
//                              }));
//
// The script that the factory makes is played before a desktop of its own, which is in force until the script
// goes.
#pragma once

#include "tests/support/person_script.h"
#include "toolkit/button.h"
#include "toolkit/combo_box.h"
#include "toolkit/desktop.h"
#include "toolkit/file_dialog.h"
#include "toolkit/list_box.h"
#include "toolkit/list_ctrl.h"
#include "toolkit/popup_window.h"
#include "toolkit/slider_ctrl.h"

#include <gtest/gtest.h>
#include <memory>

namespace promises {

struct Id {
    enum : int {
        Text = 100,
        Lines,
        Digits,
        Number,
        Colour,
        Kind,
        Fixed,
        List,
        View,
        Level,
        Add,
        More,
        Status
    };
};

inline const CDialogDescription& Description() {
    using namespace describe;
    static const CDialogDescription description{
        "Everything",
        Column(
            {Group("Boxes", {Edit(Id::Text, "&Text:"), Edit(Id::Lines, "&Lines:", STYLE_MULTI_LINE),
                             Edit(Id::Digits, "&Digits:", STYLE_DIGITS),
                             Number(Id::Number, "&Number:", 0, 50), Colour(Id::Colour, "&Colour:")}),
             ComboBox(Id::Kind, "&Kind:", {"red", "green", "blue"}, STYLE_SORTED),
             ComboBox(Id::Fixed, "&Fixed:", {"", "one", "two"}, STYLE_LIST_ONLY),
             Row({ListBox(Id::List, "L&ist:", STYLE_NONE),
                  ListView(Id::View, "&View:", STYLE_REPORT | STYLE_MULTIPLE_SELECTION | STYLE_EDIT_LABELS)}),
             Slider(Id::Level, "Level", "Low", "High", 0, 1000, 100),
             Row({Button(Id::Add, "&Add"), Button(Id::More, "&More...")}),
             Text(Id::Status, "ready", STYLE_NONE, "Status"), OkAndCancel()})};
    return description;
}

// A popup of two cells that gives its result to whoever opened it.
class CPopup : public CPopupWindow {
public:
    explicit CPopup(CString& log) : m_Log(log) {}

    const CRect& GetWindowRect() const override { return m_Rect; }
    std::vector<CToolTipText> GetToolTips() const override {
        return {{{0, 0, 40, 30}, "Left"}, {{40, 0, 80, 30}, "Right"}};
    }
    void Draw(CCanvas& canvas) const override { canvas.FillRect({0, 0, 80, 30}, MakeColour(255, 0, 0)); }
    void OnMouseMove(CPersonKey, CPoint point) override { m_Log += point.x < 40 ? "<" : ">"; }
    void OnLeftButtonUp(CPersonKey, CPoint) override { End("picked "); }
    void OnKeyDown(CPersonKey, PopupKey key) override { End(key == PopupKey::Escape ? "escaped " : "key "); }
    void OnDeactivate(CPersonKey) override { End("left "); }
    void OnClosed() override {
        m_Log += "closed ";
        delete this;
    }

private:
    void End(const char* pHow) {
        m_Log += pHow;
        GetDesktop().ClosePopup(*this);
    }

    CString& m_Log;
    CRect m_Rect = {120, 120, 200, 150};
};

class CPopupButton : public COwnerDrawnButton {
public:
    explicit CPopupButton(CString& log) : m_Log(log) {}
    CSize Measure(CSize size) override { return {size.cx, 20}; }
    void Draw(CCanvas& canvas, const CRect& rect, bool, bool) const override {
        canvas.FillRect(rect, MakeColour(0, 0, 255));
    }

protected:
    void OnClick() override { GetDesktop().OpenPopup(*new CPopup(m_Log)); }

private:
    CString& m_Log;
};

// A dialog with a control of each kind, which writes down what it is told.
class CEverythingDlg : public CDialog {
public:
    CEverythingDlg() : CDialog(Description()), m_Button(m_Log) {
        Attach(PickerOf(Id::Colour), m_Button);
        SetHandlers<CEverythingDlg>({
            {Id::Text, Notification::Changed, &CEverythingDlg::OnText},
            {Id::Number, Notification::Changed, &CEverythingDlg::OnNumber},
            {Id::Kind, Notification::ListClosed, &CEverythingDlg::OnListClosed},
            {Id::List, Notification::SelectionChanged, &CEverythingDlg::OnSelected},
            {Id::List, Notification::DoubleClicked, &CEverythingDlg::OnDoubleClicked},
            {Id::View, Notification::Clicked, &CEverythingDlg::OnViewClicked},
            {Id::View, Notification::LabelEditEnded, &CEverythingDlg::OnLabel},
            {Id::Add, Notification::Clicked, &CEverythingDlg::OnAdd},
            {Id::More, Notification::Clicked, &CEverythingDlg::OnMore},
        });
    }

    CString m_Text = "old";
    CString m_Lines = "first\r\nsecond";
    CString m_Digits;
    CString m_Number = "12";
    CString m_Kind = "green";
    int m_nFixed = 1;
    int m_nRows = 3;
    CString m_Log;
    std::function<void(CEverythingDlg&)> m_OnMore = [](CEverythingDlg&) {};

    using CDialog::Enable;

protected:
    void DoDataExchange(CDataExchange& exchange) override {
        exchange.Text(Id::Text, m_Text);
        exchange.Text(Id::Lines, m_Lines);
        exchange.Text(Id::Digits, m_Digits);
        exchange.Text(Id::Number, m_Number);
        exchange.Text(Id::Kind, m_Kind);
        exchange.Index(Id::Fixed, m_nFixed);
    }
    void OnInitDialog() override {
        CListCtrl& view = Item<CListCtrl>(Id::View);
        view.InsertColumn(0, "Name", 90);
        view.InsertColumn(1, "Link", 40);
        for (int nRow = 0; nRow < m_nRows; ++nRow) {
            Item<CListBox>(Id::List).AddString("row " + ToText(nRow));
            view.InsertItem(nRow, "item " + ToText(nRow));
            view.SetItemText(nRow, 1, "link " + ToText(nRow));
        }
        Item<CSliderCtrl>(Id::Level).SetPos(300);
        UpdateData(false);
        SetSpin(Id::Number, m_Number);
    }

private:
    void OnText() { m_Log += "text "; }
    void OnNumber() { m_Log += "number "; }
    void OnListClosed() { m_Log += "list closed "; }
    void OnSelected() { m_Log += "selected "; }
    void OnDoubleClicked() { m_Log += "double "; }
    void OnViewClicked() { m_Log += "view "; }
    void OnLabel() {
        const CListCtrl::CLabelEdit& edit = Item<CListCtrl>(Id::View).GetLabelEdit();
        m_Log += edit.m_bCancelled ? "label kept " : "label edited ";
        if (!edit.m_bCancelled)
            Item<CListCtrl>(Id::View).SetItemText(edit.m_nRow, 0, edit.m_Text);
    }
    void OnAdd() {
        UpdateData(true);
        Item<CListBox>(Id::List).AddString(m_Text);
        Item<CListCtrl>(Id::View).EditLabel(1);
        Item<CControl>(Id::Status).SetWindowText("added " + m_Text);
        m_Text = "";
        UpdateData(false);
        Enable(Id::Add, false);
    }
    void OnMore() { m_OnMore(*this); }

    CPopupButton m_Button;
};

class CPathDialog : public CFileDialog {
public:
    CPathDialog() : CFileDialog("start.gif", "Images | *.gif;*.jpg ||") { AddEdit("Web Path:", "old/"); }
    CString m_WebPath;

protected:
    void OnAddedEditChanged() override { m_WebPath = GetAddedEdit()->GetWindowText(); }
};

} // namespace promises

class DesktopPromises : public testing::TestWithParam<std::unique_ptr<CPersonScript> (*)()> {
protected:
    std::unique_ptr<CPersonScript> m_Script = GetParam()();
    CPersonScript& m_Person = *m_Script;
    promises::CEverythingDlg m_Dialog;
};

TEST_P(DesktopPromises, TheDialogComesUpAsTheProgramSetItUpAndNobodyIsNotified) {
    m_Person.In("Everything")
        .Shows("Text:", "old")
        .Shows("Lines:", "first\r\nsecond")
        .Shows("Boxes / Number:", "12")
        .Shows("Kind:", "green")
        .ShowsRows("Kind:", {"blue", "green", "red"})
        .ShowsSelected("Kind:", {1})
        .ShowsSelected("Fixed:", {1})
        .ShowsRows("List:", {"row 0", "row 1", "row 2"})
        .ShowsSelected("List:", {})
        .ShowsRows("View:", {"item 0 | link 0", "item 1 | link 1", "item 2 | link 2"})
        .ShowsPosition("Level", 300)
        .Shows("Status", "ready")
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Log, "");
}

TEST_P(DesktopPromises, WhatThePersonLeavesReachesTheFields) {
    m_Person.In("Everything")
        .Types("Text:", "Gr\xc3\xbc\xc3\x9f"
                        "e & <b>")
        .Types("Lines:", "one\r\n\r\nthree")
        .Types("Digits:", "4a5")
        .Types("Kind:", "violet")
        .Picks("Fixed:", "two")
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Text, "Gr\xc3\xbc\xc3\x9f"
                               "e & <b>");
    EXPECT_EQ(m_Dialog.m_Lines, "one\r\n\r\nthree");
    EXPECT_EQ(m_Dialog.m_Digits, "45");
    EXPECT_EQ(m_Dialog.m_Kind, "violet");
    EXPECT_EQ(m_Dialog.m_nFixed, 2);
}

TEST_P(DesktopPromises, WhatAHandlerChangesShowsAtOnce) {
    m_Person.In("Everything")
        .Types("Text:", "new")
        .Clicks("Add")
        .ShowsDisabled("Add")
        .Shows("Text:", "")
        .CancelsRenaming("View:")
        .Shows("Status", "added new")
        .ShowsRows("List:", {"row 0", "row 1", "row 2", "new"})
        .Then([this](CDialog&) { m_Dialog.Enable(promises::Id::Add, true); })
        .ShowsEnabled("Add")
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
}

TEST_P(DesktopPromises, ASpinControlStepsTheNumberInItsBoxWithinItsRange) {
    m_Person.In("Everything")
        .Turns("Number:", 2)
        .Shows("Number:", "14")
        .Types("Number:", "48")
        .Turns("Number:", 1)
        .Shows("Number:", "49")
        .Turns("Number:", 3)
        .Shows("Number:", "50")
        .Types("Number:", "2em")
        .Turns("Number:", -1)
        .Shows("Number:", "49")
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Log.Left(7), "number ");
}

TEST_P(DesktopPromises, AComboBoxTellsEachClosingOfItsList) {
    m_Person.In("Everything")
        .Picks("Kind:", "red")
        .Shows("Kind:", "red")
        .Picks("Kind:", "red")
        .ClosesList("Kind:")
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Log, "list closed list closed list closed ");
    EXPECT_EQ(m_Dialog.m_Kind, "red");
}

TEST_P(DesktopPromises, RowsOfAListBoxAreSelectedAndDoubleClicked) {
    m_Person.In("Everything")
        .SelectsRow("List:", 2)
        .ShowsSelected("List:", {2})
        .DoubleClicks("List:", "row 1")
        .ShowsSelected("List:", {1})
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Log, "selected selected double ");
}

TEST_P(DesktopPromises, SeveralRowsOfAListViewAreSelected) {
    m_Person.In("Everything")
        .SelectsRows("View:", {0, 2})
        .ShowsSelected("View:", {0, 2})
        .Then([](CDialog& dialog) {
            dialog.Item<CListCtrl>(promises::Id::View).DeleteItem(0);
            dialog.Item<CListCtrl>(promises::Id::View).InsertItem(0, "top");
        })
        .ShowsRows("View:", {"top | ", "item 1 | link 1", "item 2 | link 2"})
        .ShowsSelected("View:", {2})
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Log.Left(5), "view ");
}

TEST_P(DesktopPromises, TheProgramAsksForALabelToBeEditedAndThePersonDoesOrDoesNot) {
    m_Person.In("Everything")
        .Clicks("Add")
        .Renames("View:", "other.gif")
        .ShowsRows("View:", {"item 0 | link 0", "other.gif | link 1", "item 2 | link 2"})
        .Then([this](CDialog&) { m_Dialog.Enable(promises::Id::Add, true); })
        .Clicks("Add")
        .CancelsRenaming("View:")
        .ShowsRows("View:", {"item 0 | link 0", "other.gif | link 1", "item 2 | link 2"})
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Log, "label edited label kept ");
}

TEST_P(DesktopPromises, ASliderMoves) {
    int nLevel = 0;
    m_Person.In("Everything")
        .Moves("Level", 700)
        .ShowsPosition("Level", 700)
        .Then([&](CDialog& dialog) { nLevel = dialog.Item<CSliderCtrl>(promises::Id::Level).GetPos(); })
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(nLevel, 700);
}

TEST_P(DesktopPromises, EscapeCancelsAndEnterPressesTheDefaultButton) {
    m_Person.In("Everything").Types("Text:", "new").PressesEscape();
    EXPECT_EQ(m_Dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(m_Dialog.m_Text, "old");
    m_Person.In("Everything").Types("Text:", "newer").PressesEnter();
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Text, "newer");
}

TEST_P(DesktopPromises, DialogsNestAndTheOuterOneGoesOn) {
    m_Dialog.m_OnMore = [](promises::CEverythingDlg& outer) {
        promises::CEverythingDlg inner;
        inner.m_Text = "inner";
        outer.m_Log += inner.DoModal() == IDOK ? inner.m_Text : "cancelled";
    };
    m_Person.In("Everything")
        .Types("Text:", "outer")
        .Clicks("More...")
        .Shows("Text:", "inner")
        .Types("Text:", "changed")
        .Clicks("OK")
        .Shows("Text:", "outer")
        .Clicks("Cancel");
    EXPECT_EQ(m_Dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(m_Dialog.m_Log, "text changed");
}

TEST_P(DesktopPromises, MessageBoxesGiveThePersonsAnswer) {
    m_Dialog.m_OnMore = [](promises::CEverythingDlg& dialog) {
        for (MessageBoxKind kind :
             {MessageBoxKind::OkCancel, MessageBoxKind::OkCancel, MessageBoxKind::Warning})
            dialog.m_Log += AfxMessageBox("Do you want to Delete?", kind) == IDOK ? "yes " : "no ";
    };
    m_Person.In("Everything")
        .Clicks("More...")
        .Answers("Do you want to Delete?", IDOK)
        .Answers("Do you want to Delete?", IDCANCEL)
        .Answers("Do you want to Delete?", IDOK)
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Log, "yes no yes ");
}

TEST_P(DesktopPromises, APopupTakesMouseAndKeysAndClosesOnce) {
    m_Person.In("Everything")
        .OpensColours("Boxes / Colour:")
        .PicksColour("Right")
        .OpensColours("Colour:")
        .PressesInPopup({PopupKey::Escape})
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Log, ">picked closed escaped closed ");
}

TEST_P(DesktopPromises, AFileIsChosenAndTheAddedBoxIsRead) {
    promises::CPathDialog files;
    m_Dialog.m_OnMore = [&](promises::CEverythingDlg& dialog) {
        dialog.m_Log += files.DoModal() == IDOK ? files.GetPathName() + " " : "none ";
    };
    m_Person.In("Everything")
        .Clicks("More...")
        .CancelsFile()
        .Clicks("More...")
        .ChoosesFile("\\pictures\\a.gif", "img/")
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Log, "none \\pictures\\a.gif ");
    EXPECT_EQ(files.m_WebPath, "img/");
}

TEST_P(DesktopPromises, AColourIsMixedOrNot) {
    CColour colour = MakeColour(1, 2, 3);
    m_Dialog.m_OnMore = [&](promises::CEverythingDlg& dialog) {
        dialog.m_Log += GetDesktop().RunColourDialog(colour) ? "mixed " : "not ";
    };
    m_Person.In("Everything")
        .Clicks("More...")
        .CancelsColour()
        .Clicks("More...")
        .MixesColour(MakeColour(17, 34, 51))
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
    EXPECT_EQ(m_Dialog.m_Log, "not mixed ");
    EXPECT_EQ(colour, MakeColour(17, 34, 51));
}

TEST_P(DesktopPromises, ADialogThatRunsAgainBeginsAfresh) {
    m_Person.In("Everything").Clicks("Add").CancelsRenaming("View:").Clicks("Cancel");
    EXPECT_EQ(m_Dialog.DoModal(), IDCANCEL);
    m_Person.In("Everything")
        .ShowsEnabled("Add")
        .ShowsRows("List:", {"row 0", "row 1", "row 2"})
        .Clicks("OK");
    EXPECT_EQ(m_Dialog.DoModal(), IDOK);
}
