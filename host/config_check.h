// A configuration file as it lies on the disk: what its parts hold, in the order of the file, and whether it
// is whole.
//
// The store takes any file for good and leaves out what it doesn't find. A person wants to be told.
#pragma once

#include "core/vignel_config.h"
#include "host/report.h"
#include "resources/effects.h"

#include <filesystem>
#include <string>
#include <vector>

namespace orrelix {

class CConfigCheck {
public:
    // Throws CFileError when the file can't be read.
    explicit CConfigCheck(const std::filesystem::path& path);

    // The values and lists, and the keys' order.
    CVignelConfig m_Store;
    CConfigForm m_Form;

    // What is wrong with the file's form, a sentence's rest each; empty when it is whole.
    std::vector<std::string> m_Damage;

    // Whether anything of the file was recognised.
    bool IsConfigFile() const { return m_Form.m_nMarkers > 0; }

    // Why no effect can come back from the file. Empty when one can: it is our component's, names an effect,
    // and its Parameter Part is there whole.
    std::string WhyNoEffect() const;

    bool IsOurs() const;

    // The name of the effect's kind; null when none is chosen or it is none that is known.
    const CEffect* GetEffect() const;
    CString GetEffectType() const;

private:
    void CheckCount(const char* pNoun, std::ptrdiff_t nPromised, std::ptrdiff_t nThere);
};

} // namespace orrelix
