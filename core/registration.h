// What hosts find the component by: its ProgID, its class and the category of components of its kind.
#pragma once

#include "platform/automation.h"

namespace orrelix {

// Enters the class with the library as it lies, and the category, into the user's registry. A registration that is
// there already is replaced.
HRESULT RegisterServer();

// Takes the class out again; the category stays. REGDB_E_CLASSNOTREG when nobody has registered it, E_FAIL when that
// wasn't this user.
HRESULT UnregisterServer();

} // namespace orrelix
