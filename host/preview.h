// orrelix preview: pages on which effects can be looked at.
#pragma once

#include "host/report.h"

#include <filesystem>
#include <vector>

namespace orrelix {

struct CPreviewOptions {
    std::vector<std::filesystem::path> m_Files; // configuration files
    std::filesystem::path m_Out;                // the folder for the pages, made if need be
    bool m_bIndex;                              // whether an index page shows them all
    bool m_bOverwrite;                          // whether files that aren't ours may be replaced
};

// Writes a page for each file, with the scripts and images that it needs beside it, and prints the paths of
// the pages. A file that gives no page is reported, and the others are done. A folder that is new or empty is marked as
// ours; in any other, nothing is written when a file of other content stands in the way.
void Preview(const CPreviewOptions& options, CReport& report);

} // namespace orrelix
