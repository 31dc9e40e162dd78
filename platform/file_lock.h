// CFileLock: keeps other processes, and other threads, out while a file is read, changed and written back.
//
//     CFileLock lock;
//     if (lock.Acquire(folder + "\\settings.lock", 2000))
//         ... until the end of the block, or of the process, whichever comes first
//
// It holds among those who use the same lock file, which stays on the disk, empty.
#pragma once

#include "platform/string.h"

namespace orrelix {

class CFileLock {
public:
    CFileLock() = default;
    ~CFileLock();
    CFileLock(const CFileLock&) = delete;
    CFileLock& operator=(const CFileLock&) = delete;

    // False when the lock file can't be opened or made, or when somebody
    // else keeps the lock for longer than that.
    bool Acquire(const CString& path, int nMilliseconds);

private:
    int m_nFile = -1;
};

} // namespace orrelix
