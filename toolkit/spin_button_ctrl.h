// CSpinButtonCtrl: two arrows that step the number in an edit box, the spin control's buddy.
//
// The position is a 16-bit number, clipped to the range. Whenever it is set, also to what it was, it is
// written into the buddy as plain decimal digits.
#pragma once

#include "toolkit/edit.h"

namespace orrelix {

class CSpinButtonCtrl : public CControl {
public:
    // Not owned. Null takes the buddy away.
    void SetBuddy(CEdit* pBuddy) { m_pBuddy = pBuddy; }
    CEdit* GetBuddy() const { return m_pBuddy; }

    // Leaves the position and the buddy's text as they are.
    void SetRange(int nLower, int nUpper);
    int GetLower() const { return m_nLower; }
    int GetUpper() const { return m_nUpper; }

    // Takes the low 16 bits of nPos as a signed number: 70000 is 4464, and 40000 is negative.
    void SetPos(int nPos);
    int GetPos() const { return m_nPos; }

    // Presses an arrow nSteps times, upwards or, below 0, downwards. Counts from the number in the buddy if
    // one within the range stands there, and else from the position. The buddy notifies Changed; at the end
    // of the range it keeps its text.
    void PersonTurns(CPersonKey key, int nSteps);

protected:
    void OnCreate(const CControlDescription& description) override;

private:
    int Clipped(int nPos) const;
    int NumberInBuddy() const;

    CEdit* m_pBuddy = nullptr;
    int m_nLower = 0;
    int m_nUpper = 100;
    int m_nPos = 0;
};

} // namespace orrelix
