#include "core/dhtml_gadget.h"

#include "platform/files.h"
#include "platform/paths.h"

#include <algorithm>

namespace orrelix {

bool CDhtmlGadget::ReadFields(const CVignelConfig& config, const CString& directory) {
    CParameterReader reader(config, directory);
    ExchangeParameters(reader);
    return true;
}

void CDhtmlGadget::WriteFields(CVignelConfig& config) {
    CParameterWriter writer(config);
    ExchangeParameters(writer);
}

CString ScriptInclude(const CString& directory, const CScriptFile& script) {
    return Fill("<script type=\"text/javascript\" src=\"$$\"></script>\r\n", directory, script.m_pPageName);
}

CString DirectoryOfMode(CVignelConfig& config, short mode, const CString& remoteDirectory) {
    switch (mode) {
    case kPreview:
        return config.GetPreviewPath();
    case kPublish:
        return remoteDirectory;
    default:
        return {};
    }
}

CString LinkTarget(const CString& target) {
    return target.IsEmpty() ? CString() : "_" + target;
}

CString WholeBorder(const CString& width, const CString& style, const CString& color) {
    return Fill("$ $ #$", width, style, color);
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
