#include "toolkit/edit.h"

#include "platform/paths.h"
#include "toolkit/dialog_description.h"

#include <algorithm>

namespace orrelix {

void CEdit::OnCreate(const CControlDescription& description) {
    m_bMultiLine = description.Has(STYLE_MULTI_LINE);
    m_bDigits = description.Has(STYLE_DIGITS);
    m_bColour = description.Has(STYLE_COLOUR);
    m_bPath = description.Has(STYLE_PATH);
}

CString CEdit::ForPerson() const {
    return m_bPath ? CString(SystemSpelling(GetWindowText())) : GetWindowText();
}

CString CEdit::FromPerson(const CString& text) const {
    if (m_bPath)
        return FromSystemPath(text);
    return m_bColour && text.Left(1) == "#" ? text.Mid(1) : text;
}

void CEdit::PersonTypes(CPersonKey, const CString& text) {
    if (!IsWindowEnabled())
        return;
    SetWindowText(Accepted(text));
    NotifyDialog(Notification::Changed);
}

CString CEdit::WithDigitsAlone(std::string_view text) const {
    const std::string_view old = GetWindowText().View();
    const size_t nShorter = std::min(text.size(), old.size());
    size_t nSameFront = 0, nSameBack = 0;
    while (nSameFront < nShorter && text[nSameFront] == old[nSameFront])
        ++nSameFront;
    while (nSameBack < nShorter - nSameFront &&
           text[text.size() - 1 - nSameBack] == old[old.size() - 1 - nSameBack])
        ++nSameBack;
    CString accepted;
    for (size_t i = 0; i < text.size(); ++i) {
        const bool bOld = i < nSameFront || i >= text.size() - nSameBack;
        if (bOld || (text[i] >= '0' && text[i] <= '9'))
            accepted += text[i];
    }
    return accepted;
}

CString CEdit::Accepted(const CString& text) const {
    if (m_bMultiLine)
        return text;
    const std::string_view line = text.View().substr(0, text.View().find_first_of("\r\n"));
    return m_bDigits ? WithDigitsAlone(line) : CString(line);
}

} // namespace orrelix
