#include "controls/font_dlg.h"

#include "resources/font_description.h"
#include "toolkit/desktop.h"
#include "toolkit/list_box.h"

namespace orrelix {

using Id = FontId;

CFontDlg::CFontDlg(const CDialogDescription& description) : CDialog(description) {
    SetHandlers<CFontDlg>({{Id::Families, Notification::DoubleClicked, &CFontDlg::OnFamilyDoubleClicked}});
}

void CFontDlg::DoDataExchange(CDataExchange& exchange) {
    exchange.Text(Id::Weight, m_FontWeight);
    exchange.Text(Id::Face, m_FontFace);
    exchange.Text(Id::Size, m_FontSize);
    exchange.Text(Id::Style, m_FontStyle);
}

// The fields go to the controls last, so that a size that is no plain number stays as it is.
void CFontDlg::OnInitDialog() {
    CListBox& families = Item<CListBox>(Id::Families);
    for (const CString& family : GetDesktop().GetFontFamilies())
        families.AddString(family);
    SetSpin(Id::Size, m_FontSize);
    UpdateData(false);
}

void CFontDlg::OnFamilyDoubleClicked() {
    UpdateData(true);
    const CListBox& families = Item<CListBox>(Id::Families);
    const CString family = families.GetText(families.GetCurSel());
    m_FontFace = m_FontFace.IsEmpty() ? family : m_FontFace + "," + family;
    UpdateData(false);
}

CFontPropertiesDlg::CFontPropertiesDlg() : CFontDlg(FontPropertiesDescription()) {}

void EditFont(const CFontFields& font) {
    CFontPropertiesDlg dialog;
    dialog.m_FontFace = font.m_Face;
    dialog.m_FontSize = font.m_Size;
    dialog.m_FontWeight = font.m_Weight;
    dialog.m_FontStyle = font.m_Style;
    if (dialog.DoModal() != IDOK)
        return;
    font.m_Face = dialog.m_FontFace;
    font.m_Size = dialog.m_FontSize;
    font.m_Weight = dialog.m_FontWeight;
    font.m_Style = dialog.m_FontStyle;
}

CCalanderFontDlg::CCalanderFontDlg() : CFontDlg(CalanderFontDescription()) {}

void CCalanderFontDlg::DoDataExchange(CDataExchange& exchange) {
    CFontDlg::DoDataExchange(exchange);
    exchange.Text(Id::Align, m_TextAlign);
}

} // namespace orrelix
