#include "platform/paths.h"

#include "platform/code_page.h"

namespace orrelix {

CString FileNameOfPath(const CString& path) {
    return path.Mid(path.ReverseFind('\\') + 1);
}

CString DirectoryOfPath(const CString& path) {
    return path.Left(path.ReverseFind('\\'));
}

CString WithSlashes(CString text) {
    text.Replace("\\", "/");
    return text;
}

std::string SystemSpelling(const CString& path) {
    return std::string(WithSlashes(path).View());
}

CString FromSystemPath(std::string_view path) {
    const bool bTrailBytes = HasTrailBytes();
    CString result;
    for (size_t i = 0; i < path.size(); ++i) {
        const bool bMayBeSwallowed = bTrailBytes && i > 0 && static_cast<unsigned char>(path[i - 1]) >= 0x80;
        if (path[i] == '/')
            result += bMayBeSwallowed ? "/.\\" : "\\";
        else
            result += path[i];
    }
    return result;
}

} // namespace orrelix
