#include "platform/file_system.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <new>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utility>

namespace orrelix {

namespace {

std::error_code LastError() {
    return {errno, std::generic_category()};
}

std::error_code ErrorUnless(bool bSucceeded) {
    return bSucceeded ? std::error_code() : LastError();
}

class CPosixFile final : public CSystemFile {
public:
    CPosixFile() = default;
    ~CPosixFile() override { CPosixFile::Close(); }
    CPosixFile(const CPosixFile&) = delete;
    CPosixFile& operator=(const CPosixFile&) = delete;

    int Open(const std::string& path, int nFlags, mode_t nMode) {
        return m_nFile = open(path.c_str(), nFlags | O_CLOEXEC, nMode);
    }
    std::error_code Read(char* pBuffer, size_t nSize, size_t& nRead) override {
        return Move([&] { return read(m_nFile, pBuffer, nSize); }, nRead);
    }
    std::error_code Write(std::string_view bytes, size_t& nWritten) override {
        return Move([&] { return write(m_nFile, bytes.data(), bytes.size()); }, nWritten);
    }
    std::error_code Sync() override { return ErrorUnless(fsync(m_nFile) == 0); }
    std::error_code Close() override {
        const int nFile = std::exchange(m_nFile, -1);
        return ErrorUnless(nFile < 0 || close(nFile) == 0);
    }

private:
    template <class TCall>
    static std::error_code Move(TCall call, size_t& nMoved) {
        ssize_t nResult = call();
        while (nResult < 0 && errno == EINTR)
            nResult = call();
        nMoved = nResult > 0 ? static_cast<size_t>(nResult) : 0;
        return ErrorUnless(nResult >= 0);
    }

    int m_nFile = -1;
};

// Of a file that can have its predecessor's owner or not, its group or not: without the owner it doesn't run as
// somebody else, and a group of strangers may do what everybody may.
mode_t PermissionsFor(const struct stat& old, bool bOwner, bool bGroup) {
    const mode_t mode = old.st_mode & (bOwner && bGroup ? 07777 : 01777);
    return bGroup ? mode : (mode & ~mode_t{S_IRWXG}) | (mode & S_IRWXO) << 3;
}

// Gives a file the access list of another one, or takes away what its directory has given it. False where the list
// can't be kept.
bool TakeAccessList(const std::string& from, int nFile) {
    constexpr char kName[] = "system.posix_acl_access";
    char list[65536]; // the most that the system has
    const ssize_t nSize = getxattr(from.c_str(), kName, list, sizeof list);
    if (nSize >= 0)
        return fsetxattr(nFile, kName, list, static_cast<size_t>(nSize), 0) == 0;
    return fremovexattr(nFile, kName) == 0 || errno == ENODATA || errno == EOPNOTSUPP;
}

// The descriptor stays the file's, which is made first: nobody would close it where there is no memory for one.
int Open(const std::string& path, int nFlags, mode_t nMode, CSystemFilePtr& pFile) {
    auto pOpened = std::make_unique<CPosixFile>();
    const int nFile = pOpened->Open(path, nFlags, nMode);
    if (nFile >= 0)
        pFile = std::move(pOpened);
    return nFile;
}

class CPosixFiles final : public CFileSystem {
public:
    std::error_code GetKind(const std::string& path, FileKind& kind) override {
        struct stat status {};
        if (stat(path.c_str(), &status) != 0)
            return LastError();
        kind = S_ISREG(status.st_mode)   ? FileKind::Plain
               : S_ISDIR(status.st_mode) ? FileKind::Directory
                                         : FileKind::Other;
        return {};
    }

    std::error_code List(const std::string& directory,
                         const std::function<void(const char*)>& visit) override {
        const std::unique_ptr<DIR, int (*)(DIR*)> pDirectory(
            opendir(directory.empty() ? "." : directory.c_str()), closedir);
        if (!pDirectory && errno == ENOMEM)
            throw std::bad_alloc();
        if (!pDirectory)
            return LastError();
        for (;;) {
            errno = 0; // by which alone the end differs from an error
            const dirent* pEntry = readdir(pDirectory.get());
            if (!pEntry)
                return ErrorUnless(errno == 0);
            visit(pEntry->d_name);
        }
    }

    std::error_code OpenToRead(const std::string& path, CSystemFilePtr& pFile,
                               std::uintmax_t& nSize) override {
        struct stat status {};
        const int nFile = Open(path, O_RDONLY | O_NONBLOCK, 0, pFile); // a pipe could keep one waiting
        if (nFile < 0 || fstat(nFile, &status) != 0)
            return LastError();
        nSize = static_cast<std::uintmax_t>(status.st_size);
        if (S_ISREG(status.st_mode))
            return {};
        return std::make_error_code(S_ISDIR(status.st_mode) ? std::errc::is_a_directory
                                                            : std::errc::operation_not_supported);
    }

    std::error_code CreateFor(const std::string& replaced, const std::string& path,
                              CSystemFilePtr& pFile) override {
        struct stat old {};
        const bool bReplaces = stat(replaced.c_str(), &old) == 0;
        if (bReplaces ? access(replaced.c_str(), W_OK) != 0 : errno != ENOENT)
            return LastError();
        // Nobody else gets in before owner and group are what they are to be.
        const int nFile = Open(path, O_WRONLY | O_CREAT | O_EXCL, bReplaces ? 0600 : 0666, pFile);
        if (nFile < 0)
            return LastError();
        flock(nFile, LOCK_EX | LOCK_NB);
        if (!bReplaces)
            return {};
        // Only a privileged process may give a file away, but any to a group of its own. The permissions come after,
        // of which this resets some.
        const bool bOwner = fchown(nFile, old.st_uid, old.st_gid) == 0;
        const bool bGroup = bOwner || fchown(nFile, static_cast<uid_t>(-1), old.st_gid) == 0;
        const bool bList = TakeAccessList(replaced, nFile);
        if (fchmod(nFile, PermissionsFor(old, bOwner, bGroup && bList)) == 0)
            return {};
        const std::error_code error = LastError();
        unlink(path.c_str());
        return error;
    }

    std::error_code Rename(const std::string& from, const std::string& to) override {
        return ErrorUnless(rename(from.c_str(), to.c_str()) == 0);
    }

    void Remove(const std::string& path) override { unlink(path.c_str()); }

    void RemoveAbandoned(const std::string& path, int nProcess) override {
        const bool bLives = kill(nProcess, 0) == 0 || errno != ESRCH;
        // The number may be that of a process on another machine or in a container, or of another one by now: the
        // lock tells, which a file has from the moment after its creation.
        constexpr time_t kMoment = 60;
        struct stat status {};
        CSystemFilePtr pFile;
        const int nFile = Open(path, O_RDONLY | O_NONBLOCK, 0, pFile);
        if (nFile >= 0 && flock(nFile, LOCK_EX | LOCK_NB) == 0 && fstat(nFile, &status) == 0 &&
            (!bLives || status.st_mtime < time(nullptr) - kMoment))
            unlink(path.c_str());
    }
};

CPosixFiles g_files;

} // namespace

CFileSystem& GetSystemFiles() {
    return g_files;
}

int GetProcessNumber() {
    return getpid();
}

} // namespace orrelix
