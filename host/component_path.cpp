#include "host/component_path.h"

#include "host/report.h"
#include "platform/files.h"

#include <cerrno>
#include <system_error>

namespace fs = std::filesystem;

CString ComponentPath(const fs::path& path) {
    const std::string full = fs::absolute(path).lexically_normal().string();
    std::string result;
    for (char byte : full) {
        if (byte == '\\')
            throw CFileError(path,
                             "has a backslash in its path, where the component can't find it; rename it");
        // Behind a byte that may be the first half of a character a backslash could be its second half, so
        // that separator gets a step of its own: "/." in front, which changes no path.
        const bool bMayBeSwallowed = !result.empty() && static_cast<unsigned char>(result.back()) >= 0x80;
        if (byte == '/')
            result += bMayBeSwallowed ? "/.\\" : "\\";
        else
            result += byte;
    }
    return CString(std::move(result));
}

fs::path SystemPath(const CString& path) {
    CString result = path;
    result.Replace("\\", "/");
    return fs::path(std::string(result.View())).lexically_normal();
}

bool ReadFileContent(const fs::path& path, std::string& content) {
    std::error_code failed;
    const auto nSize = fs::file_size(path, failed);
    errno = fs::is_directory(path) ? EISDIR : 0;
    return ReadWholeFile(ComponentPath(path), content) && (failed || content.size() >= nSize);
}

std::string SystemReason() {
    return errno ? std::generic_category().message(errno) : "the system gives no reason";
}
