#include "controls/font_dlg.h"

#include "resources/font_description.h"
#include "toolkit/desktop.h"
#include "toolkit/list_box.h"

namespace orrelix {

using Id = FontId;

CFontDlg::CFontDlg(const CDialogDescription& description) : CFieldDialog(description) {
    AddFields({{Id::Weight, m_FontWeight},
               {Id::Face, m_FontFace},
               {Id::Size, m_FontSize},
               {Id::Style, m_FontStyle}});
    SetHandlers<CFontDlg>({{Id::Families, Notification::DoubleClicked, &CFontDlg::OnFamilyDoubleClicked}});
}

void CFontDlg::OnInitDialog() {
    CListBox& families = Item<CListBox>(Id::Families);
    for (const CString& family : GetDesktop().GetFontFamilies())
        families.AddString(family);
    ShowTextsLast();
}

void CFontDlg::OnFamilyDoubleClicked() {
    UpdateData(true);
    const CListBox& families = Item<CListBox>(Id::Families);
    const CString family = families.GetText(families.GetCurSel());
    m_FontFace = m_FontFace.IsEmpty() ? family : m_FontFace + "," + family;
    UpdateData(false);
}

bool CFontDlg::Edit(const CFontFields& font, bool bHandIn) {
    return EditThrough(*this,
                       {{font.m_Face, m_FontFace},
                        {font.m_Size, m_FontSize},
                        {font.m_Weight, m_FontWeight},
                        {font.m_Style, m_FontStyle}},
                       bHandIn);
}

CFontPropertiesDlg::CFontPropertiesDlg() : CFontDlg(FontPropertiesDescription()) {}

void EditFont(const CFontFields& font, bool bHandIn) {
    CFontPropertiesDlg().Edit(font, bHandIn);
}

CCalanderFontDlg::CCalanderFontDlg() : CFontDlg(CalanderFontDescription()) {
    AddFields({{Id::Align, m_TextAlign}});
}

void EditCalanderFont(const CFontFields& font, CString& align) {
    CCalanderFontDlg dialog;
    dialog.m_TextAlign = align;
    if (dialog.Edit(font))
        align = dialog.m_TextAlign;
}

} // namespace orrelix
