#include "toolkit/slider_ctrl.h"

#include "toolkit/dialog_description.h"

#include <algorithm>

namespace orrelix {

void CSliderCtrl::OnCreate(const CControlDescription& description) {
    m_nLower = description.m_nLower;
    m_nUpper = description.m_nUpper;
    m_nTicks = description.m_nTicks;
    m_nPos = m_nLower;
}

void CSliderCtrl::SetRange(int nLower, int nUpper) {
    m_nLower = nLower;
    m_nUpper = std::max(nLower, nUpper);
    TellObserver(ControlChange::Range);
    SetPos(m_nPos);
}

void CSliderCtrl::SetTicFreq(int nFrequency) {
    m_nTicks = nFrequency;
    TellObserver(ControlChange::Range);
}

void CSliderCtrl::SetPos(int nPos) {
    m_nPos = std::clamp(nPos, m_nLower, m_nUpper);
    TellObserver(ControlChange::Position);
}

void CSliderCtrl::PersonMoves(CPersonKey, int nPos) {
    if (IsWindowEnabled())
        SetPos(nPos);
}

} // namespace orrelix
