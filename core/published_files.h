// The files that an effect's page needs, as a host that puts them into a site has to know them.
#pragma once

#include "platform/string.h"

#include <vector>

namespace orrelix {

class COrrelix;

struct CPageFile {
    CString m_Source;  // where it lies
    CString m_WebPath; // its directory as the page's text has it: an address, empty or ending in "/"
    // Its name as registered, and every other spelling of it in the page's text: a web server may tell case
    // apart.
    std::vector<CString> m_Names;
};

struct CPageFiles {
    std::vector<CPageFile> m_Files;
    std::vector<CString> m_Lost; // files that the text refers to and that the component doesn't find any more
};

CPageFiles FindPageFiles(COrrelix& orrelix);

} // namespace orrelix
