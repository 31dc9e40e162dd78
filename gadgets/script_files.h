// Script files that lie beside the component, which effects refer to, copy and register.
#pragma once

#include "core/vignel_config.h"
#include "platform/string.h"

namespace orrelix {

// A script file, which is copied beside the page. Two other spellings of its name,
// but for case the same, stand in pages' text and in the store's resources: files and pages know them so.
struct CScriptFile {
    constexpr CScriptFile(const char* pName, const char* pPageName = nullptr,
                          const char* pResourceName = nullptr)
        : m_pName(pName), m_pPageName(pPageName ? pPageName : pName),
          m_pResourceName(pResourceName ? pResourceName : pName) {}

    const char* m_pName;
    const char* m_pPageName;
    const char* m_pResourceName;
};

// The line by which a page loads a script file of a directory, which is empty or ends in its separator.
CString ScriptInclude(const CString& directory, const CScriptFile& script);

// Copies a file to a directory, given with a backslash at its end. Where the disk tells case apart, it is there under
// its own name and the page's.
void CopyScript(const CScriptFile& script, const CString& directory);

// Adds its resource.
void RegisterScript(CVignelConfig& config, const CScriptFile& script, const CString& webPath);

} // namespace orrelix
