#include "host/files.h"

#include "host/report.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace orrelix {

namespace fs = std::filesystem;

fs::path PathForComponent(const fs::path& path) {
    const fs::path full = fs::absolute(path).lexically_normal();
    if (full.native().find('\\') != std::string::npos)
        throw CFileError(path, "has a backslash in its path, where the component can't find it; rename it");
    return full;
}

CString ComponentPath(const fs::path& path) {
    return FromSystemPath(PathForComponent(path).native());
}

fs::path SystemPath(const CString& path) {
    return fs::path(SystemSpelling(path)).lexically_normal();
}

std::error_code WriteFileContent(const fs::path& path, std::string_view content, Durability durability) {
    COutputFile file;
    if (const std::error_code error = file.Open(ComponentPath(path), Spelling::Exact))
        return error;
    file.Write(content);
    return file.Commit(durability == Durability::PowerCut);
}

bool SameContent(const CString& left, const CString& right) {
    std::string leftContent, rightContent;
    return !ReadWholeFile(left, leftContent) && !ReadWholeFile(right, rightContent) &&
           leftContent == rightContent;
}

} // namespace orrelix
