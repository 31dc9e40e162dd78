// orrelix new and orrelix edit: an effect made or changed, in its dialogs or by options.
#pragma once

#include "host/report.h"

#include <filesystem>
#include <string>
#include <vector>

namespace orrelix {

struct CEditOptions {
    std::filesystem::path m_File;
    std::string m_Title;             // for new; empty for one made from the file's name
    std::string m_Effect;            // for new without dialogs: the effect's name
    std::vector<std::string> m_Sets; // "m_Name=value"; a list's name once for each item
    bool m_bListFields = false;      // print the fields instead of writing anything
    bool m_bJson = false;            // as JSON
    bool m_bOverwrite = false;       // copy images over files of the same name
};

// Makes a configuration file that isn't there yet. Without m_Effect the dialogs run.
void NewEffect(const CEditOptions& options, CReport& report);

// Changes one. Without m_Sets the effect's dialog runs.
void EditEffect(const CEditOptions& options, CReport& report);

} // namespace orrelix
