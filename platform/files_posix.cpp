#include "platform/files.h"
#include "platform/paths.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <optional>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <unordered_map>
#include <vector>

namespace orrelix {

namespace fs = std::filesystem;

// The names of directories by their lower-case form; of several, the first in byte order.
struct CDirectoryListing {
    using CNames = std::unordered_map<std::string, std::string>;

    // Directories by their path with "/" at its end.
    std::unordered_map<std::string, CNames> m_Directories;

    std::optional<std::string> Find(const std::string& directory, const std::string& lowerName);
    // Tells of a file that may be new.
    void Note(const std::string& path);
};

namespace {

constexpr size_t kBlock = 256 * 1024;
constexpr std::string_view kTemporaryPrefix = ".orrelix-";

bool Exists(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0;
}

bool IsPlainFile(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

void ForEachName(const std::string& directory, const std::function<void(const char*)>& visit) {
    DIR* pDirectory = opendir(directory.empty() ? "." : directory.c_str());
    if (!pDirectory)
        return;
    while (const dirent* pEntry = readdir(pDirectory))
        visit(pEntry->d_name);
    closedir(pDirectory);
}

std::string LowerCase(std::string_view name) {
    return std::string(CString(name).MakeLower().View());
}

void AddName(CDirectoryListing::CNames& names, std::string_view name) {
    const auto [entry, bNew] = names.try_emplace(LowerCase(name), name);
    if (!bNew && name < entry->second)
        entry->second = name;
}

// What lives for the thread is a mere pointer: a destructor at the thread's end would keep the library loaded.
thread_local CDirectoryListing* t_pListing = nullptr;

// The directory's path ends in "/", or is empty. Of several names, the first in byte order.
std::optional<std::string> NameWithoutCase(const std::string& directory, const std::string& name) {
    const std::string wanted = LowerCase(name);
    if (t_pListing)
        return t_pListing->Find(directory, wanted);
    std::optional<std::string> found;
    ForEachName(directory, [&](const char* pName) {
        if (LowerCase(pName) == wanted && (!found || pName < *found))
            found = pName;
    });
    return found;
}

// The path as the disk spells it, or nothing when no spelling of it exists.
std::optional<std::string> FindOnDisk(const std::string& path) {
    if (path.empty() || path.find('\0') != std::string::npos)
        return std::nullopt;
    if (Exists(path))
        return path;
    std::string found;
    for (size_t nStart = 0; nStart < path.size();) {
        const size_t nEnd = std::min(path.find('/', nStart), path.size());
        const std::string name = path.substr(nStart, nEnd - nStart);
        if (!name.empty()) {
            if (Exists(found + name)) {
                found += name;
            } else if (const auto otherName = NameWithoutCase(found, name)) {
                found += *otherName;
            } else {
                return std::nullopt;
            }
        }
        if (nEnd < path.size())
            found += '/';
        nStart = nEnd + 1;
    }
    return Exists(found) ? std::optional(found) : std::nullopt;
}

std::optional<std::string> FindFileOnDisk(const CString& path) {
    std::optional<std::string> found = FindOnDisk(SystemSpelling(path));
    return found && IsPlainFile(*found) ? found : std::nullopt;
}

// What a chain of symbolic links leads to, be it there or not.
std::string BehindLinks(std::string path) {
    std::error_code none;
    for (int nLink = 0; nLink < 40; ++nLink) {
        const fs::path link = fs::read_symlink(path, none);
        if (none)
            break;
        path = (fs::path(path).parent_path() / link).string();
    }
    return path;
}

// Where a file of this path is to be written: its directory as the disk spells it, and no symbolic link,
// which replacing would break.
std::string TargetOf(const CString& path, Spelling spelling) {
    std::string target = SystemSpelling(path);
    const size_t nName = target.rfind('/') + 1;
    const auto found = spelling == Spelling::AnyCase ? FindOnDisk(target) : std::nullopt;
    if (found)
        target = *found;
    else if (const auto directory = FindOnDisk(target.substr(0, nName)))
        target = *directory + target.substr(nName);
    return BehindLinks(target);
}

bool WriteAll(int nFile, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t nWritten = write(nFile, bytes.data(), bytes.size());
        if (nWritten < 0 && errno == EINTR)
            continue;
        if (nWritten <= 0)
            return false;
        bytes.remove_prefix(static_cast<size_t>(nWritten));
    }
    return true;
}

// Creates a file of a name that no other writer uses, in the directory of the target.
int CreateBeside(const std::string& target, mode_t nMode, std::string& temporary) {
    static std::atomic<unsigned> s_nCounter = 0;
    const std::string directory = target.substr(0, target.rfind('/') + 1);
    for (int nTry = 0; nTry < 100; ++nTry) {
        temporary = directory;
        temporary.append(kTemporaryPrefix) += std::to_string(getpid()) + "-" + std::to_string(++s_nCounter);
        const int nFile = open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, nMode);
        if (nFile >= 0)
            flock(nFile, LOCK_EX | LOCK_NB); // for RemoveLeftovers: somebody is at work here
        if (nFile >= 0 || errno != EEXIST)
            return nFile;
    }
    return -1;
}

bool MatchesPattern(std::string_view name, std::string_view pattern) {
    // On a mismatch the last "*" takes one more character; earlier ones never need to.
    size_t nName = 0, nPattern = 0, nStar = std::string_view::npos, nStarName = 0;
    while (nName < name.size()) {
        if (nPattern < pattern.size() && pattern[nPattern] == '*') {
            nStar = nPattern++;
            nStarName = nName;
        } else if (nPattern < pattern.size() &&
                   (pattern[nPattern] == '?' || pattern[nPattern] == name[nName])) {
            ++nPattern;
            ++nName;
        } else if (nStar != std::string_view::npos) {
            nPattern = nStar + 1;
            nName = ++nStarName;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', nPattern) == std::string_view::npos;
}

bool SameFile(const std::string& left, const std::string& right) {
    struct stat leftStatus {
    }, rightStatus{};
    return stat(left.c_str(), &leftStatus) == 0 && stat(right.c_str(), &rightStatus) == 0 &&
           leftStatus.st_dev == rightStatus.st_dev && leftStatus.st_ino == rightStatus.st_ino;
}

// Whether this is the name of a temporary file, as CreateBeside makes them, of a process that is no more.
bool IsLeftover(const char* pName) {
    int nProcess = 0, nEnd = 0;
    const std::string format = std::string(kTemporaryPrefix) + "%d-%*u%n";
    if (sscanf(pName, format.c_str(), &nProcess, &nEnd) != 1 || nEnd == 0 || pName[nEnd] || nProcess <= 0)
        return false;
    return kill(nProcess, 0) != 0 && errno == ESRCH;
}

} // namespace

bool FileExists(const CString& path) {
    return FindFileOnDisk(path).has_value();
}

bool DirectoryExists(const CString& path) {
    struct stat status {};
    const auto found = FindOnDisk(SystemSpelling(path));
    return found && stat(found->c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

CString FileNameOnDisk(const CString& path) {
    const auto found = FindFileOnDisk(path);
    return found ? CString(found->substr(found->rfind('/') + 1)) : CString();
}

CStringArray FindFiles(const CString& directory, const CString& pattern) {
    CStringArray names;
    const auto found = FindOnDisk(SystemSpelling(directory));
    if (!found)
        return names;
    const CString lowerPattern = CString(pattern).MakeLower();
    ForEachName(*found, [&](const char* pName) {
        if (MatchesPattern(CString(pName).MakeLower(), lowerPattern) && IsPlainFile(*found + "/" + pName))
            names.Add(pName);
    });
    std::sort(names.begin(), names.end());
    return names;
}

std::optional<std::string> CDirectoryListing::Find(const std::string& directory,
                                                   const std::string& lowerName) {
    const auto [listed, bNew] = m_Directories.try_emplace(directory);
    CNames& names = listed->second;
    if (bNew)
        ForEachName(directory, [&names](const char* pName) { AddName(names, pName); });
    const auto found = names.find(lowerName);
    return found == names.end() ? std::nullopt : std::optional(found->second);
}

void CDirectoryListing::Note(const std::string& path) {
    const size_t nName = path.rfind('/') + 1;
    if (const auto listed = m_Directories.find(path.substr(0, nName)); listed != m_Directories.end())
        AddName(listed->second, std::string_view(path).substr(nName));
}

CListedDirectories::CListedDirectories()
    : m_pListing(t_pListing ? nullptr : std::make_unique<CDirectoryListing>()) {
    if (m_pListing)
        t_pListing = m_pListing.get();
}

CListedDirectories::~CListedDirectories() {
    if (m_pListing)
        t_pListing = nullptr;
}

bool CopyWholeFile(const CString& from, const CString& to, Spelling spelling) {
    const auto source = FindFileOnDisk(from);
    if (!source)
        return false;
    if (SameFile(*source, TargetOf(to, spelling)))
        return true;
    CInputFile input;
    COutputFile output;
    if (!input.Open(from) || !output.Open(to, spelling))
        return false;
    struct stat status {};
    off_t nLeft = stat(source->c_str(), &status) == 0 ? status.st_size : 0;
    std::string block(kBlock, '\0');
    while (const size_t nRead = input.Read(block.data(), block.size())) {
        output.Write({block.data(), nRead});
        nLeft -= static_cast<off_t>(nRead);
    }
    // A source that ended early, by an error of its disk, makes no whole copy.
    return nLeft <= 0 && output.Commit(false);
}

CInputFile::~CInputFile() {
    Close();
}

void CInputFile::Close() {
    if (m_nFile >= 0)
        close(m_nFile);
    m_nFile = -1;
}

bool CInputFile::Open(const CString& path) {
    Close();
    const auto found = FindOnDisk(SystemSpelling(path));
    if (!found)
        return false;
    m_nFile = open(found->c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); // a pipe could keep one waiting
    struct stat status {};
    if (m_nFile >= 0 && (fstat(m_nFile, &status) != 0 || !S_ISREG(status.st_mode)))
        Close();
    return m_nFile >= 0;
}

size_t CInputFile::Read(char* pBuffer, size_t nSize) {
    ssize_t nRead = 0;
    do {
        nRead = read(m_nFile, pBuffer, nSize);
    } while (nRead < 0 && errno == EINTR);
    return nRead > 0 ? static_cast<size_t>(nRead) : 0;
}

bool ReadWholeFile(const CString& path, std::string& content) {
    CInputFile file;
    if (!file.Open(path))
        return false;
    content.clear();
    std::string block(kBlock, '\0');
    while (const size_t nRead = file.Read(block.data(), block.size()))
        content.append(block, 0, nRead);
    return true;
}

void COutputFile::RemoveLeftovers(const CString& directory) {
    const auto found = FindOnDisk(SystemSpelling(directory));
    if (!found)
        return;
    std::vector<std::string> leftovers;
    ForEachName(*found, [&](const char* pName) {
        if (IsLeftover(pName) && IsPlainFile(*found + "/" + pName))
            leftovers.push_back(*found + "/" + pName);
    });
    for (const std::string& path : leftovers) {
        // The number may be that of a process on another machine, or in a container: the lock tells.
        const int nFile = open(path.c_str(), O_RDONLY | O_CLOEXEC);
        if (nFile >= 0 && flock(nFile, LOCK_EX | LOCK_NB) == 0)
            unlink(path.c_str());
        close(nFile);
    }
}

COutputFile::~COutputFile() {
    Discard();
}

void COutputFile::Discard() {
    if (m_nFile >= 0)
        close(m_nFile);
    m_nFile = -1;
    if (!m_Temporary.empty())
        unlink(m_Temporary.c_str());
    m_Temporary.clear();
}

bool COutputFile::Open(const CString& path, Spelling spelling) {
    Discard();
    m_bFailed = false;
    m_Pending.clear();
    m_Target = TargetOf(path, spelling);
    if (m_Target.empty() || m_Target.find('\0') != std::string::npos)
        return false;
    struct stat status {};
    if (stat(m_Target.c_str(), &status) != 0) {
        m_nFile = CreateBeside(m_Target, 0666, m_Temporary);
    } else if (!S_ISREG(status.st_mode)) {
        m_nFile = open(m_Target.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
        if (m_nFile >= 0)
            m_bFailed = fcntl(m_nFile, F_SETFL, 0) != 0; // only the opening of a pipe mustn't wait
    } else if (access(m_Target.c_str(), W_OK) == 0) {
        m_nFile = CreateBeside(m_Target, status.st_mode & 0777, m_Temporary);
        if (m_nFile >= 0) {
            // Only a privileged process may give a file away; the permissions come after, which this resets.
            [[maybe_unused]] const int nGiven = fchown(m_nFile, status.st_uid, status.st_gid);
            m_bFailed = fchmod(m_nFile, status.st_mode & 07777) != 0;
        }
    }
    if (m_nFile < 0)
        m_Temporary.clear();
    return m_nFile >= 0;
}

void COutputFile::Write(std::string_view bytes) {
    if (m_Pending.size() + bytes.size() <= kBlock) {
        m_Pending += bytes;
        return;
    }
    Flush();
    if (bytes.size() <= kBlock)
        m_Pending = bytes;
    else if (!m_bFailed)
        m_bFailed = !WriteAll(m_nFile, bytes);
}

void COutputFile::Flush() {
    if (!m_bFailed)
        m_bFailed = !WriteAll(m_nFile, m_Pending);
    m_Pending.clear();
}

bool COutputFile::Commit(bool bDurable) {
    if (m_nFile < 0)
        return false;
    Flush();
    if (!m_Temporary.empty() && bDurable && !m_bFailed)
        m_bFailed = fsync(m_nFile) != 0;
    // A disk may report only at closing that it had no room.
    m_bFailed = close(m_nFile) != 0 || m_bFailed;
    m_nFile = -1;
    if (!m_bFailed && !m_Temporary.empty()) {
        m_bFailed = rename(m_Temporary.c_str(), m_Target.c_str()) != 0;
        if (!m_bFailed) {
            m_Temporary.clear();
            if (t_pListing)
                t_pListing->Note(m_Target);
        }
    }
    Discard();
    return !m_bFailed;
}

} // namespace orrelix
