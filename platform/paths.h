// Paths as the component has them, full and with backslashes, and the same as the system spells them.
#pragma once

#include "platform/string.h"

#include <string>
#include <string_view>

namespace orrelix {

// A path where hosts give one: they may name it as the system does, and the component gets it full, with
// backslashes (see platform/wide_text.h).
class CPath : public CString {
public:
    using CString::CString;
    CPath(const CString& path) : CString(path) {}
};

// The text behind the last backslash; the whole path when it has none.
CString FileNameOfPath(const CString& path);

// The text before the last backslash, without it; empty when there is none.
CString DirectoryOfPath(const CString& path);

// The text with slashes for backslashes, but for those that are the second byte of a character.
CString WithSlashes(CString text);

// Whether the path can name a file. A "/" within one of its names can't: the system would take it for a step, and a name
// of a stranger's would lead anywhere.
bool IsPath(const CString& path);

// The path as the system spells it.
std::string SystemSpelling(const CString& path);

// The component's form of a path of the system's. Behind a byte that may be the first half of a character a
// backslash could be its second half, so there a step of its own stands in front of it, "/.", which changes no
// path.
CString FromSystemPath(std::string_view path);

} // namespace orrelix
