// The edge between the system's paths and the component's, which are full and have backslashes.
#pragma once

#include "platform/string.h"

#include <filesystem>

namespace orrelix {

// The path for the component. Throws CFileError when one of its names holds a backslash, for which the
// component has no spelling.
CString ComponentPath(const std::filesystem::path& path);

// The other way round, for messages and for the system's own operations.
std::filesystem::path SystemPath(const CString& path);

// Reads a file whole. False when it can't be opened or ends before its size.
bool ReadFileContent(const std::filesystem::path& path, std::string& content);

// Writes a file whole, under exactly this name. False when it can't; the file is as it was then.
enum class Durability { Usual, PowerCut };
bool WriteFileContent(const std::filesystem::path& path, std::string_view content, Durability durability);

// Whether both are files that hold the same bytes.
bool SameContent(const CString& left, const CString& right);

// What the system says about the operation that failed last, such as "No space left on device".
std::string SystemReason();

} // namespace orrelix
