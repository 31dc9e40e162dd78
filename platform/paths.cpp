#include "platform/paths.h"

#include "platform/code_page.h"

namespace orrelix {

namespace {

// What stands for a "/" behind a byte that may be the first half of a character.
constexpr std::string_view kOwnStep = "/.\\";

} // namespace

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

bool IsPath(const CString& path) {
    const std::string_view text = path.View();
    for (size_t nSlash = text.find('/'); nSlash != text.npos; nSlash = text.find('/', nSlash + 1)) {
        const bool bOwnStep = nSlash > 0 && static_cast<unsigned char>(text[nSlash - 1]) >= 0x80 &&
                              text.substr(nSlash).starts_with(kOwnStep);
        if (!bOwnStep)
            return false;
    }
    return true;
}

CString FromSystemPath(std::string_view path) {
    const bool bTrailBytes = HasTrailBytes();
    CString result;
    for (size_t i = 0; i < path.size(); ++i) {
        const bool bMayBeSwallowed = bTrailBytes && i > 0 && static_cast<unsigned char>(path[i - 1]) >= 0x80;
        if (path[i] == '/')
            result += bMayBeSwallowed ? kOwnStep : std::string_view("\\");
        else
            result += path[i];
    }
    return result;
}

} // namespace orrelix
