#include "platform/configuration_folder.h"
#include "platform/paths.h"

#include <cstdlib>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orrelix {

namespace {

std::string Environment(const char* pName) {
    const char* pValue = std::getenv(pName);
    return pValue ? pValue : "";
}

// A process that a service started may have no HOME.
std::string HomeFolder() {
    if (std::string home = Environment("HOME"); !home.empty())
        return home;
    std::string buffer(size_t{1} << 14, '\0');
    passwd entry{};
    passwd* pFound = nullptr;
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &pFound) != 0 || !pFound)
        return "";
    return pFound->pw_dir ? pFound->pw_dir : "";
}

// As the XDG Base Directory convention has it: a path that isn't absolute doesn't count.
std::string ConfigurationFolder() {
    if (std::string folder = Environment("XDG_CONFIG_HOME"); folder.starts_with('/'))
        return folder;
    const std::string home = HomeFolder();
    return home.starts_with('/') ? home + "/.config" : "";
}

bool MakeFolders(const std::string& path) {
    for (size_t nEnd = path.find('/', 1); nEnd != std::string::npos; nEnd = path.find('/', nEnd + 1))
        mkdir(path.substr(0, nEnd).c_str(), 0700);
    mkdir(path.c_str(), 0700);
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

} // namespace

CString GetConfigurationFolder(const std::string& name, bool bCreate) {
    std::string folder = ConfigurationFolder();
    if (folder.empty())
        return {};
    folder += '/' + name;
    return bCreate && !MakeFolders(folder) ? CString() : FromSystemPath(folder);
}

} // namespace orrelix
