#include "toolkit/spin_button_ctrl.h"

#include "toolkit/dialog_description.h"

#include <algorithm>
#include <cstdint>

namespace orrelix {

void CSpinButtonCtrl::OnCreate(const CControlDescription& description) {
    m_nLower = description.m_nLower;
    m_nUpper = description.m_nUpper;
    m_nPos = m_nLower;
}

void CSpinButtonCtrl::SetRange(int nLower, int nUpper) {
    m_nLower = nLower;
    m_nUpper = std::max(nLower, nUpper);
    TellObserver(ControlChange::Range);
}

void CSpinButtonCtrl::SetPos(int nPos) {
    m_nPos = Clipped(static_cast<std::int16_t>(nPos));
    if (m_pBuddy)
        m_pBuddy->SetWindowText(ToText(m_nPos));
    TellObserver(ControlChange::Position);
}

void CSpinButtonCtrl::PersonTurns(CPersonKey key, int nSteps) {
    if (!IsWindowEnabled())
        return;
    const int nFrom = NumberInBuddy();
    m_nPos =
        static_cast<int>(std::clamp<long long>(nFrom + static_cast<long long>(nSteps), m_nLower, m_nUpper));
    if (m_nPos == nFrom)
        return;
    TellObserver(ControlChange::Position);
    if (m_pBuddy)
        m_pBuddy->PersonTypes(key, ToText(m_nPos));
}

int CSpinButtonCtrl::Clipped(int nPos) const {
    return std::clamp(nPos, m_nLower, m_nUpper);
}

int CSpinButtonCtrl::NumberInBuddy() const {
    if (!m_pBuddy)
        return m_nPos;
    const CString& text = m_pBuddy->GetWindowText();
    const std::string_view digits = text.View().substr(text.Left(1) == "-" ? 1 : 0);
    const bool bNumber = !digits.empty() && digits.find_first_not_of("0123456789") == digits.npos;
    const int nNumber = ToInteger(text);
    return bNumber && Clipped(nNumber) == nNumber ? nNumber : m_nPos;
}

} // namespace orrelix
