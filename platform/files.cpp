#include "platform/files.h"

#include "platform/file_system.h"
#include "platform/paths.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <filesystem>
#include <mutex>
#include <optional>
#include <random>
#include <unordered_map>
#include <utility>
#include <vector>

namespace orrelix {

namespace fs = std::filesystem;

// The names of directories by their lower-case form; of several, the first in byte order.
struct CDirectoryListing {
    using CNames = std::unordered_map<std::string, std::string>;
    struct CListed {
        CNames m_Names;
        std::error_code m_Error; // which kept some of them back
    };

    // Directories by their path with "/" at its end.
    std::unordered_map<std::string, CListed> m_Directories;

    std::error_code Find(const std::string& directory, const std::string& lowerName,
                         std::optional<std::string>& found);
    // Tells of a file that may be new.
    void Note(const std::string& path);
};

namespace {

constexpr size_t kBlock = 256 * 1024;
constexpr std::string_view kTemporaryPrefix = ".orrelix-";

CFileSystem* g_pFileSystem = nullptr; // null: the system's own

CFileSystem& System() {
    return g_pFileSystem ? *g_pFileSystem : GetSystemFiles();
}

// Whether an error says for certain that there is no such file. Any other one, of the disk or for want of rights or
// of descriptors, leaves that open.
bool IsAbsence(const std::error_code& error) {
    return error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory;
}

std::string LowerCase(std::string_view name) {
    return std::string(CString(name).MakeLower().View());
}

void AddName(CDirectoryListing::CNames& names, std::string_view name) {
    const auto [entry, bNew] = names.try_emplace(LowerCase(name), name);
    if (!bNew && name < entry->second)
        entry->second = name;
}

// The listings of all threads. What lives for a thread itself would take memory where the library is loaded late, and
// end the process when there is none.
std::mutex g_listingsMutex;
CListedDirectories* g_pListings = nullptr;

// Gives `name` the spelling of a name in the directory, whose path ends in "/" or is empty. Of several, the first in
// byte order. An error, and no change, where there is none.
std::error_code SpellAsInDirectory(const std::string& directory, std::string& name) {
    const std::string wanted = LowerCase(name);
    std::optional<std::string> found;
    std::error_code error;
    if (CDirectoryListing* pListing = CListedDirectories::OfThisThread()) {
        error = pListing->Find(directory, wanted, found);
    } else {
        error = System().List(directory, [&](const char* pName) {
            if (LowerCase(pName) == wanted && (!found || pName < *found))
                found = pName;
        });
    }
    if (found)
        name = *found;
    else if (!error)
        error = std::make_error_code(std::errc::no_such_file_or_directory);
    return found ? std::error_code() : error;
}

// A path as the disk spells it; as it was given, with the system's error, where none of its spellings is known to
// exist.
struct COnDisk {
    std::string m_Path;
    FileKind m_Kind = FileKind::None;
    std::error_code m_Error;

    bool MayBe(FileKind kind) const { return m_Error ? !IsAbsence(m_Error) : m_Kind == kind; }
};

// What exactly this path names.
COnDisk LookAt(const std::string& path) {
    COnDisk found{path, FileKind::None, {}};
    found.m_Error = System().GetKind(path, found.m_Kind);
    return found;
}

// The same path in the spelling of names that exist.
std::error_code SpellWithoutCase(const std::string& path, std::string& found) {
    FileKind kind = FileKind::None;
    for (size_t nStart = 0; nStart < path.size();) {
        const size_t nEnd = std::min(path.find('/', nStart), path.size());
        std::string name = path.substr(nStart, nEnd - nStart);
        std::error_code error;
        if (!name.empty())
            error = System().GetKind(found + name, kind);
        if (IsAbsence(error))
            error = SpellAsInDirectory(found, name);
        if (error)
            return error;
        found += name;
        if (nEnd < path.size())
            found += '/';
        nStart = nEnd + 1;
    }
    return {};
}

COnDisk FindOnDisk(const CString& path) {
    COnDisk found{SystemSpelling(path), FileKind::None,
                  std::make_error_code(std::errc::no_such_file_or_directory)};
    if (found.m_Path.empty() || found.m_Path.find('\0') != std::string::npos || !IsPath(path))
        return found;
    found = LookAt(found.m_Path);
    if (!IsAbsence(found.m_Error))
        return found;
    std::string spelled;
    found.m_Error = SpellWithoutCase(found.m_Path, spelled);
    const COnDisk other = found.m_Error ? found : LookAt(spelled);
    if (other.m_Error)
        found.m_Error = other.m_Error;
    return other.m_Error ? found : other;
}

// What a chain of symbolic links leads to, be it there or not.
std::error_code FollowLinks(std::string& path) {
    constexpr int kMostLinks = 40; // as many as the system follows
    std::error_code error;
    for (int nLink = 0; nLink < kMostLinks; ++nLink) {
        const fs::path link = fs::read_symlink(path, error);
        if (error == std::errc::invalid_argument || IsAbsence(error)) // no link, or nothing
            return {};
        if (error)
            return error;
        path = (fs::path(path).parent_path() / link).string();
    }
    return std::make_error_code(std::errc::too_many_symbolic_link_levels);
}

// Where a file of this path is to be written: its directory as the disk spells it, and no symbolic link,
// which replacing would break.
std::error_code FindTarget(const CString& path, Spelling spelling, std::string& target) {
    if (!IsPath(path))
        return std::make_error_code(std::errc::invalid_argument);
    target = SystemSpelling(path);
    const size_t nName = target.rfind('/') + 1;
    const COnDisk found = spelling == Spelling::AnyCase ? FindOnDisk(path) : COnDisk();
    target = found.m_Kind != FileKind::None
                 ? found.m_Path
                 : FindOnDisk(path.Left(path.ReverseFind('\\') + 1)).m_Path + target.substr(nName);
    return FollowLinks(target);
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

// What a number of a temporary file stands behind; those of COutputFile begin with 1.
std::string TemporaryPrefix() {
    return std::string(kTemporaryPrefix) + std::to_string(GetProcessNumber()) + "-";
}

// The process by which a temporary file of this name was made; 0 when it is no such name.
int MakerOf(const char* pName) {
    if (!std::string_view(pName).starts_with(kTemporaryPrefix)) // as nearly all of a large directory
        return 0;
    int nProcess = 0, nEnd = 0;
    const std::string format = std::string(kTemporaryPrefix) + "%d-%*u%n";
    const bool bOurs = sscanf(pName, format.c_str(), &nProcess, &nEnd) == 1 && nEnd > 0 && !pName[nEnd];
    return bOurs ? std::max(nProcess, 0) : 0;
}

// The directory's path ends in "/", or is empty.
void RemoveLeftoversIn(const std::string& directory) {
    std::vector<std::pair<std::string, int>> leftovers;
    System().List(directory, [&](const char* pName) {
        if (const int nMaker = MakerOf(pName); nMaker > 0)
            leftovers.emplace_back(directory + pName, nMaker);
    });
    for (const auto& [path, nMaker] : leftovers)
        System().RemoveAbandoned(path, nMaker);
}

// Hands a file's bytes on, up to its end or an error.
template <class TTake>
std::error_code ReadBlocks(CInputFile& file, TTake take) {
    std::string block(kBlock, '\0');
    while (const size_t nRead = file.Read(block.data(), block.size()))
        take(std::string_view(block.data(), nRead));
    return file.GetError();
}

} // namespace

void SetFileSystem(CFileSystem* pFileSystem) {
    g_pFileSystem = pFileSystem;
}

bool FileExists(const CString& path) {
    return FindOnDisk(path).MayBe(FileKind::Plain);
}

bool DirectoryExists(const CString& path) {
    return FindOnDisk(path).MayBe(FileKind::Directory);
}

CString FileNameOnDisk(const CString& path) {
    const COnDisk found = FindOnDisk(path);
    return found.MayBe(FileKind::Plain) ? CString(found.m_Path.substr(found.m_Path.rfind('/') + 1))
                                        : CString();
}

CString PathOnDisk(const CString& path) {
    return FromSystemPath(FindOnDisk(path).m_Path);
}

CStringArray FindFiles(const CString& directory, const CString& pattern) {
    CStringArray names;
    const COnDisk found = FindOnDisk(directory);
    if (found.m_Kind != FileKind::Directory)
        return names;
    const CString lowerPattern = CString(pattern).MakeLower();
    System().List(found.m_Path, [&](const char* pName) {
        if (MatchesPattern(CString(pName).MakeLower(), lowerPattern) &&
            LookAt(found.m_Path + "/" + pName).MayBe(FileKind::Plain))
            names.Add(pName);
    });
    std::sort(names.begin(), names.end());
    return names;
}

std::error_code CDirectoryListing::Find(const std::string& directory, const std::string& lowerName,
                                        std::optional<std::string>& found) {
    const auto [entry, bNew] = m_Directories.try_emplace(directory);
    CListed& listed = entry->second;
    if (bNew)
        listed.m_Error = System().List(directory, [&](const char* pName) { AddName(listed.m_Names, pName); });
    if (const auto name = listed.m_Names.find(lowerName); name != listed.m_Names.end())
        found = name->second;
    return listed.m_Error;
}

void CDirectoryListing::Note(const std::string& path) {
    const size_t nName = path.rfind('/') + 1;
    if (const auto listed = m_Directories.find(path.substr(0, nName)); listed != m_Directories.end())
        AddName(listed->second.m_Names, std::string_view(path).substr(nName));
}

CListedDirectories::CListedDirectories()
    : m_pListing(OfThisThread() ? nullptr : std::make_unique<CDirectoryListing>()) {
    const std::lock_guard lock(g_listingsMutex);
    m_pNext = std::exchange(g_pListings, this);
}

CListedDirectories::~CListedDirectories() {
    const std::lock_guard lock(g_listingsMutex);
    CListedDirectories** ppThis = &g_pListings;
    while (*ppThis != this)
        ppThis = &(*ppThis)->m_pNext;
    *ppThis = m_pNext;
}

CDirectoryListing* CListedDirectories::OfThisThread() {
    const std::lock_guard lock(g_listingsMutex);
    for (const CListedDirectories* pListed = g_pListings; pListed; pListed = pListed->m_pNext) {
        if (pListed->m_pListing && pListed->m_Thread == std::this_thread::get_id())
            return pListed->m_pListing.get();
    }
    return nullptr;
}

std::error_code CopyWholeFile(const CString& from, const CString& to, Spelling spelling) {
    CInputFile input;
    if (const std::error_code error = input.Open(from))
        return error;
    std::string target;
    std::error_code different;
    if (!FindTarget(to, spelling, target) && fs::equivalent(FindOnDisk(from).m_Path, target, different))
        return {};
    COutputFile output;
    if (const std::error_code error = output.Open(to, spelling, Durability::Usual))
        return error;
    if (const std::error_code error = ReadBlocks(input, [&](std::string_view block) { output.Write(block); }))
        return error;
    return output.Commit();
}

CInputFile::CInputFile() = default;
CInputFile::~CInputFile() = default;

std::error_code CInputFile::Open(const CString& path) {
    m_pFile.reset();
    const COnDisk found = FindOnDisk(path);
    m_Error = found.m_Error ? found.m_Error : System().OpenToRead(found.m_Path, m_pFile, m_nLeft);
    return m_Error;
}

size_t CInputFile::Read(char* pBuffer, size_t nSize) {
    size_t nRead = 0;
    if (!m_pFile || m_Error)
        return 0;
    m_Error = m_pFile->Read(pBuffer, nSize, nRead);
    // A file that ends early has lost bytes to an error of its disk, or to somebody else.
    if (nRead == 0 && m_nLeft > 0 && !m_Error)
        m_Error = std::make_error_code(std::errc::io_error);
    m_nLeft -= std::min<std::uintmax_t>(m_nLeft, nRead);
    return nRead;
}

std::error_code ReadWholeFile(const CString& path, std::string& content, std::uintmax_t nMost) {
    CInputFile file;
    if (const std::error_code error = file.Open(path))
        return error;
    if (file.GetLeft() > nMost)
        return std::make_error_code(std::errc::file_too_large);
    content.clear();
    return ReadBlocks(file, [&](std::string_view block) { content += block; });
}

void COutputFile::RemoveLeftovers(const CString& directory) {
    RemoveLeftoversIn(FindOnDisk(directory).m_Path + "/");
}

std::string COutputFile::DraftName() {
    return TemporaryPrefix() + std::to_string(std::random_device()());
}

COutputFile::COutputFile() = default;

COutputFile::~COutputFile() {
    Discard();
}

void COutputFile::Discard() {
    m_pFile.reset();
    if (!m_Temporary.empty())
        System().Remove(m_Temporary);
    m_Temporary.clear();
}

std::error_code COutputFile::Open(const CString& path, Spelling spelling, Durability durability) {
    Discard();
    m_Pending.clear();
    m_Durability = durability;
    m_Error = FindTarget(path, spelling, m_Target);
    if (!m_Error)
        m_Error = OpenTarget();
    return m_Error;
}

std::error_code COutputFile::OpenTarget() {
    if (m_Target.empty() || m_Target.find('\0') != std::string::npos)
        return std::make_error_code(std::errc::invalid_argument);
    const COnDisk found = LookAt(m_Target);
    if (found.m_Error ? IsAbsence(found.m_Error) : found.m_Kind == FileKind::Plain)
        return CreateTemporary();
    if (found.m_Error)
        return found.m_Error;
    return std::make_error_code(found.m_Kind == FileKind::Directory ? std::errc::is_a_directory
                                                                    : std::errc::operation_not_supported);
}

// Under a name that no other writer uses, in the directory of the target.
std::error_code COutputFile::CreateTemporary() {
    static std::atomic<unsigned> s_nCounter = 0;
    const std::string directory = m_Target.substr(0, m_Target.rfind('/') + 1);
    if (m_Durability == Durability::PowerCut)
        RemoveLeftoversIn(directory);
    const std::string prefix = directory + TemporaryPrefix();
    std::error_code error = std::make_error_code(std::errc::file_exists);
    for (int nTry = 0; nTry < 100 && error == std::errc::file_exists; ++nTry) {
        m_Temporary = prefix + std::to_string(++s_nCounter);
        error = System().CreateFor(m_Target, m_Temporary, m_pFile);
    }
    if (error)
        m_Temporary.clear();
    return error;
}

void COutputFile::Write(std::string_view bytes) {
    if (m_Pending.size() + bytes.size() > kBlock)
        Flush();
    if (bytes.size() > kBlock)
        WriteAll(bytes);
    else
        m_Pending += bytes;
}

void COutputFile::WriteAll(std::string_view bytes) {
    while (!bytes.empty() && m_pFile && !m_Error) {
        size_t nWritten = 0;
        m_Error = m_pFile->Write(bytes, nWritten);
        if (nWritten == 0 && !m_Error)
            m_Error = std::make_error_code(std::errc::io_error);
        bytes.remove_prefix(nWritten);
    }
}

void COutputFile::Flush() {
    WriteAll(m_Pending);
    m_Pending.clear();
}

std::error_code COutputFile::Commit() {
    if (!m_pFile)
        return m_Error ? m_Error : std::make_error_code(std::errc::bad_file_descriptor);
    Flush();
    if (!m_Error && m_Durability == Durability::PowerCut)
        m_Error = m_pFile->Sync();
    if (const std::error_code closing = m_pFile->Close(); !m_Error)
        m_Error = closing;
    if (!m_Error)
        m_Error = System().Rename(m_Temporary, m_Target);
    if (!m_Error) {
        m_Temporary.clear();
        if (CDirectoryListing* pListing = CListedDirectories::OfThisThread())
            pListing->Note(m_Target);
    }
    Discard();
    return m_Error;
}

} // namespace orrelix
