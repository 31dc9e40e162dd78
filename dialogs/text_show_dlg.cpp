#include "dialogs/text_show_dlg.h"

#include "controls/font_dlg.h"
#include "resources/text_show_description.h"
#include "toolkit/slider_ctrl.h"

namespace orrelix {

namespace {

using Id = TextShowId;

constexpr char kSection[] = "TextShow";
constexpr char kNoTitle[] = "&nbsp;"; // how the page shows an empty title

} // namespace

CTextShowDlg::CTextShowDlg() : CDialogWithColours(TextShowDescription()) {
    AddColour(Id::TextColor, m_Copy.m_TextColor, kSection);
    AddColour(Id::TitleColor, m_Copy.m_TitleColor, kSection);
    SetHandlers<CTextShowDlg>({
        {Id::TitleFont, Notification::Clicked, &CTextShowDlg::OnTitleFont},
        {Id::TextFont, Notification::Clicked, &CTextShowDlg::OnTextFont},
    });
}

void CTextShowDlg::DoDataExchange(CDataExchange& exchange) {
    exchange.Text(Id::TableWidth, m_Copy.m_TableWidth);
    exchange.Text(Id::TableHeight, m_Copy.m_TableHeight);
    exchange.Text(Id::TableBorder, m_Copy.m_TableBorder);
    exchange.Text(Id::TitleWidth, m_Copy.m_TitleWidth);
    exchange.Text(Id::TitleHeight, m_Copy.m_TitleHeight);
    exchange.Text(Id::TitleColor, m_Copy.m_TitleColor);
    exchange.Text(Id::TextWidth, m_Copy.m_TextWidth);
    exchange.Text(Id::TextHeight, m_Copy.m_TextHeight);
    exchange.Text(Id::TextColor, m_Copy.m_TextColor);
    exchange.Text(Id::TitleText, m_Copy.m_TitleText);
    exchange.Text(Id::Text, m_Copy.m_Text);
}

// The copies go to the controls last, so the boxes show what the spin controls could not hold.
void CTextShowDlg::OnInitDialog() {
    m_Copy = *m_pGadget;
    Item<CSliderCtrl>(Id::Speed).SetPos(ToInteger(m_Copy.m_Speed));
    SetUpPickers();
    if (m_Copy.m_TitleText == kNoTitle)
        m_Copy.m_TitleText.Empty();
    SetSpin(Id::TableWidth, m_Copy.m_TableWidth);
    SetSpin(Id::TableHeight, m_Copy.m_TableHeight);
    SetSpin(Id::TableBorder, m_Copy.m_TableBorder);
    SetSpin(Id::TitleWidth, m_Copy.m_TitleWidth);
    SetSpin(Id::TitleHeight, m_Copy.m_TitleHeight);
    SetSpin(Id::TextWidth, m_Copy.m_TextWidth);
    SetSpin(Id::TextHeight, m_Copy.m_TextHeight);
    m_Copy.m_Text.Replace("<br>", "\r\n");
    UpdateData(false);
}

void CTextShowDlg::OnTitleFont() {
    EditFont({.m_Face = m_Copy.m_TitleFontFamily,
              .m_Size = m_Copy.m_TitleFontSize,
              .m_Weight = m_Copy.m_TitleFontWeight,
              .m_Style = m_Copy.m_TitleFontStyle});
}

void CTextShowDlg::OnTextFont() {
    EditFont({.m_Face = m_Copy.m_TextFontFamily,
              .m_Size = m_Copy.m_TextFontSize,
              .m_Weight = m_Copy.m_TextFontWeight,
              .m_Style = m_Copy.m_TextFontStyle});
}

void CTextShowDlg::OnOK() {
    UpdateData(true);
    m_Copy.m_Speed = ToText(Item<CSliderCtrl>(Id::Speed).GetPos());
    if (m_Copy.m_TitleText.IsEmpty())
        m_Copy.m_TitleText = kNoTitle;
    *m_pGadget = m_Copy;
    EndDialog(IDOK);
}

} // namespace orrelix
