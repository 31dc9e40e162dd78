#include "gadgets/html_values.h"

#include "core/html_text.h"

namespace orrelix {

CString LinkTarget(const CString& target) {
    return target.IsEmpty() ? CString() : "_" + target;
}

CString WholeBorder(const CString& width, const CString& style, const CString& color) {
    return Fill("$ $ #$", width, style, color);
}

} // namespace orrelix
