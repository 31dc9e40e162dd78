#include "core/line_reader.h"

#include "platform/files.h"

#include <cstring>

namespace orrelix {

namespace {

// Large enough that the system's calls don't count, small enough to stay in the processor's cache.
constexpr size_t kBlock = 256 * 1024;

} // namespace

CLineReader::CLineReader(CInputFile& file) : m_File(file), m_pBuffer(new char[kBlock]), m_nCapacity(kBlock) {}

bool CLineReader::Next() {
    size_t nSearched = 0;
    for (;;) {
        const char* pBegin = m_pBuffer.get() + m_nBegin;
        const size_t nLength = m_nEnd - m_nBegin;
        if (const void* pFound = memchr(pBegin + nSearched, '\n', nLength - nSearched)) {
            size_t nLine = static_cast<size_t>(static_cast<const char*>(pFound) - pBegin);
            m_nBegin += nLine + 1;
            if (nLine > 0 && pBegin[nLine - 1] == '\r')
                --nLine;
            m_Line = {pBegin, nLine};
            return true;
        }
        nSearched = nLength;
        if (!ReadMore()) {
            m_Line = {m_pBuffer.get() + m_nBegin, nLength};
            m_nBegin = m_nEnd;
            return nLength > 0;
        }
    }
}

// Appends to what is left in the buffer, which moves to its front; the buffer grows only when one line fills
// it.
bool CLineReader::ReadMore() {
    const size_t nLeft = m_nEnd - m_nBegin;
    if (nLeft == m_nCapacity) {
        std::unique_ptr<char[]> pLarger(new char[2 * m_nCapacity]);
        memcpy(pLarger.get(), m_pBuffer.get(), nLeft);
        m_pBuffer = std::move(pLarger);
        m_nCapacity *= 2;
    } else if (m_nBegin > 0) {
        memmove(m_pBuffer.get(), m_pBuffer.get() + m_nBegin, nLeft);
    }
    m_nBegin = 0;
    m_nEnd = nLeft;
    const size_t nRead = m_File.Read(m_pBuffer.get() + nLeft, m_nCapacity - nLeft);
    m_nEnd += nRead;
    return nRead > 0;
}

} // namespace orrelix
