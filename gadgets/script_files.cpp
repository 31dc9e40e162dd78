#include "gadgets/script_files.h"

#include "core/html_text.h"
#include "platform/files.h"
#include "platform/module.h"

namespace orrelix {

CString ScriptInclude(const CString& directory, const CScriptFile& script) {
    return Fill("<script type=\"text/javascript\" src=\"$$\"></script>\r\n", directory, script.m_pPageName);
}

void CopyScript(const CScriptFile& script, const CString& directory) {
    const CString source = GetModuleDirectory() + "\\" + script.m_pName;
    CopyWholeFile(source, directory + script.m_pName, Spelling::Exact);
    if (CString(script.m_pName) != script.m_pPageName)
        CopyWholeFile(source, directory + script.m_pPageName, Spelling::Exact);
}

void RegisterScript(CVignelConfig& config, const CScriptFile& script, const CString& webPath) {
    config.AddResource({script.m_pResourceName, GetModuleDirectory() + "\\", webPath});
}

} // namespace orrelix
