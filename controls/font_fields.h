// The four texts of a font, which lie in an effect or in a dialog's copy of it.
#pragma once

#include "platform/string.h"

namespace orrelix {

struct CFontFields {
    CString& m_Face;
    CString& m_Size;
    CString& m_Weight;
    CString& m_Style;
};

// The font in a few words, for people: "Arial, 14, bold, italic". What is empty or normal isn't mentioned.
CString FontInWords(const CFontFields& font);

} // namespace orrelix
