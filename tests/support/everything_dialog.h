// A dialog with a control of each kind, on which desktops are tried. It writes down what it is told, where
// all can read it, and a click on "More..." does what the box "Kind:" says: see kMore.
#pragma once

#include "controls/field_dialog.h"
#include "toolkit/button.h"
#include "toolkit/combo_box.h"
#include "toolkit/desktop.h"
#include "toolkit/dialog.h"
#include "toolkit/file_dialog.h"
#include "toolkit/list_box.h"
#include "toolkit/list_ctrl.h"
#include "toolkit/slider_ctrl.h"

#include <functional>
#include <memory>
#include <new>

namespace orrelix {

namespace everything {

struct Id {
    enum : int {
        Text = 100,
        Path,
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
                             Edit(Id::Path, "&Path:", STYLE_PATH), Edit(Id::Digits, "&Digits:", STYLE_DIGITS),
                             Number(Id::Number, "&Number:", 0, 50), Colour(Id::Colour, "&Colour:")}),
             ComboBox(Id::Kind, "&Kind:", {"red", "green", "blue"}, STYLE_SORTED),
             ComboBox(Id::Fixed, "&Fixed:", {"", "one", {"zh", "Chinese \xe4\xb8\x80"}}, STYLE_LIST_ONLY),
             Row({ListBox(Id::List, "L&ist:", STYLE_NONE),
                  ListView(Id::View, "&View:", STYLE_REPORT | STYLE_MULTIPLE_SELECTION | STYLE_EDIT_LABELS)}),
             Slider(Id::Level, "Level", "Low", "High", 0, 1000, 100),
             Row({Button(Id::Add, "&Add"), Button(Id::More, "&More...")}),
             Text(Id::Status, "ready", STYLE_NONE, "Status"), OkAndCancel()})};
    return description;
}

class CPathDialog : public CFileDialog {
public:
    CPathDialog() : CFileDialog("start.gif", "Images | *.gif;*.jpg ||") { AddEdit("Web Path:", "old/"); }
    CString m_WebPath;

protected:
    void OnAddedEditChanged() override { m_WebPath = GetAddedEdit()->GetWindowText(); }
};

class CEverythingDlg : public CFieldDialog {
public:
    CEverythingDlg() : CFieldDialog(Description()) {
        AddFields({{Id::Text, m_Text},
                   {Id::Lines, m_Lines},
                   {Id::Path, m_Path},
                   {Id::Digits, m_Digits},
                   {Id::Number, m_Number},
                   {Id::Kind, m_Kind},
                   {Id::Fixed, m_Fixed}});
        AddColour(Id::Colour, m_Colour, "");
        SetMessageHandler(COLOUR_POPUP_OPENED, [this](unsigned long, long) { Log("opened"); });
        SetMessageHandler(COLOUR_POPUP_CLOSED, [this](unsigned long, long) { Log("closed"); });
        ShowBeside(Id::More, [this] { return Item<CControl>(Id::Kind).GetWindowText(); });
        const auto log = [this](int nId, Notification notification, const char* pWord) {
            SetHandler(nId, notification, [this, pWord] { Log(pWord); });
        };
        log(Id::Text, Notification::Changed, "text");
        log(Id::Number, Notification::Changed, "number");
        log(Id::Kind, Notification::ListClosed, "list closed");
        log(Id::List, Notification::SelectionChanged, "selected");
        log(Id::List, Notification::DoubleClicked, "double");
        log(Id::View, Notification::Clicked, "view");
        SetHandlers<CEverythingDlg>({
            {Id::View, Notification::LabelEditEnded, &CEverythingDlg::OnLabel},
            {Id::Add, Notification::Clicked, &CEverythingDlg::OnAdd},
            {Id::More, Notification::Clicked, &CEverythingDlg::OnMore},
        });
    }

    CString m_Text = "old";
    CString m_Lines = "first\r\nsecond";
    CString m_Path;
    CString m_Digits;
    CString m_Colour;
    CString m_Number = "12";
    CString m_Kind = "green";
    CString m_Fixed = "one";
    int m_nRows = 3;
    CString m_Log;
    CPathDialog m_Files;
    std::unique_ptr<CEverythingDlg> m_pInner;

    using CDialog::Enable;

    void Log(const CString& word) {
        m_Log += (m_Log.IsEmpty() ? "" : ", ") + word;
        if (CControl* pStatus = FindItem(Id::Status)) // not when a popup goes with the window
            pStatus->SetWindowText(m_Log);
    }

protected:
    void OnInitDialog() override {
        CListCtrl& view = Item<CListCtrl>(Id::View);
        view.InsertColumn(0, "Name", 90);
        view.InsertColumn(1, "File", 40, STYLE_PATH);
        for (int nRow = 0; nRow < m_nRows; ++nRow) {
            Item<CListBox>(Id::List).AddString("row " + ToText(nRow));
            view.InsertItem(nRow, "item " + ToText(nRow));
            view.SetItemText(nRow, 1, "files\\" + ToText(nRow));
        }
        Item<CSliderCtrl>(Id::Level).SetPos(300);
        ShowNumbersLast();
    }

private:
    void OnLabel() {
        const CListCtrl::CLabelEdit& edit = Item<CListCtrl>(Id::View).GetLabelEdit();
        Log(edit.m_bCancelled ? "label kept" : "label edited");
        if (!edit.m_bCancelled)
            Item<CListCtrl>(Id::View).SetItemText(edit.m_nRow, 0, edit.m_Text);
    }
    void OnAdd() {
        UpdateData(true);
        Item<CListBox>(Id::List).AddString(m_Text);
        Item<CListCtrl>(Id::View).EditLabel(1);
        Log("added " + m_Text);
        m_Text = "";
        UpdateData(false);
        Enable(Id::Add, false);
    }
    void OnMore();
};

inline void RunAgain(CEverythingDlg& dialog) {
    if (!dialog.m_pInner)
        dialog.m_pInner = std::make_unique<CEverythingDlg>();
    const int nResult = dialog.m_pInner->DoModal();
    dialog.Log(nResult == IDOK ? dialog.m_pInner->m_Text : "cancelled");
}

inline void ChooseFile(CEverythingDlg& dialog) {
    const int nResult = dialog.m_Files.DoModal();
    dialog.Log(nResult == IDOK ? dialog.m_Files.GetPathName() : "none");
    dialog.Log(dialog.m_Files.m_WebPath);
}

inline void MixColour(CEverythingDlg& dialog) {
    CColour colour = MakeColour(1, 2, 3);
    const bool bMixed = GetDesktop().RunColourDialog(colour);
    dialog.Log((bMixed ? "mixed " : "not ") + ToText(static_cast<long long>(colour)));
}

inline void ReplaceFirstRow(CEverythingDlg& dialog) {
    dialog.Item<CListCtrl>(Id::View).DeleteItem(0);
    dialog.Item<CListCtrl>(Id::View).InsertItem(0, "top");
}

inline const struct {
    const char* m_pWord;
    void (*m_pDo)(CEverythingDlg&);
} kMore[] = {
    {"again", RunAgain}, // the same inner dialog each time
    {"file", ChooseFile},
    {"colour", MixColour},
    {"top", ReplaceFirstRow},
    {"ask",
     [](auto& dialog) {
         dialog.Log(AfxMessageBox("Delete?", MessageBoxKind::OkCancel) == IDOK ? "yes" : "no");
     }},
    {"warn",
     [](auto& dialog) {
         dialog.Log(AfxMessageBox("Gone!", MessageBoxKind::Warning) == IDOK ? "yes" : "no");
     }},
    {"enable", [](auto& dialog) { dialog.Enable(Id::Add, true); }},
    {"hot", [](auto& dialog) { dialog.template Item<CListCtrl>(Id::View).SetHotItem(1); }},
    {"delete", [](auto& dialog) { dialog.template Item<CListBox>(Id::List).DeleteString(1); }},
    {"throw", [](auto&) { throw std::bad_alloc(); }},
};

inline void CEverythingDlg::OnMore() {
    for (const auto& [pWord, pDo] : kMore) {
        if (Item<CControl>(Id::Kind).GetWindowText() == pWord)
            return pDo(*this);
    }
    Log("more");
}

} // namespace everything

} // namespace orrelix
