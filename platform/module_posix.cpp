#include "platform/module.h"

#include <algorithm>
#include <dlfcn.h>
#include <stdlib.h>

namespace {

CString FindModuleDirectory() {
    Dl_info module{};
    if (!dladdr(reinterpret_cast<const void*>(&GetModuleDirectory), &module) || !module.dli_fname)
        return {};
    char* pResolved = realpath(module.dli_fname, nullptr);
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
