// Where the component's own file lies.
#pragma once

#include "platform/string.h"

namespace orrelix {

// The directory of the library that holds this code, with backslashes and none at its end. The script files
// that pages need lie there. Empty when the system can't tell.
CString GetModuleDirectory();

// Names another directory, for a host that keeps the script files elsewhere.
void SetModuleDirectory(const CString& directory);

// A function of another library beside the one that holds this code, wherever SetModuleDirectory points. The
// library is loaded if it isn't yet, and stays to the end of the process. The library's name goes without
// what the system puts around it ("lib", ".so"). Null when there is no such library or function.
void* LoadNeighbour(const char* pLibrary, const char* pFunction);

// The full path of the library that holds this code, under the name by which it was loaded; of a program, the
// program's. Empty when the system can't tell.
CString GetModuleFile();

// A number that stands for the loaded library within this process. Never 0.
int GetModuleInstance();

} // namespace orrelix
