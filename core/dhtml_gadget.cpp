#include "core/dhtml_gadget.h"

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

} // namespace orrelix
