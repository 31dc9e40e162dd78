#include "platform/file_lock.h"
#include "platform/paths.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>
#include <unistd.h>

namespace orrelix {

CFileLock::~CFileLock() {
    if (m_nFile >= 0)
        close(m_nFile);
}

bool CFileLock::Acquire(const CString& path, int nMilliseconds) {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::milliseconds(nMilliseconds);
    if (m_nFile < 0)
        m_nFile = open(SystemSpelling(path).c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK, 0600);
    // Waiting in the call itself could last for ever, if the other process is stopped.
    while (m_nFile >= 0 && flock(m_nFile, LOCK_EX | LOCK_NB) != 0) {
        if ((errno != EWOULDBLOCK && errno != EINTR) || Clock::now() >= end) {
            close(m_nFile);
            m_nFile = -1;
        } else {
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    }
    return m_nFile >= 0;
}

} // namespace orrelix
