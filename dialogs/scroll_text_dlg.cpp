#include "dialogs/scroll_text_dlg.h"

#include "controls/list_rows.h"
#include "resources/scroll_text_description.h"
#include "toolkit/desktop.h"
#include "toolkit/list_box.h"

#include <algorithm>

namespace orrelix {

namespace {

using Id = ScrollTextId;

constexpr char kSection[] = "SCROLLTEXT";
constexpr char kBreak[] = "<br>"; // in the list and in the page; the boxes have lines

// The texts of a link's looks, which lie in the dialog's copy of the effect.
struct CLinkStyleFields {
    CFontFields m_Font;
    CString& m_Decoration;
    CString& m_Color;
    CString& m_Cursor;
};

void EditLinkStyle(const CLinkStyleFields& style) {
    CLinkStyleDlg dialog;
    EditThrough(dialog, {{style.m_Font.m_Face, dialog.m_FontFace},
                         {style.m_Font.m_Size, dialog.m_FontSize},
                         {style.m_Font.m_Weight, dialog.m_FontWeight},
                         {style.m_Font.m_Style, dialog.m_FontStyle},
                         {style.m_Decoration, dialog.m_Decoration},
                         {style.m_Color, dialog.m_Color},
                         {style.m_Cursor, dialog.m_Cursor}});
}

} // namespace

CScrollTextDlg::CScrollTextDlg() : CGadgetDialog(ScrollTextDescription()) {
    AddFields({
        {Id::EditText, m_EditText},
        {Id::EditUrl, m_EditUrl},
        {Id::LayerSpeed, m_Copy.m_LayerSpeed},
        {Id::DelayTime, m_Copy.m_DelayTime},
        {Id::ScrollWidth, m_Copy.m_ScrollWidth},
        {Id::ScrollHeight, m_Copy.m_ScrollHeight},
        {Id::TableAlign, m_Copy.m_TableAlign},
        {Id::BorderWidth, m_Copy.m_BorderWidth},
        {Id::TableWidth, m_Copy.m_TableWidth},
        {Id::BorderStyle, m_Copy.m_BorderStyle},
    });
    AddColour(Id::BorderColor, m_Copy.m_BorderColor, kSection);
    AddColour(Id::LayerColor, m_Copy.m_LayerColor, kSection);
    AddRemoteDirectory(Id::ScriptPath, m_Copy.m_ScriptPath);
    OnClick(Id::MouseOver, [this] {
        EditLinkStyle({.m_Font = {.m_Face = m_Copy.m_OverFont,
                                  .m_Size = m_Copy.m_OverFontSize,
                                  .m_Weight = m_Copy.m_OverFontWeight,
                                  .m_Style = m_Copy.m_OverFontStyle},
                       .m_Decoration = m_Copy.m_OverDecoration,
                       .m_Color = m_Copy.m_OverColor,
                       .m_Cursor = m_Copy.m_OverCursor});
    });
    OnClick(Id::MouseOut, [this] {
        EditLinkStyle({.m_Font = {.m_Face = m_Copy.m_OutFont,
                                  .m_Size = m_Copy.m_OutFontSize,
                                  .m_Weight = m_Copy.m_OutFontWeight,
                                  .m_Style = m_Copy.m_OutFontStyle},
                       .m_Decoration = m_Copy.m_OutDecoration,
                       .m_Color = m_Copy.m_OutColor,
                       .m_Cursor = m_Copy.m_OutCursor});
    });
    OnClick(Id::MouseClick, [this] {
        EditLinkStyle({.m_Font = {.m_Face = m_Copy.m_ClickFont,
                                  .m_Size = m_Copy.m_ClickFontSize,
                                  .m_Weight = m_Copy.m_ClickFontWeight,
                                  .m_Style = m_Copy.m_ClickFontStyle},
                       .m_Decoration = m_Copy.m_ClickDecoration,
                       .m_Color = m_Copy.m_ClickColor,
                       .m_Cursor = m_Copy.m_ClickCursor});
    });
    OnClick(Id::TextUp, [this] { Move(Texts(), -1); });
    OnClick(Id::TextDown, [this] { Move(Texts(), 1); });
    OnClick(Id::UrlUp, [this] { Move(Urls(), -1); });
    OnClick(Id::UrlDown, [this] { Move(Urls(), 1); });
    SetHandlers<CScrollTextDlg>({
        {Id::Texts, Notification::SelectionChanged, &CScrollTextDlg::OnTextSelected},
        {Id::Urls, Notification::SelectionChanged, &CScrollTextDlg::OnUrlSelected},
        {Id::ModifyText, Notification::Clicked, &CScrollTextDlg::OnModifyText},
        {Id::ModifyUrl, Notification::Clicked, &CScrollTextDlg::OnModifyUrl},
        {Id::Add, Notification::Clicked, &CScrollTextDlg::OnAdd},
        {Id::Delete, Notification::Clicked, &CScrollTextDlg::OnDelete},
    });
}

void CScrollTextDlg::ShowCopy() {
    AddRows(Texts(), m_Copy.m_Texts);
    AddRows(Urls(), m_Copy.m_Links);
    EnableMoves();
}

void CScrollTextDlg::ReadCopy() {
    m_Copy.m_Texts = TextsOf(Texts());
    m_Copy.m_Links = TextsOf(Urls());
}

CListBox& CScrollTextDlg::Texts() const {
    return Item<CListBox>(Id::Texts);
}

CListBox& CScrollTextDlg::Urls() const {
    return Item<CListBox>(Id::Urls);
}

// The move buttons follow from the selections at any time.
void CScrollTextDlg::EnableMoves() const {
    const CMoves ofTexts = MovesOf(Texts().GetCurSel(), Texts().GetCount());
    const CMoves ofUrls = MovesOf(Urls().GetCurSel(), Urls().GetCount());
    Enable(Id::TextUp, ofTexts.m_bUp);
    Enable(Id::TextDown, ofTexts.m_bDown);
    Enable(Id::UrlUp, ofUrls.m_bUp);
    Enable(Id::UrlDown, ofUrls.m_bDown);
}

void CScrollTextDlg::Move(CListBox& list, int nStep) const {
    MoveSelectedRow(list, nStep);
    EnableMoves();
}

void CScrollTextDlg::OnTextSelected() {
    UpdateData(true);
    m_EditText = Texts().GetText(Texts().GetCurSel());
    m_EditText.Replace(kBreak, "\r\n");
    EnableMoves();
    UpdateData(false);
}

void CScrollTextDlg::OnUrlSelected() {
    UpdateData(true);
    m_EditUrl = Urls().GetText(Urls().GetCurSel());
    EnableMoves();
    UpdateData(false);
}

void CScrollTextDlg::OnModifyText() {
    UpdateData(true);
    if (Texts().GetCurSel() < 0) {
        AfxMessageBox("Please Select a Text in the Listbox");
        return;
    }
    m_EditText.Replace("\r\n", kBreak);
    ReplaceRow(Texts(), Texts().GetCurSel(), m_EditText);
}

void CScrollTextDlg::OnModifyUrl() {
    UpdateData(true);
    if (Urls().GetCurSel() < 0) {
        AfxMessageBox("Please Select a Url in the Listbox");
        return;
    }
    ReplaceRow(Urls(), Urls().GetCurSel(), m_EditUrl);
}

void CScrollTextDlg::OnAdd() {
    CAddTextDlg dialog;
    if (dialog.DoModal() != IDOK)
        return;
    dialog.m_Text.Replace("\r\n", kBreak);
    Texts().AddString(dialog.m_Text);
    Urls().AddString(dialog.m_Url);
    EnableMoves();
}

void CScrollTextDlg::OnDelete() {
    UpdateData(true);
    const int nRow = Texts().GetCurSel();
    if (nRow < 0) {
        AfxMessageBox("Please select a words in Text List to delete!");
        return;
    }
    if (AfxMessageBox("If you delete the Text, you will delete the Url in the same position. Do you want to "
                      "continue?",
                      MessageBoxKind::OkCancel) != IDOK)
        return;
    const int nUrl = Urls().GetCurSel();
    Texts().DeleteString(nRow);
    Texts().SetCurSel(std::min(nRow, Texts().GetCount() - 1));
    m_EditText.Empty();
    Urls().DeleteString(nRow);
    // Set again by its number: the list keeps the selection on its address, or takes it away with it.
    Urls().SetCurSel(std::min(nUrl, Urls().GetCount() - 1));
    if (nUrl == nRow)
        m_EditUrl.Empty();
    EnableMoves();
    UpdateData(false);
}

CAddTextDlg::CAddTextDlg() : CFieldDialog(AddTextDescription()) {
    AddFields({{AddTextId::Text, m_Text}});
    AddUrl(AddTextId::Url, m_Url);
}

CLinkStyleDlg::CLinkStyleDlg() : CFieldDialog(LinkStyleDescription()) {
    AddFields({{LinkStyleId::Decoration, m_Decoration}, {LinkStyleId::Cursor, m_Cursor}});
    AddColour(LinkStyleId::Color, m_Color, kSection);
    AddFont(LinkStyleId::Font,
            {.m_Face = m_FontFace, .m_Size = m_FontSize, .m_Weight = m_FontWeight, .m_Style = m_FontStyle});
}

} // namespace orrelix
