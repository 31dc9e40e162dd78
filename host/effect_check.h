// Whether the texts that an author gave an effect leave it whole. They go into HTML and scripts as they are, where
// a quote or a "<" may end what they stand in.
#pragma once

#include "host/report.h"

#include <filesystem>

namespace orrelix {

// Warns of each text of a configuration file that makes the effect fail in a browser: which field it is, which
// character, and what to write in its place. What is suggested has been tried. Says nothing when the program was
// built without the parsers that judge the texts. Throws CFileError when no effect comes from the file.
void WarnOfHarmfulTexts(const std::filesystem::path& path, CReport& report);

} // namespace orrelix
