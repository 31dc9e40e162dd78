// An effect as a host has it from the component: its texts for a page and the files that they need.
#pragma once

#include "core/orrelix.h"
#include "host/config_check.h"
#include "platform/string.h"

#include <filesystem>
#include <string>
#include <vector>

namespace orrelix {

// A file that a page needs.
struct CEffectFile {
    CString m_Source;  // the component's path of where it lies
    CString m_WebPath; // its directory as the page's text has it: an address, empty or ending in "/"
    // Its name as registered, and every other spelling of it in the page's text: a web server may tell case
    // apart.
    std::vector<CString> m_Names;
};

struct CGeneratedEffect {
    CString m_Title;
    const CEffect* m_pEffect = nullptr;
    CString m_Script; // what belongs into the page's head; may be empty
    CString m_Cursor; // what belongs to the place of the effect
    std::vector<CEffectFile> m_Files;
    std::vector<CString> m_Lost; // files that the texts refer to and that the component no longer finds
};

// Reads the file into the component. Throws CFileError when no effect comes from it.
CConfigCheck OpenEffect(const std::filesystem::path& path, COrrelix& orrelix);

// The text of a preview refers to files beside the page. Throws CFileError when no effect comes from the
// file.
CGeneratedEffect GenerateEffect(const std::filesystem::path& path, EHtmlMode mode);

// The text that belongs into the page's head; empty for effects that have none of their own.
CString ScriptText(COrrelix& orrelix, EHtmlMode mode);

// A title that can stand in names of a page's script: letters, digits and "_", no digit first.
std::string TitleFrom(std::string_view text);

} // namespace orrelix
