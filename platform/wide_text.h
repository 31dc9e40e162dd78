// Texts and paths on their way between the component, where they are bytes, and hosts, which have UTF-16.
//
// Under UTF-8 every text comes back as it went: a byte that is no UTF-8 goes as one of U+DC80 to U+DCFF. Under
// another code page what can't be converted becomes "?". A path is the system's own, whatever page is in force.
#pragma once

#include "platform/automation.h"
#include "platform/paths.h"

namespace orrelix {

// Whether texts cross as under UTF-8 whatever page is in force: for hosts that want a file's own bytes. Not at start.
bool HasRawTexts();
void SetRawTexts(bool bRaw);

// A new string of the caller's. Throws std::bad_alloc, and what ConvertPage does.
BSTR AllocText(std::string_view text);

// The text of a string, of which null is the empty one. Throws the same.
CString TextOf(BSTR text);

// The component's path of one that a host gave: with slashes or backslashes, and counted from the working
// directory unless it is a full one. Empty for an empty one. False when the string can't be a path: it has half a
// character or a zero. Throws std::filesystem::filesystem_error when the working directory is gone.
bool PathOf(BSTR text, CPath& path);

// The same for a path as bytes.
CPath FullPath(std::string_view path);

// The system's spelling of a path, as a new string of the caller's. Throws std::bad_alloc.
BSTR AllocPath(const CString& path);

} // namespace orrelix
