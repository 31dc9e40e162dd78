// A host's way to the component, as a module that it loads at run time.
#include "core/orrelix.h"

namespace orrelix {

// Runs the dialogs and writes the file; whether the person pressed OK.
extern "C" bool MakeEffect(const char* pFile) {
    COrrelix orrelix;
    return orrelix.Config() && orrelix.WriteConfigFile(pFile);
}

} // namespace orrelix
