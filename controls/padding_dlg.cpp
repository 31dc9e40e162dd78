#include "controls/padding_dlg.h"

#include "resources/padding_description.h"

namespace orrelix {

using Id = PaddingId;

CPaddingDlg::CPaddingDlg() : CFieldDialog(PaddingDescription()) {
    AddFields({{Id::Bottom, m_PaddingBottom},
               {Id::Left, m_PaddingLeft},
               {Id::Right, m_PaddingRight},
               {Id::Top, m_PaddingTop}});
}

void EditPadding(const CPaddingFields& padding) {
    CPaddingDlg dialog;
    EditThrough(dialog, {{padding.m_Bottom, dialog.m_PaddingBottom},
                         {padding.m_Left, dialog.m_PaddingLeft},
                         {padding.m_Right, dialog.m_PaddingRight},
                         {padding.m_Top, dialog.m_PaddingTop}});
}

} // namespace orrelix
