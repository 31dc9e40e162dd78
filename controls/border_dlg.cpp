#include "controls/border_dlg.h"

#include "resources/border_description.h"

using Id = BorderId;

CBorderPropertiesDlg::CBorderPropertiesDlg() : CDialog(BorderDescription()) {
    Attach(PickerOf(Id::Color), m_ColorPicker);
    SetHandlers<CBorderPropertiesDlg>(
        {{Id::Color, Notification::Changed, &CBorderPropertiesDlg::OnColorChanged}});
    SetMessageHandler(COLOUR_SELECTION_ENDED, [this](unsigned long, long) { OnColorPicked(); });
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
    m_ColorPicker.SetUp("CALANDER");
    if (m_BorderColor.IsEmpty())
        m_BorderColor = "c0c0c0";
    m_ColorPicker.SetHexColour(m_BorderColor);
}

void CBorderPropertiesDlg::OnColorChanged() {
    UpdateData(true);
    m_ColorPicker.SetHexColour(m_BorderColor);
}

void CBorderPropertiesDlg::OnColorPicked() {
    UpdateData(true);
    m_BorderColor = m_ColorPicker.GetHexColour();
    UpdateData(false);
}
