// A configuration file written by the component, whole with all that its effect needs or not at all.
#pragma once

#include "host/component.h"
#include "host/report.h"

#include <filesystem>

namespace orrelix {

struct CWriteOptions {
    bool m_bOverwrite = false; // copy images over files of the same name
    bool m_bStrict =
        false; // don't write where an image is missing, which the component would forget, or a comma would
               // shift fields; otherwise only say so
};

// Writes the file, with copies of the scripts and images beside it, and prints its path. Where one can't be made, the
// file stays as it was, images that have been copied go again, those that were there come back, and the reason is reported. Where there is a screen, the
// component asks about images whose names are taken; without one they are refused.
void WriteEffect(const CEffectObject& object, const std::filesystem::path& file, const CWriteOptions& options,
                 CReport& report);

} // namespace orrelix
