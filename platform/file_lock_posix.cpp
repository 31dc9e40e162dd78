#include "platform/file_lock.h"
#include "platform/paths.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace orrelix {

namespace {

using Clock = std::chrono::steady_clock;

class CDescriptor {
public:
    CDescriptor() = default;
    ~CDescriptor() { Close(); }
    CDescriptor(const CDescriptor&) = delete;
    CDescriptor& operator=(const CDescriptor&) = delete;

    bool Open(const std::string& path, int nFlags) {
        Close();
        m_nFile = open(path.c_str(), nFlags | O_CLOEXEC | O_NONBLOCK, 0600);
        return m_nFile >= 0;
    }

    // False, with the system's error, EWOULDBLOCK when the time is over. Waiting in the call itself could last for
    // ever, if the other process is stopped.
    bool Lock(Clock::time_point end) const {
        while (flock(m_nFile, LOCK_EX | LOCK_NB) != 0) {
            if ((errno != EWOULDBLOCK && errno != EINTR) || Clock::now() >= end)
                return false;
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
        return true;
    }

    bool IsAt(const std::string& path) const {
        struct stat held {
        }, there{};
        return fstat(m_nFile, &held) == 0 && stat(path.c_str(), &there) == 0 && held.st_dev == there.st_dev &&
               held.st_ino == there.st_ino;
    }

private:
    void Close() {
        if (m_nFile >= 0)
            close(m_nFile);
        m_nFile = -1;
    }

    int m_nFile = -1;
};

Clock::time_point In(int nMilliseconds) {
    return Clock::now() + std::chrono::milliseconds(nMilliseconds);
}

} // namespace

bool CFileLock::Acquire(const CString& path, int nMilliseconds) {
    const auto pFile = std::make_shared<CDescriptor>();
    const bool bLocked =
        pFile->Open(SystemSpelling(path), O_RDWR | O_CREAT) && pFile->Lock(In(nMilliseconds));
    m_pHeld = bLocked ? pFile : nullptr;
    return bLocked;
}

// What is locked is the file itself, and its directory while there is none: both are there for every user and on
// every machine that shares the disk, and stay as they are. A file in the user's own folders would keep out that user's
// processes only, and a lock of directories alone is none on network disks, which lock what is open for writing.
// Whoever has waited for a file finds that it isn't the one of that name any more, and waits for the new one.
bool CFileLock::AcquireFor(const CString& path, int nMilliseconds) {
    const std::string file = SystemSpelling(path), folder = file.substr(0, file.rfind('/') + 1);
    const auto end = In(nMilliseconds);
    const auto pHeld = std::make_shared<CDescriptor>();
    for (;;) {
        struct stat status {};
        const bool bThere = stat(file.c_str(), &status) == 0;
        if (bThere ? !S_ISREG(status.st_mode) || !pHeld->Open(file, O_RDWR)
                   : !pHeld->Open(folder.empty() ? "." : folder, O_RDONLY | O_DIRECTORY))
            return true;
        if (!pHeld->Lock(end) && errno == EWOULDBLOCK)
            return false;
        if (bThere ? pHeld->IsAt(file) : stat(file.c_str(), &status) != 0) {
            m_pHeld = pHeld;
            return true;
        }
    }
}

} // namespace orrelix
