#include "controls/url_dlg.h"

#include "resources/url_description.h"
#include "toolkit/combo_box.h"

#include <algorithm>

namespace orrelix {

namespace {

using Id = UrlId;

constexpr char kOther[] = "(other)";

// What an address of each kind begins with. That of "gopher:" is recognised without the slashes with which it
// is written.
constexpr struct {
    const char* m_pType;
    const char* m_pStart;
} kTypes[] = {
    {"file:", "file://"}, {"ftp:", "ftp://"},     {"gopher:", "gopher:"},
    {"http:", "http://"}, {"https:", "https://"}, {"mailto:", "mailto:"},
    {"news:", "news:"},   {"telnet:", "telnet:"}, {"wais:", "wais:"},
};

bool HasSlashes(const CString& type) {
    const char* const types[] = {"file:", "ftp:", "gopher:", "http:", "https:"};
    return std::find(std::begin(types), std::end(types), type.View()) != std::end(types);
}

bool StartsWith(CString text, std::string_view start) {
    return text.MakeLower().View().starts_with(start);
}

CString TypeOf(const CString& url) {
    for (const auto& type : kTypes) {
        if (StartsWith(url, type.m_pStart))
            return type.m_pType;
    }
    return kOther;
}

CString PrefixOf(const CString& type) {
    if (type == kOther)
        return {};
    return HasSlashes(type) ? type + "//" : type;
}

} // namespace

CUrlDlg::CUrlDlg() : CFieldDialog(UrlDescription()) {
    AddFields({{Id::Type, m_Type}, {Id::Url, m_Url}});
    SetHandlers<CUrlDlg>({{Id::Type, Notification::ListClosed, &CUrlDlg::OnTypeListClosed}});
}

void CUrlDlg::OnInitDialog() {
    m_Type = m_LastType = TypeOf(m_Url);
    UpdateData(false);
}

void CUrlDlg::OnTypeListClosed() {
    m_LastType = m_Type;
    UpdateData(true);
    const CComboBox& types = Item<CComboBox>(Id::Type);
    if (types.GetCurSel() >= 0)
        m_Type = types.GetLBText(types.GetCurSel());
    if (m_LastType != kOther && StartsWith(m_Url, m_LastType))
        m_Url = m_Url.Mid(m_LastType.GetLength() + (HasSlashes(m_LastType) ? 2 : 0));
    m_Url = PrefixOf(m_Type) + m_Url;
    UpdateData(false);
}

void EditUrl(CString& url, bool bHandIn) {
    CUrlDlg dialog;
    EditThrough(dialog, {{url, dialog.m_Url}}, bHandIn);
}

} // namespace orrelix
