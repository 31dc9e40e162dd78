#include "platform/module.h"
#include "platform/paths.h"

#include <climits>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <optional>
#include <string>
#include <unistd.h>

namespace orrelix {

namespace {

Dl_info ThisModule() {
    Dl_info module{};
    dladdr(reinterpret_cast<const void*>(&GetModuleDirectory), &module);
    return module;
}

// With slashes; empty when the system can't tell. Asked for while the library is loaded: its path may be a relative one,
// and the host's directory may change. It takes no memory, because the process would end where there is none.
struct CModuleFile {
    CModuleFile() {
        const char* pFile = ThisModule().dli_fname;
        if (!pFile || !strchr(pFile, '/')) { // a program that was found along the PATH
            [[maybe_unused]] const auto nLength = readlink("/proc/self/exe", m_Path, sizeof m_Path - 1);
        } else if (char file[PATH_MAX]; realpath(pFile, file)) {
            // A link beside the library stays, because it outlives the version that it leads to.
            const auto nFolder = static_cast<int>(strrchr(file, '/') - file);
            const int nLength = snprintf(m_Path, sizeof m_Path, "%.*s%s", nFolder, file, strrchr(pFile, '/'));
            if (nLength >= PATH_MAX || access(m_Path, F_OK) != 0)
                strcpy(m_Path, file);
        }
    }

    char m_Path[PATH_MAX] = {};
};

const CModuleFile g_file;

std::optional<CString> g_namedByHost;

} // namespace

CString GetModuleDirectory() {
    return g_namedByHost ? *g_namedByHost : DirectoryOfPath(GetModuleFile());
}

void SetModuleDirectory(const CString& directory) {
    g_namedByHost = directory;
}

void* LoadNeighbour(const char* pLibrary, const char* pFunction) {
    const std::string_view file = g_file.m_Path;
    if (file.empty())
        return nullptr;
    const std::string neighbour = std::string(file.substr(0, file.rfind('/'))) + "/lib" + pLibrary + ".so";
    void* pLoaded = dlopen(neighbour.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    return pLoaded ? dlsym(pLoaded, pFunction) : nullptr;
}

CString GetModuleFile() {
    return FromSystemPath(g_file.m_Path);
}

// Where the library begins, in pages.
int GetModuleInstance() {
    const auto nPage = reinterpret_cast<std::uintptr_t>(ThisModule().dli_fbase) >> 12;
    return static_cast<int>(nPage & 0x7FFFFFFF) | 1;
}

} // namespace orrelix
