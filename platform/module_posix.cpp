#include "platform/module.h"

#include <algorithm>
#include <dlfcn.h>
#include <stdlib.h>

namespace {

Dl_info ThisModule() {
    Dl_info module{};
    dladdr(reinterpret_cast<const void*>(&GetModuleDirectory), &module);
    return module;
}

// With slashes; empty when the system can't tell.
std::string FindDirectory() {
    const char* pFile = ThisModule().dli_fname;
    char* pResolved = pFile ? realpath(pFile, nullptr) : nullptr;
    if (!pResolved)
        return {};
    std::string path(pResolved);
    free(pResolved);
    return path.erase(path.rfind('/'));
}

CString FindModuleDirectory() {
    std::string path = FindDirectory();
    std::replace(path.begin(), path.end(), '/', '\\');
    return CString(std::move(path));
}

CString& ModuleDirectory() {
    static CString directory = FindModuleDirectory();
    return directory;
}

} // namespace

CString GetModuleDirectory() {
    return ModuleDirectory();
}

void SetModuleDirectory(const CString& directory) {
    ModuleDirectory() = directory;
}

void* LoadNeighbour(const char* pLibrary, const char* pFunction) {
    const std::string directory = FindDirectory();
    if (directory.empty())
        return nullptr;
    const std::string file = directory + "/lib" + pLibrary + ".so";
    void* pLoaded = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    return pLoaded ? dlsym(pLoaded, pFunction) : nullptr;
}

long GetModuleInstance() {
    return reinterpret_cast<long>(ThisModule().dli_fbase);
}
