#include "toolkit/data_exchange.h"

#include "toolkit/combo_box.h"
#include "toolkit/dialog.h"
#include "toolkit/slider_ctrl.h"

namespace orrelix {

void CDataExchange::Text(int nId, CString& value) {
    CControl& control = m_Dialog.Item<CControl>(nId);
    if (m_bSave)
        value = control.GetWindowText();
    else
        control.SetWindowText(value);
}

void CDataExchange::Position(int nId, CString& value) {
    CSliderCtrl& slider = m_Dialog.Item<CSliderCtrl>(nId);
    if (m_bSave)
        value = ToText(slider.GetPos());
    else
        slider.SetPos(ToInteger(value));
}

void CDataExchange::Index(int nId, int& nValue) {
    CComboBox& box = m_Dialog.Item<CComboBox>(nId);
    if (m_bSave)
        nValue = box.GetCurSel();
    else
        box.SetCurSel(nValue);
}

} // namespace orrelix
