// Files, as far as the component needs them.
//
// Paths have backslashes between their parts, as hosts give them; only here do they become the system's own:
// on a system with slashes, "\home\ann\page.cfg" is /home/ann/page.cfg, and a slash within a name makes it that
// of no file. A backslash that is the second byte of a character stays. Where the file system tells case apart, a path that is not found as spelled is looked
// up part by part without regard to case, so that paths from systems that don't still work. A directory is
// never a file, and "*" and "?" in a path are characters like others. Only what is certainly absent counts as that:
// where the disk, its rights or the process's limits keep from looking, a file is taken to be there. Nothing here
// throws, but for want of memory: what can fail gives the system's error, or none.
#pragma once

#include "platform/array.h"
#include "platform/string.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>

namespace orrelix {

class CFileSystem;
class CSystemFile;
struct CDirectoryListing;

// Whether the path names a file.
bool FileExists(const CString& path);

// Whether the path names a directory, with or without a backslash at its end.
bool DirectoryExists(const CString& path);

// The last part of the path as the disk spells it, e.g. "Photo.GIF" for "\home\ann\photo.gif"; empty when
// there is no such file; as it was given where nobody can tell.
CString FileNameOnDisk(const CString& path);

// The path in the spelling of the disk; as it was given where there is no such file.
CString PathOnDisk(const CString& path);

// The names of the files in a directory that match a pattern such as "*.gif", sorted. "*" stands for any
// characters, "?" for one; case plays no part. Empty when the directory can't be read.
CStringArray FindFiles(const CString& directory, const CString& pattern);

// What writing to a path does where the disk tells case apart and has a file of this name in another case:
// that file is meant, or one of exactly this name, for those who look for a name as it is spelled.
enum class Spelling { AnyCase, Exact };

// Copies a file's bytes, replacing `to`, which keeps its permissions if it exists. The copy is whole or
// absent: on a failure `to` is as it was. Copying a file onto itself leaves it alone and succeeds.
std::error_code CopyWholeFile(const CString& from, const CString& to, Spelling spelling = Spelling::AnyCase);

// While one of these lives, looking for names that aren't on the disk as they are spelled lists each
// directory once, and not again for each name. For runs over many files on one thread: what other processes
// add meanwhile, under another case than it is looked for, may not be seen.
class CListedDirectories {
public:
    CListedDirectories();
    ~CListedDirectories();
    CListedDirectories(const CListedDirectories&) = delete;
    CListedDirectories& operator=(const CListedDirectories&) = delete;

    // What one of them lists on this thread; null when there is none.
    static CDirectoryListing* OfThisThread();

private:
    const std::thread::id m_Thread = std::this_thread::get_id();
    std::unique_ptr<CDirectoryListing> m_pListing; // null: an outer one is at work
    CListedDirectories* m_pNext = nullptr;
};

// A file read from its start to its end. A pipe or a device is none.
class CInputFile {
public:
    CInputFile();
    ~CInputFile();

    // May be called again, for another file.
    std::error_code Open(const CString& path);

    // The number of bytes put into the buffer, 0 at the end of the file. A read error counts as the end.
    size_t Read(char* pBuffer, size_t nSize);

    // How many bytes of those that the file had when it was opened are still to be read.
    std::uintmax_t GetLeft() const { return m_nLeft; }

    // What kept reading from the end that the file had then.
    std::error_code GetError() const { return m_Error; }

private:
    std::unique_ptr<CSystemFile> m_pFile;
    std::uintmax_t m_nLeft = 0;
    std::error_code m_Error;
};

// The whole content of a file. On an error it is what could be read, or what it was if nothing could. A file
// of more than nMost bytes isn't read (file_too_large).
std::error_code ReadWholeFile(const CString& path, std::string& content, std::uintmax_t nMost = UINTMAX_MAX);

// What a written file outlives. Where it is a power cut, its bytes are on the disk before the old file goes, so that
// one of the two is always there; and its writer first deletes what those left in the directory who were killed, which
// is little beside waiting for the disk.
enum class Durability { Usual, PowerCut };

// A file that is replaced as a whole: what is written goes to a temporary file beside it, which takes its
// name on Commit. Until then, and for ever if anything fails or the process dies, the old file stays as it
// was. So the directory has to be writable too. The new file has the old one's permissions and, where the
// system allows it, its owner and group; a hard link to the old one keeps the old content. What exists but is no plain
// file (a device, a pipe) isn't written to: its reader could leave, and the process with it.
class COutputFile {
public:
    // Deletes the temporary files that processes left in the directory when they were killed.
    static void RemoveLeftovers(const CString& directory);

    // The name of a file that this process makes in a directory for a moment: it is one of those.
    static std::string DraftName();

    COutputFile();
    ~COutputFile();

    // An error when a file can't be created there, or when the one that is there must not be written.
    std::error_code Open(const CString& path, Spelling spelling = Spelling::AnyCase,
                         Durability durability = Durability::PowerCut);

    // Appends. A failure is remembered for Commit.
    void Write(std::string_view bytes);

    // Ends the writing; no error when every byte is in place under the file's name.
    std::error_code Commit();

private:
    std::error_code OpenTarget();
    std::error_code CreateTemporary();
    void WriteAll(std::string_view bytes);
    void Flush();
    void Discard();

    std::unique_ptr<CSystemFile> m_pFile;
    std::error_code m_Error; // the first one
    Durability m_Durability = Durability::PowerCut;
    std::string m_Target;
    std::string m_Temporary;
    std::string m_Pending;
};

// Puts other calls in the place of the system's own for the whole process; null brings those back. For tests,
// while nobody has a file open.
void SetFileSystem(CFileSystem* pFileSystem);

} // namespace orrelix
