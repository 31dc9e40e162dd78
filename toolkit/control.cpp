#include "toolkit/control.h"

#include "toolkit/dialog_description.h"

#include <algorithm>

namespace orrelix {

void CControl::Create(const CControlDescription& description, CNotificationTarget* pTarget) {
    m_nId = description.m_nId;
    m_Text = WithoutMnemonic(description.m_pCaption);
    m_bEnabled = true;
    m_pTarget = pTarget;
    OnCreate(description);
}

void CControl::SetWindowText(const CString& text) {
    if (text == m_Text)
        return;
    m_Text = text;
    TellObserver(ControlChange::Text);
}

void CControl::EnableWindow(bool bEnable) {
    if (bEnable == m_bEnabled)
        return;
    m_bEnabled = bEnable;
    TellObserver(ControlChange::Enabled);
}

void CControl::SetFocus() {
    TellObserver(ControlChange::Focus);
}

void CControl::NotifyDialog(Notification notification) {
    if (m_pTarget)
        m_pTarget->OnNotify(m_nId, notification);
}

void CControl::TellObserver(ControlChange change, int nFirst, int nCount) {
    if (m_pObserver)
        m_pObserver->OnControlChanged(change, nFirst, nCount);
}

bool SortsBefore(const CString& left, const CString& right) {
    auto folded = [](char character) {
        const unsigned char byte = static_cast<unsigned char>(character);
        return byte >= 'A' && byte <= 'Z' ? byte - 'A' + 'a' : byte;
    };
    const std::string_view first = left, second = right;
    return std::lexicographical_compare(first.begin(), first.end(), second.begin(), second.end(),
                                        [&](char a, char b) { return folded(a) < folded(b); });
}

} // namespace orrelix
