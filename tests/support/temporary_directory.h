// A directory that lives as long as the object, and paths in it.
#pragma once

#include "platform/string.h"

#include <filesystem>
#include <string>
#include <vector>

namespace orrelix {

class CTemporaryDirectory {
public:
    CTemporaryDirectory();
    ~CTemporaryDirectory();
    CTemporaryDirectory(const CTemporaryDirectory&) = delete;
    CTemporaryDirectory& operator=(const CTemporaryDirectory&) = delete;

    // The path of a file in it, as the system has it and as the component's hosts give it.
    std::filesystem::path File(const std::string& name) const { return m_Path / name; }
    CString Path(const std::string& name = "") const;

    // Writes a file into it; the result is its path for the component.
    CString Write(const std::string& name, std::string_view content) const;

private:
    std::filesystem::path m_Path;
};

// A path of the system's as the component's hosts give it.
CString HostPath(const std::filesystem::path& path);

// The names of the folder's files with this ending, without it, sorted.
std::vector<std::string> StemsIn(const std::filesystem::path& folder, const char* pEnding);

// The bytes of a file; a test that names no file fails.
std::string FileContent(const std::filesystem::path& path);

} // namespace orrelix
