// CSliderCtrl: a slider with ticks.
#pragma once

#include "toolkit/control.h"

namespace orrelix {

class CSliderCtrl : public CControl {
public:
    // Clips the position to the range.
    void SetRange(int nLower, int nUpper);
    int GetLower() const { return m_nLower; }
    int GetUpper() const { return m_nUpper; }

    // A tick at every nFrequency-th position.
    void SetTicFreq(int nFrequency);
    int GetTicFreq() const { return m_nTicks; }

    // Clipped to the range.
    void SetPos(int nPos);
    int GetPos() const { return m_nPos; }

    // Moves the thumb. Notifies nobody: no dialog asks before its OK.
    void PersonMoves(CPersonKey, int nPos);

protected:
    void OnCreate(const CControlDescription& description) override;

private:
    int m_nLower = 0;
    int m_nUpper = 100;
    int m_nTicks = 1;
    int m_nPos = 0;
};

} // namespace orrelix
