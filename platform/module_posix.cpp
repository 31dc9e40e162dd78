#include "platform/module.h"
#include "platform/paths.h"

#include <dlfcn.h>
#include <filesystem>
#include <optional>

namespace orrelix {

namespace {

Dl_info ThisModule() {
    Dl_info module{};
    dladdr(reinterpret_cast<const void*>(&GetModuleDirectory), &module);
    return module;
}

// With slashes; empty when the system can't tell.
std::string FindDirectory() {
    const char* pFile = ThisModule().dli_fname;
    std::error_code unknown;
    return std::filesystem::canonical(pFile ? pFile : "", unknown).parent_path().string();
}

// Asked for while the library is loaded: its path may be a relative one, and the host's directory may change.
const std::string g_directory = FindDirectory();

std::optional<CString> g_namedByHost;

} // namespace

CString GetModuleDirectory() {
    if (g_namedByHost || g_directory.empty())
        return g_namedByHost.value_or("");
    const CString withEnd = FromSystemPath(g_directory + "/");
    return withEnd.Left(withEnd.GetLength() - 1);
}

void SetModuleDirectory(const CString& directory) {
    g_namedByHost = directory;
}

void* LoadNeighbour(const char* pLibrary, const char* pFunction) {
    if (g_directory.empty())
        return nullptr;
    const std::string file = g_directory + "/lib" + pLibrary + ".so";
    void* pLoaded = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    return pLoaded ? dlsym(pLoaded, pFunction) : nullptr;
}

long GetModuleInstance() {
    return reinterpret_cast<long>(ThisModule().dli_fbase);
}

} // namespace orrelix
