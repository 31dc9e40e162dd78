#include "dialogs/animate_text_dlg.h"

#include "resources/animate_text_description.h"
#include "toolkit/desktop.h"
#include "toolkit/list_box.h"

namespace orrelix {

namespace {

using Id = AnimateTextId;

constexpr char kNoRow[] = "Please Select a words in the Listbox";
constexpr char kNoText[] = "Please input a words into the inputbox";

} // namespace

CAnimateTextDlg::CAnimateTextDlg() : CGadgetDialog(AnimateTextDescription()) {
    AddFields({
        {Id::EditText, m_EditText},
        {Id::Top, m_Copy.m_Top},
        {Id::Left, m_Copy.m_Left},
        {Id::Height, m_Copy.m_Height},
        {Id::Width, m_Copy.m_Width},
        {Id::ScrollSize, m_Copy.m_ScrollSize},
        {Id::ScrollStart, m_Copy.m_ScrollStart},
    });
    AddSlider(Id::PopUpInterval, m_Copy.m_PopUpInterval);
    AddSlider(Id::CirculateInterval, m_Copy.m_CirculateInterval);
    AddColour(Id::FadeColor, m_Copy.m_FadeColor, "ANIBK");
    AddColour(Id::TextColor, m_Copy.m_TextColor, "ANIFont");
    AddColour(Id::BackColor, m_Copy.m_BackColor, "ANIFont");
    AddRemoteDirectory(Id::ScriptPath, m_Copy.m_ScriptPath);
    AddFont(Id::Font, {.m_Face = m_Copy.m_FontFamily,
                       .m_Size = m_Copy.m_FontSize,
                       .m_Weight = m_Copy.m_FontWeight,
                       .m_Style = m_Copy.m_FontStyle});
    OnClick(Id::MoveUp, [this] { Move(-1); });
    OnClick(Id::MoveDown, [this] { Move(1); });
    SetHandlers<CAnimateTextDlg>({
        {Id::Add, Notification::Clicked, &CAnimateTextDlg::OnAdd},
        {Id::Delete, Notification::Clicked, &CAnimateTextDlg::OnDelete},
        {Id::Modify, Notification::Clicked, &CAnimateTextDlg::OnModify},
        {Id::Messages, Notification::SelectionChanged, &CAnimateTextDlg::OnSelectionChanged},
    });
}

void CAnimateTextDlg::ShowCopy() {
    m_nEditIndex = -1;
    EnableMoves({false, false});
    for (CString message : m_Copy.m_Messages) {
        message.Replace("<br>", "\r\n");
        Messages().AddString(message);
    }
}

void CAnimateTextDlg::ReadCopy() {
    m_Copy.m_Messages = TextsOf(Messages());
    for (CString& message : m_Copy.m_Messages)
        message.Replace("\r\n", "<br>");
}

CListBox& CAnimateTextDlg::Messages() const {
    return Item<CListBox>(Id::Messages);
}

void CAnimateTextDlg::EnableMoves(CMoves moves) const {
    Enable(Id::MoveUp, moves.m_bUp);
    Enable(Id::MoveDown, moves.m_bDown);
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
        EnableMoves({false, true});
    else if (nSelected == nRows - 1)
        EnableMoves({true, true});
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
        EnableMoves({false, false});
    else if (nSelected == nRows - 2)
        EnableMoves({true, false});
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
void CAnimateTextDlg::Move(int nStep) {
    if (MoveSelectedRow(Messages(), nStep))
        EnableMoves(MovesOf(Messages().GetCurSel(), Messages().GetCount()));
}

void CAnimateTextDlg::OnSelectionChanged() {
    UpdateData(true);
    m_nEditIndex = Messages().GetCurSel();
    m_EditText = Messages().GetText(m_nEditIndex);
    EnableMoves(MovesOf(m_nEditIndex, Messages().GetCount()));
    UpdateData(false);
}

} // namespace orrelix
