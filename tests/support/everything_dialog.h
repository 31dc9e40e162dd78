// A dialog with a control of each kind, a popup and a file dialog, on which desktops are tried.
#pragma once

#include "toolkit/button.h"
#include "toolkit/combo_box.h"
#include "toolkit/desktop.h"
#include "toolkit/dialog.h"
#include "toolkit/file_dialog.h"
#include "toolkit/list_box.h"
#include "toolkit/list_ctrl.h"
#include "toolkit/popup_window.h"
#include "toolkit/slider_ctrl.h"

namespace orrelix {

namespace promises {

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
             ComboBox(Id::Fixed, "&Fixed:", {"", "one", {"\xd2\xbb", "Chinese \xe4\xb8\x80"}},
                      STYLE_LIST_ONLY),
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
    std::vector<CPopupCell> GetCells() const override {
        return {{{0, 0, 40, 30}, "Left"}, {{40, 0, 80, 30}, "Right"}};
    }
    int GetCurrentCell() const override { return m_bRight ? 1 : -1; }
    void Draw(CCanvas& canvas) const override { canvas.FillRect({0, 0, 80, 30}, MakeColour(255, 0, 0)); }
    void OnMouseMove(CPersonKey, CPoint point) override {
        m_bRight = point.x >= 40;
        m_Log += m_bRight ? ">" : "<";
        Invalidate();
    }
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
    bool m_bRight = false;
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
        ShowBeside(Id::More, [this] { return m_Log; });
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
    CString m_Path;
    CString m_Digits;
    CString m_Colour;
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
        exchange.Text(Id::Path, m_Path);
        exchange.Text(Id::Digits, m_Digits);
        exchange.Text(Id::Colour, m_Colour);
        exchange.Text(Id::Number, m_Number);
        exchange.Text(Id::Kind, m_Kind);
        exchange.Index(Id::Fixed, m_nFixed);
    }
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
        UpdateData(false);
        Item<CSpinButtonCtrl>(SpinOf(Id::Number)).SetPos(ToInteger(m_Number));
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

} // namespace orrelix
