// A user without any settings, for as long as the object lives: the process's configuration folder is a
// temporary one.
#pragma once

#include "platform/profile.h"
#include "tests/support/temporary_directory.h"

#include <stdlib.h>

namespace orrelix {

class CUserSettings {
public:
    CUserSettings() { setenv("XDG_CONFIG_HOME", m_Directory.File("").c_str(), 1); }
    ~CUserSettings() { unsetenv("XDG_CONFIG_HOME"); }
    CUserSettings(const CUserSettings&) = delete;
    CUserSettings& operator=(const CUserSettings&) = delete;

    std::filesystem::path Root() const { return m_Directory.File(""); }
    std::filesystem::path Folder() const { return Root() / kCompanyWord / kApplicationTitle; }
    std::filesystem::path File() const { return Folder() / "settings.ini"; }

private:
    CTemporaryDirectory m_Directory;
};

} // namespace orrelix
