// Where the component's own file lies.
#pragma once

#include "platform/string.h"

// The directory of the library that holds this code, with backslashes and none at its end. The script files
// that pages need lie there. Empty when the system can't tell.
CString GetModuleDirectory();

// Names another directory, for a host that keeps the script files elsewhere.
void SetModuleDirectory(const CString& directory);

// A number that stands for the loaded library within this process: the address at which it begins.
long GetModuleInstance();
