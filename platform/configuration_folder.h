// Where the files lie that are kept for each user.
#pragma once

#include "platform/string.h"

namespace orrelix {

// A folder below the user's configuration folder, by its name with slashes; with backslashes and none at its end. Empty
// when the user has no configuration folder or, with bCreate, when the folder can't be made.
CString GetConfigurationFolder(const std::string& name, bool bCreate);

} // namespace orrelix
