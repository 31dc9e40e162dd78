#include "controls/font_fields.h"

namespace orrelix {

CString FontInWords(const CFontFields& font) {
    CString words;
    for (const CString* pText : {&font.m_Face, &font.m_Size, &font.m_Weight, &font.m_Style}) {
        if (pText->IsEmpty() || *pText == "normal")
            continue;
        if (!words.IsEmpty())
            words += ", ";
        words += *pText;
    }
    return words;
}

} // namespace orrelix
