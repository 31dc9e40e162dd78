// A host's way to the component, as a module that it loads at run time.
#include <orrelix.hpp>

// Runs the dialogs and writes the file; whether the person pressed OK.
extern "C" bool MakeEffect(const char* pFile) {
    const vignel::Orrelix orrelix{vignel::Library(std::filesystem::path(ORRELIX_LIBRARY))};
    return orrelix.Config() && orrelix.WriteConfigFile(pFile);
}
