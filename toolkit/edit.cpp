#include "toolkit/edit.h"

#include "toolkit/dialog_description.h"

void CEdit::OnCreate(const CControlDescription& description) {
    m_bMultiLine = description.Has(STYLE_MULTI_LINE);
    m_bDigits = description.Has(STYLE_DIGITS);
}

void CEdit::PersonTypes(CPersonKey, const CString& text) {
    if (!IsWindowEnabled())
        return;
    SetWindowText(Accepted(text));
    NotifyDialog(Notification::Changed);
}

CString CEdit::Accepted(const CString& text) const {
    if (m_bMultiLine)
        return text;
    const std::string_view line = text.View().substr(0, text.View().find_first_of("\r\n"));
    if (!m_bDigits)
        return line;
    CString digits;
    for (char character : line) {
        if (character >= '0' && character <= '9')
            digits += character;
    }
    return digits;
}
