// Where the files lie that the component keeps for each user.
#pragma once

#include "platform/string.h"

namespace orrelix {

constexpr const char* kCompanyWord = "Brindlefen";
constexpr const char* kApplicationTitle = "Vellumark Orrelix";

// A folder below the user's configuration folder, by its name with slashes; with backslashes and none at its end. Empty
// when the user has no configuration folder or, with bCreate, when the folder can't be made.
CString GetConfigurationFolder(const std::string& name, bool bCreate);

// The component's own folder for the settings of the user, named by company word and application title.
CString GetUserFolder(bool bCreate);

} // namespace orrelix
