#include "controls/border_dlg.h"

#include "resources/border_description.h"

namespace orrelix {

using Id = BorderId;

CBorderPropertiesDlg::CBorderPropertiesDlg() : CFieldDialog(BorderDescription()) {
    AddFields({{Id::Style, m_BorderStyle}, {Id::Width, m_BorderWidth}});
    AddColour(Id::Color, m_BorderColor, "CALANDER");
}

void EditBorder(const CBorderFields& border) {
    CBorderPropertiesDlg dialog;
    EditThrough(dialog, {{border.m_Width, dialog.m_BorderWidth},
                         {border.m_Style, dialog.m_BorderStyle},
                         {border.m_Color, dialog.m_BorderColor}});
}

} // namespace orrelix
