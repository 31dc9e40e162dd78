// What HTML and CSS make of a setting.
#pragma once

#include "platform/string.h"

namespace orrelix {

// The target of a link as HTML has it, "_self" for "self"; empty for none.
CString LinkTarget(const CString& target);

// A border as CSS has it, of a width, a style and six hexadecimal digits: "1 solid #d2b48c".
CString WholeBorder(const CString& width, const CString& style, const CString& color);

} // namespace orrelix
