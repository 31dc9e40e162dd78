#include "dialogs/dance_text_dlg.h"

#include "resources/dance_text_description.h"
#include "toolkit/desktop.h"
#include "toolkit/list_box.h"
#include "toolkit/slider_ctrl.h"

#include <algorithm>
#include <charconv>

namespace orrelix {

namespace {

using Id = DanceTextId;

// Hundredths of the number that the text begins with, cut off and not rounded: "0.29" gives 28. Whatever decimal
// point the host has set, a dot is one.
int PositionOf(const CString& delay) {
    std::string_view text = Trim(delay);
    if (text.starts_with('+'))
        text.remove_prefix(1);
    double seconds = 0;
    std::from_chars(text.data(), text.data() + text.size(), seconds);
    return seconds > 0 ? static_cast<int>(std::min(seconds * 100, 100.0)) : 0;
}

// The other way round, with six decimals.
CString DelayOf(int nPosition) {
    char text[16];
    const auto end = std::to_chars(std::begin(text), std::end(text), static_cast<float>(nPosition) * 0.01F,
                                   std::chars_format::fixed, 6);
    return std::string_view(text, end.ptr);
}

bool EditColor(CString& color) {
    CColorDlg dialog;
    return EditThrough(dialog, {{color, dialog.m_Color}});
}

} // namespace

CDanceTextDlg::CDanceTextDlg() : CGadgetDialog(DanceTextDescription()) {
    AddFields({{Id::LinkText, m_Copy.m_LinkText}, {Id::TextDecoration, m_Copy.m_TextDecoration}});
    AddLinkTarget(Id::LinkTarget, m_Copy.m_LinkTarget);
    AddFont(Id::Font, {.m_Face = m_Copy.m_FontFamily,
                       .m_Size = m_Copy.m_FontSize,
                       .m_Weight = m_Copy.m_FontWeight,
                       .m_Style = m_Copy.m_FontStyle});
    AddUrl(Id::Url, m_Copy.m_LinkUrl);
    OnClick(Id::MoveUp, [this] { Move(-1); });
    OnClick(Id::MoveDown, [this] { Move(1); });
    SetHandlers<CDanceTextDlg>({
        {Id::Add, Notification::Clicked, &CDanceTextDlg::OnAdd},
        {Id::Delete, Notification::Clicked, &CDanceTextDlg::OnDelete},
        {Id::Modify, Notification::Clicked, &CDanceTextDlg::OnModify},
        {Id::Colors, Notification::SelectionChanged, &CDanceTextDlg::OnSelectionChanged},
    });
}

void CDanceTextDlg::ShowCopy() {
    Item<CSliderCtrl>(Id::Delay).SetPos(PositionOf(m_Copy.m_Delay));
    AddRows(Colors(), m_Copy.m_Colors);
    EnableMoves({false, false});
}

void CDanceTextDlg::ReadCopy() {
    m_Copy.m_Delay = DelayOf(Item<CSliderCtrl>(Id::Delay).GetPos());
    m_Copy.m_Colors = TextsOf(Colors());
}

CListBox& CDanceTextDlg::Colors() const {
    return Item<CListBox>(Id::Colors);
}

void CDanceTextDlg::EnableMoves(CMoves moves) const {
    Enable(Id::MoveUp, moves.m_bUp);
    Enable(Id::MoveDown, moves.m_bDown);
}

// A colour below the selected last one makes room for it to move down. In any other case the buttons stay.
void CDanceTextDlg::OnAdd() {
    const int nSelected = Colors().GetCurSel();
    const int nRows = Colors().GetCount();
    CString color;
    if (!EditColor(color))
        return;
    Colors().AddString(color);
    if (nSelected >= 0 && nSelected == nRows - 1)
        EnableMoves({nRows > 1, true});
}

void CDanceTextDlg::OnDelete() {
    CListBox& list = Colors();
    const int nSelected = list.GetCurSel();
    const int nRows = list.GetCount();
    if (nSelected < 0) {
        AfxMessageBox("Please select a color in the List to delete!");
        return;
    }
    if (AfxMessageBox("Do you want to Delete?", MessageBoxKind::OkCancel) != IDOK)
        return;
    list.DeleteString(nSelected);
    list.SetCurSel(std::min(nSelected, nRows - 2));
    if (nRows <= 2)
        EnableMoves({false, false});
    else if (nSelected == nRows - 2)
        EnableMoves({true, false});
}

void CDanceTextDlg::OnModify() {
    const int nSelected = Colors().GetCurSel();
    if (nSelected < 0) {
        AfxMessageBox("Please select an item to modify!");
        return;
    }
    CString color = Colors().GetText(nSelected);
    if (EditColor(color))
        ReplaceRow(Colors(), nSelected, color);
}

void CDanceTextDlg::Move(int nStep) {
    if (MoveSelectedRow(Colors(), nStep))
        OnSelectionChanged();
}

void CDanceTextDlg::OnSelectionChanged() {
    EnableMoves(MovesOf(Colors().GetCurSel(), Colors().GetCount()));
}

CColorDlg::CColorDlg() : CFieldDialog(ColorDescription()) {
    AddColour(ColorId::Color, m_Color, "DanceText");
}

} // namespace orrelix
