#include "host/component_path.h"

#include "host/report.h"
#include "platform/files.h"
#include "platform/paths.h"

#include <cerrno>
#include <system_error>

namespace orrelix {

namespace fs = std::filesystem;

CString ComponentPath(const fs::path& path) {
    const std::string full = fs::absolute(path).lexically_normal().string();
    if (full.find('\\') != std::string::npos)
        throw CFileError(path, "has a backslash in its path, where the component can't find it; rename it");
    return FromSystemPath(full);
}

fs::path SystemPath(const CString& path) {
    return fs::path(SystemSpelling(path)).lexically_normal();
}

bool ReadFileContent(const fs::path& path, std::string& content) {
    std::error_code failed;
    const auto nSize = fs::file_size(path, failed);
    errno = fs::is_directory(path) ? EISDIR : 0;
    return ReadWholeFile(ComponentPath(path), content) && (failed || content.size() >= nSize);
}

bool WriteFileContent(const fs::path& path, std::string_view content, Durability durability) {
    COutputFile file;
    errno = 0;
    if (!file.Open(ComponentPath(path), Spelling::Exact))
        return false;
    file.Write(content);
    return file.Commit(durability == Durability::PowerCut);
}

bool SameContent(const CString& left, const CString& right) {
    std::string leftContent, rightContent;
    return ReadWholeFile(left, leftContent) && ReadWholeFile(right, rightContent) &&
           leftContent == rightContent;
}

std::string SystemReason() {
    return errno ? std::generic_category().message(errno) : "the system gives no reason";
}

} // namespace orrelix
