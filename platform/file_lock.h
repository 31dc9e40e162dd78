// CFileLock: keeps other processes, and other threads, out while a file is read, changed and written back.
//
//     CFileLock lock;
//     if (lock.AcquireFor(page, 2000))
//         ... until the end of the block, or of the process, whichever comes first
//
// It holds among those who ask for it; others aren't kept from anything.
#pragma once

#include "platform/string.h"

#include <memory>

namespace orrelix {

class CFileLock {
public:
    // Locks a lock file, which is made for it and stays on the disk, empty. False when it can't be opened or made, or
    // when somebody else keeps the lock for longer than that.
    bool Acquire(const CString& path, int nMilliseconds);

    // Locks a file that its users replace as a whole, whether it is there yet or not, and leaves nothing behind.
    // False only when somebody else keeps the lock for longer than that: where the disk or the rights don't let one
    // lock, the work goes on without.
    bool AcquireFor(const CString& path, int nMilliseconds);

private:
    std::shared_ptr<void> m_pHeld;
};

} // namespace orrelix
