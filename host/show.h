// orrelix show: what a configuration file holds.
#pragma once

#include "host/report.h"

#include <filesystem>

namespace orrelix {

struct CShowOptions {
    std::filesystem::path m_File;
    bool m_bJson; // for programs, else for people
};

// Prints the file in UTF-8. A file that is damaged or holds no effect is shown as far as it goes, and
// reported.
void Show(const CShowOptions& options, CReport& report);

} // namespace orrelix
