#include "host/files.h"

#include "host/report.h"
#include "platform/files.h"
#include "platform/paths.h"

#include <algorithm>

namespace orrelix {

namespace fs = std::filesystem;

fs::path PathForComponent(const fs::path& path) {
    fs::path full = fs::absolute(path);
    // A step up from a link leaves the folder that the link leads to.
    if (std::find(full.begin(), full.end(), "..") != full.end())
        full = fs::weakly_canonical(full.parent_path()) / full.filename();
    full = full.lexically_normal();
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

fs::path SpelledAsOnDisk(const fs::path& path) {
    std::error_code none;
    if (fs::exists(path, none))
        return path;
    const fs::path onDisk = SystemPath(PathOnDisk(ComponentPath(path)));
    if (!fs::exists(onDisk, none))
        return path;
    return path.is_absolute() ? onDisk : onDisk.lexically_proximate(fs::current_path());
}

fs::path FollowBelow(const fs::path& path, const fs::path& folder) {
    std::error_code failed;
    const fs::path end = fs::weakly_canonical(fs::absolute(path), failed);
    const fs::path root = failed ? fs::path() : fs::weakly_canonical(fs::absolute(folder), failed);
    const bool bBelow = !failed && end != root &&
                        std::mismatch(root.begin(), root.end(), end.begin(), end.end()).first == root.end();
    return bBelow && !fs::is_symlink(fs::symlink_status(end, failed)) ? end : fs::path();
}

std::error_code WriteFileContent(const fs::path& path, std::string_view content, Durability durability) {
    COutputFile file;
    if (const std::error_code error = file.Open(ComponentPath(path), Spelling::Exact, durability))
        return error;
    file.Write(content);
    return file.Commit();
}

CFileLock LockFile(const fs::path& path) {
    constexpr int kMilliseconds = 10000;
    CFileLock lock;
    if (!lock.AcquireFor(PathOnDisk(ComponentPath(path)), kMilliseconds))
        throw CFileError(path,
                         "is being changed by somebody else, who doesn't come to an end; try again later");
    return lock;
}

bool IsOlderScript(const CString& file, const CString& script) {
    std::string ours, theirs;
    return !ReadWholeFile(script, ours) && !ReadWholeFile(file, theirs) &&
           theirs.starts_with(ours.substr(0, ours.find('\n') + 1));
}

bool SameContent(const CString& left, const CString& right) {
    std::string leftContent, rightContent;
    return !ReadWholeFile(left, leftContent) && !ReadWholeFile(right, rightContent) &&
           leftContent == rightContent;
}

} // namespace orrelix
