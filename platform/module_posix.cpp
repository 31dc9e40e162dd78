#include "platform/module.h"
#include "platform/paths.h"

#include <cstdint>
#include <cstring>
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

// With slashes; empty when the system can't tell. A link beside the library stays, because it outlives the version that
// it leads to.
std::filesystem::path FindFile() {
    const char* pFile = ThisModule().dli_fname;
    std::error_code unknown;
    if (!pFile || !strchr(pFile, '/')) // a program that was found along the PATH
        return std::filesystem::read_symlink("/proc/self/exe", unknown);
    const auto file = std::filesystem::canonical(pFile, unknown);
    const auto asLoaded = file.parent_path() / std::filesystem::path(pFile).filename();
    return std::filesystem::exists(asLoaded, unknown) ? asLoaded : file;
}

// Asked for while the library is loaded: its path may be a relative one, and the host's directory may change.
const std::filesystem::path g_file = FindFile();

std::optional<CString> g_namedByHost;

} // namespace

CString GetModuleDirectory() {
    return g_namedByHost ? *g_namedByHost : DirectoryOfPath(GetModuleFile());
}

void SetModuleDirectory(const CString& directory) {
    g_namedByHost = directory;
}

void* LoadNeighbour(const char* pLibrary, const char* pFunction) {
    if (g_file.empty())
        return nullptr;
    const std::string file = (g_file.parent_path() / "lib").string() + pLibrary + ".so";
    void* pLoaded = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    return pLoaded ? dlsym(pLoaded, pFunction) : nullptr;
}

CString GetModuleFile() {
    return FromSystemPath(g_file.string());
}

// Where the library begins, in pages.
int GetModuleInstance() {
    const auto nPage = reinterpret_cast<std::uintptr_t>(ThisModule().dli_fbase) >> 12;
    return static_cast<int>(nPage & 0x7FFFFFFF) | 1;
}

} // namespace orrelix
