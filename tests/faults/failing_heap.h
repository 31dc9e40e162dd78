// The heap of this program and of every library that it loads, with allocations that fail on demand.
#pragma once

struct CFailingHeap {
    long m_nLive = 0; // blocks that are allocated and not freed
    long m_nAsked = 0;
    long m_nFailed = 0;

    // The allocation, counted from 1, that fails while it is armed, and whether those behind it fail too; 0 for none.
    void FailAt(long nAllocation, bool bOthersToo) {
        m_nFirst = nAllocation;
        m_bOthersToo = bOthersToo;
        m_nAsked = m_nFailed = 0;
    }

    // What is called meanwhile, and only that, meets the failures.
    template <class TCall>
    auto Armed(TCall call) {
        m_bArmed = true;
        const auto result = call();
        m_bArmed = false;
        return result;
    }

    // From here on nothing fails any more; what has failed stays counted.
    void Pass() { m_nFirst = 0; }

    bool Grants() {
        if (!m_bArmed)
            return true;
        ++m_nAsked;
        const bool bFails = m_nFirst > 0 && (m_bOthersToo ? m_nAsked >= m_nFirst : m_nAsked == m_nFirst);
        m_nFailed += bFails;
        return !bFails;
    }

private:
    long m_nFirst = 0;
    bool m_bOthersToo = false;
    bool m_bArmed = false;
};

extern CFailingHeap g_heap;
