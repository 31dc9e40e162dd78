// No effect selected yet.
#pragma once

#include "core/dhtml_gadget.h"

namespace orrelix {

class CNoSelect : public CGadget<CNoSelect> {
public:
    CString GetHTMLBody(CVignelConfig&, short, short) override { return "Not Select DHTML Script\r\n"; }
    void CopyResources(const CString&, short) override {}
    bool ReadParameters(CVignelConfig&, const CString&) override { return true; }
    short RegisterResources(CVignelConfig& config) override {
        config.ClearResources();
        return 0;
    }
    void WriteParameters(CVignelConfig&) override {}
    short GetHTMLSegmentNumber() override { return 1; }
};

} // namespace orrelix
