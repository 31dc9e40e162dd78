// CFileSystem: the calls to the system that platform/files needs, one each and none tried twice. Each system has
// a source with its own; tests put one in its place of which calls fail.
//
// Paths are as the system spells them, with slashes. An error is the system's, and none where a call succeeded; a
// file that came with one is of no use.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

namespace orrelix {

enum class FileKind { None, Plain, Directory, Other };

// An open file, which ends with the object.
class CSystemFile {
public:
    virtual ~CSystemFile() = default;

    // May move fewer bytes than asked for. Reading none is the end of the file.
    virtual std::error_code Read(char* pBuffer, size_t nSize, size_t& nRead) = 0;
    virtual std::error_code Write(std::string_view bytes, size_t& nWritten) = 0;

    // Waits until what has been written is on the disk.
    virtual std::error_code Sync() = 0;

    // The last call: some disks tell only now that they had no room.
    virtual std::error_code Close() = 0;
};

using CSystemFilePtr = std::unique_ptr<CSystemFile>;

class CFileSystem {
public:
    // What a path names, links followed.
    virtual std::error_code GetKind(const std::string& path, FileKind& kind) = 0;

    // Tells every name in a directory, of which "" is the current one; those up to the error where there is one.
    virtual std::error_code List(const std::string& directory,
                                 const std::function<void(const char*)>& visit) = 0;

    // Opens a plain file and nothing else.
    virtual std::error_code OpenToRead(const std::string& path, CSystemFilePtr& pFile,
                                       std::uintmax_t& nSize) = 0;

    // Creates a file that is to take the place of another one: with that one's permissions and, where the
    // system allows it, its owner and its group; whom the new ones would let in for want of that stays out. An error,
    // and no new file, where that one exists and must not be written, or where `path` exists. While it is open,
    // RemoveAbandoned leaves it alone.
    virtual std::error_code CreateFor(const std::string& replaced, const std::string& path,
                                      CSystemFilePtr& pFile) = 0;

    // Replaces what `to` names in one step.
    virtual std::error_code Rename(const std::string& from, const std::string& to) = 0;

    virtual void Remove(const std::string& path) = 0;

    // Removes a file that a process created, unless somebody has it open to write or that process may still live.
    virtual void RemoveAbandoned(const std::string& path, int nProcess) = 0;

protected:
    ~CFileSystem() = default;
};

// The system's own calls.
CFileSystem& GetSystemFiles();

// The number of this process.
int GetProcessNumber();

} // namespace orrelix
