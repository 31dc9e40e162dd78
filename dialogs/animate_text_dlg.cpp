#include "dialogs/animate_text_dlg.h"

#include "controls/font_dlg.h"
#include "controls/remote_directory.h"
#include "resources/animate_text_description.h"
#include "toolkit/desktop.h"
#include "toolkit/list_box.h"
#include "toolkit/slider_ctrl.h"

namespace orrelix {

namespace {

using Id = AnimateTextId;

constexpr char kNoRow[] = "Please Select a words in the Listbox";
constexpr char kNoText[] = "Please input a words into the inputbox";

void ReplaceRow(CListBox& list, int nRow, const CString& text) {
    list.DeleteString(nRow);
    list.InsertString(nRow, text);
    list.SetCurSel(nRow);
}

void MoveRow(CListBox& list, int nFrom, int nTo) {
    const CString text = list.GetText(nFrom);
    list.DeleteString(nFrom);
    list.InsertString(nTo, text);
    list.SetCurSel(nTo);
}

} // namespace

CAnimateTextDlg::CAnimateTextDlg() : CDialogWithColours(AnimateTextDescription()) {
    AddColour(Id::FadeColor, m_Copy.m_FadeColor, "ANIBK");
    AddColour(Id::TextColor, m_Copy.m_TextColor, "ANIFont");
    AddColour(Id::BackColor, m_Copy.m_BackColor, "ANIFont");
    SetHandlers<CAnimateTextDlg>({
        {Id::Add, Notification::Clicked, &CAnimateTextDlg::OnAdd},
        {Id::Delete, Notification::Clicked, &CAnimateTextDlg::OnDelete},
        {Id::Modify, Notification::Clicked, &CAnimateTextDlg::OnModify},
        {Id::MoveUp, Notification::Clicked, &CAnimateTextDlg::OnMoveUp},
        {Id::MoveDown, Notification::Clicked, &CAnimateTextDlg::OnMoveDown},
        {Id::Messages, Notification::SelectionChanged, &CAnimateTextDlg::OnSelectionChanged},
        {Id::Font, Notification::Clicked, &CAnimateTextDlg::OnFont},
    });
}

void CAnimateTextDlg::DoDataExchange(CDataExchange& exchange) {
    exchange.Text(Id::EditText, m_EditText);
    exchange.Text(Id::Top, m_Copy.m_Top);
    exchange.Text(Id::Left, m_Copy.m_Left);
    exchange.Text(Id::Height, m_Copy.m_Height);
    exchange.Text(Id::Width, m_Copy.m_Width);
    exchange.Text(Id::ScrollSize, m_Copy.m_ScrollSize);
    exchange.Text(Id::ScrollStart, m_Copy.m_ScrollStart);
    exchange.Text(Id::FadeColor, m_Copy.m_FadeColor);
    exchange.Text(Id::TextColor, m_Copy.m_TextColor);
    exchange.Text(Id::BackColor, m_Copy.m_BackColor);
    exchange.Text(Id::ScriptPath, m_Copy.m_ScriptPath);
}

// The copies go to the controls last, so the boxes show what the spin controls could not hold.
void CAnimateTextDlg::OnInitDialog() {
    m_Copy = *m_pGadget;
    m_nEditIndex = -1;
    EnableMoves(false, false);
    Item<CSliderCtrl>(Id::PopUpInterval).SetPos(ToInteger(m_Copy.m_PopUpInterval));
    Item<CSliderCtrl>(Id::CirculateInterval).SetPos(ToInteger(m_Copy.m_CirculateInterval));
    SetSpin(Id::Top, m_Copy.m_Top);
    SetSpin(Id::Left, m_Copy.m_Left);
    SetSpin(Id::Height, m_Copy.m_Height);
    SetSpin(Id::Width, m_Copy.m_Width);
    SetSpin(Id::ScrollSize, m_Copy.m_ScrollSize);
    SetSpin(Id::ScrollStart, m_Copy.m_ScrollStart);
    for (CString message : m_Copy.m_Messages) {
        message.Replace("<br>", "\r\n");
        Messages().AddString(message);
    }
    SetUpPickers();
    UpdateData(false);
}

CListBox& CAnimateTextDlg::Messages() const {
    return Item<CListBox>(Id::Messages);
}

void CAnimateTextDlg::EnableMoves(bool bUp, bool bDown) const {
    Enable(Id::MoveUp, bUp);
    Enable(Id::MoveDown, bDown);
}

void CAnimateTextDlg::OnAdd() {
    UpdateData(true);
    const int nSelected = Messages().GetCurSel();
    const int nRows = Messages().GetCount();
    if (m_EditText.IsEmpty()) {
        AfxMessageBox(kNoText);
        return;
    }
    Messages().AddString(m_EditText);
    if (nRows == 1)
        EnableMoves(false, true);
    else if (nSelected == nRows - 1)
        EnableMoves(true, true);
}

void CAnimateTextDlg::OnDelete() {
    UpdateData(true);
    CListBox& list = Messages();
    const int nSelected = list.GetCurSel();
    const int nRows = list.GetCount();
    if (nSelected < 0) {
        AfxMessageBox("Please select a words to delete!");
        return;
    }
    list.DeleteString(nSelected);
    list.SetCurSel(nSelected == nRows - 1 ? nRows - 2 : nSelected);
    if (list.GetCount() <= 1)
        EnableMoves(false, false);
    else if (nSelected == nRows - 2)
        EnableMoves(true, false);
    if (m_nEditIndex == nSelected)
        m_EditText.Empty();
    UpdateData(false);
}

void CAnimateTextDlg::OnModify() {
    UpdateData(true);
    if (m_nEditIndex < 0) {
        AfxMessageBox(kNoRow);
        return;
    }
    if (m_EditText.IsEmpty()) {
        AfxMessageBox(kNoText);
        return;
    }
    if (m_nEditIndex >= Messages().GetCount()) { // it was the last one and was deleted since
        AfxMessageBox(kNoRow);
        return;
    }
    ReplaceRow(Messages(), m_nEditIndex, m_EditText);
}

// The move buttons can be enabled without a selection: after the first message went into an empty list.
void CAnimateTextDlg::OnMoveUp() {
    const int nSelected = Messages().GetCurSel();
    if (nSelected < 1)
        return;
    MoveRow(Messages(), nSelected, nSelected - 1);
    EnableMoves(nSelected - 1 != 0, true);
}

void CAnimateTextDlg::OnMoveDown() {
    const int nSelected = Messages().GetCurSel();
    const int nLast = Messages().GetCount() - 1;
    if (nSelected < 0 || nSelected == nLast)
        return;
    MoveRow(Messages(), nSelected, nSelected + 1);
    EnableMoves(true, nSelected + 1 != nLast);
}

void CAnimateTextDlg::OnSelectionChanged() {
    UpdateData(true);
    const int nLast = Messages().GetCount() - 1;
    m_nEditIndex = Messages().GetCurSel();
    m_EditText = Messages().GetText(m_nEditIndex);
    EnableMoves(m_nEditIndex > 0, m_nEditIndex < nLast);
    UpdateData(false);
}

void CAnimateTextDlg::OnFont() {
    EditFont({.m_Face = m_Copy.m_FontFamily,
              .m_Size = m_Copy.m_FontSize,
              .m_Weight = m_Copy.m_FontWeight,
              .m_Style = m_Copy.m_FontStyle});
}

void CAnimateTextDlg::OnOK() {
    UpdateData(true);
    m_Copy.m_Messages.RemoveAll();
    for (int nRow = 0; nRow < Messages().GetCount(); ++nRow) {
        CString message = Messages().GetText(nRow);
        message.Replace("\r\n", "<br>");
        m_Copy.m_Messages.Add(message);
    }
    m_Copy.m_PopUpInterval = ToText(Item<CSliderCtrl>(Id::PopUpInterval).GetPos());
    m_Copy.m_CirculateInterval = ToText(Item<CSliderCtrl>(Id::CirculateInterval).GetPos());
    m_Copy.m_ScriptPath = RemoteDirectory(m_Copy.m_ScriptPath);
    *m_pGadget = m_Copy;
    EndDialog(IDOK);
}

} // namespace orrelix
