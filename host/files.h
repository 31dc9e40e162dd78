// The edge between the system's paths and the component's, which are full and have backslashes.
#pragma once

#include "platform/file_lock.h"
#include "platform/files.h"
#include "platform/string.h"

#include <filesystem>
#include <system_error>

namespace orrelix {

// The path for calls of the component, full. Throws CFileError when one of its names holds a backslash, which the
// component takes for a separator.
std::filesystem::path PathForComponent(const std::filesystem::path& path);

// The same, with the same failure, as the component and platform/files spell it.
CString ComponentPath(const std::filesystem::path& path);

// The other way round, for messages and for the system's own operations.
std::filesystem::path SystemPath(const CString& path);

// The path as the disk spells it, where that differs in case; otherwise as it is.
std::filesystem::path SpelledAsOnDisk(const std::filesystem::path& path);

// Where a path leads, links followed, be there a file or not. Empty when that is not below the folder, or is a link to
// nothing, behind which a file could land anywhere.
std::filesystem::path FollowBelow(const std::filesystem::path& path, const std::filesystem::path& folder);

// Writes a file whole, under exactly this name. On an error the file is as it was.
std::error_code WriteFileContent(const std::filesystem::path& path, std::string_view content,
                                 Durability durability);

// Locks a file that is going to be read, changed and written: other runs of this program wait until the result goes.
// Throws CFileError when one of them keeps it too long.
CFileLock LockFile(const std::filesystem::path& path);

// Whether a file is a script of ours of any age, where `script` belongs: all that we have ever shipped begin with the
// same line, and so does the next one.
bool IsOlderScript(const CString& file, const CString& script);

// Whether both are files that hold the same bytes.
bool SameContent(const CString& left, const CString& right);

} // namespace orrelix
