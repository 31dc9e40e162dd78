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

CString FindModuleDirectory() {
    const char* pFile = ThisModule().dli_fname;
    char* pResolved = pFile ? realpath(pFile, nullptr) : nullptr;
    if (!pResolved)
        return {};
    std::string path(pResolved);
    free(pResolved);
    path.erase(path.rfind('/'));
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

long GetModuleInstance() {
    return reinterpret_cast<long>(ThisModule().dli_fbase);
}
