// An effect as a host has it from the component: its texts for a page and the files that they need.
#pragma once

#include "host/component.h"

#include <filesystem>
#include <string>
#include <vector>

namespace orrelix {

// How generated text refers to files; see GetHTMLBody.
enum EHtmlMode { kPreview = 0, kPublish = 1 };

// A file that a page needs.
struct CEffectFile {
    CString m_Source;  // the component's path of where it lies
    CString m_WebPath; // its directory as the page's text has it: an address, empty or ending in "/"
    // Its name as registered, and every other spelling of it in the page's text: a web server may tell case
    // apart.
    std::vector<CString> m_Names;
    bool m_bScript; // one of our own, which the component brings along
};

struct CGeneratedEffect {
    CString m_Title;
    std::string m_Effect; // its name
    std::string m_Description;
    CString m_Script; // what belongs into the page's head; may be empty
    CString m_Cursor; // what belongs to the place of the effect
    std::vector<CEffectFile> m_Files;
    std::vector<CString> m_Lost; // files that the texts refer to and that the component no longer finds
};

// What an object has read. The text of a preview refers to files beside the page.
CGeneratedEffect GenerateEffect(const CEffectObject& object, EHtmlMode mode);

// The text that belongs into the page's head; empty for effects that have none of their own.
CString ScriptText(const CEffectObject& object, EHtmlMode mode);

} // namespace orrelix
