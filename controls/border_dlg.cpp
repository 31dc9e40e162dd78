#include "controls/border_dlg.h"

#include "resources/border_description.h"

namespace orrelix {

using Id = BorderId;

CBorderPropertiesDlg::CBorderPropertiesDlg() : CDialogWithColours(BorderDescription()) {
    AddColour(Id::Color, m_BorderColor, "CALANDER");
}

void CBorderPropertiesDlg::DoDataExchange(CDataExchange& exchange) {
    exchange.Text(Id::Style, m_BorderStyle);
    exchange.Text(Id::Color, m_BorderColor);
    exchange.Text(Id::Width, m_BorderWidth);
}

// The box of an empty colour stays empty, and so does the colour unless the person gives one.
void CBorderPropertiesDlg::OnInitDialog() {
    UpdateData(false);
    SetSpin(Id::Width, m_BorderWidth);
    SetUpPickers();
}

} // namespace orrelix
