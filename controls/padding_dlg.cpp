#include "controls/padding_dlg.h"

#include "resources/padding_description.h"

namespace orrelix {

using Id = PaddingId;

CPaddingDlg::CPaddingDlg() : CDialog(PaddingDescription()) {}

void CPaddingDlg::DoDataExchange(CDataExchange& exchange) {
    exchange.Text(Id::Bottom, m_PaddingBottom);
    exchange.Text(Id::Left, m_PaddingLeft);
    exchange.Text(Id::Right, m_PaddingRight);
    exchange.Text(Id::Top, m_PaddingTop);
}

void CPaddingDlg::OnInitDialog() {
    UpdateData(false);
    SetSpin(Id::Left, m_PaddingLeft);
    SetSpin(Id::Right, m_PaddingRight);
    SetSpin(Id::Top, m_PaddingTop);
    SetSpin(Id::Bottom, m_PaddingBottom);
}

} // namespace orrelix
