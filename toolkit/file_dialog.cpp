#include "toolkit/file_dialog.h"

#include "toolkit/desktop.h"
#include "toolkit/dialog_description.h"

#include <algorithm>

namespace orrelix {

namespace {

CStringArray Split(std::string_view text, char separator) {
    CStringArray parts;
    while (!text.empty()) {
        const size_t nEnd = std::min(text.find(separator), text.size());
        if (const std::string_view part = Trim(text.substr(0, nEnd)); !part.empty())
            parts.Add(part);
        text.remove_prefix(std::min(nEnd + 1, text.size()));
    }
    return parts;
}

} // namespace

CFileDialog::CFileDialog(const CString& fileName, const CString& filter)
    : m_Path(fileName), m_Filter(filter) {}

int CFileDialog::DoModal() {
    return GetDesktop().RunFileDialog(*this) ? IDOK : IDCANCEL;
}

std::vector<CFileDialog::CFilter> CFileDialog::GetFilters() const {
    std::vector<CFilter> filters;
    const CStringArray parts = Split(m_Filter, '|');
    for (CStringArray::Index nPart = 0; nPart + 1 < parts.GetSize(); nPart += 2)
        filters.push_back({parts[nPart], Split(parts[nPart + 1], ';')});
    return filters;
}

void CFileDialog::AddEdit(const CString& label, const CString& text) {
    m_AddedLabel = label;
    m_AddedEdit.Create({.m_Kind = ControlKind::Edit}, this);
    m_AddedEdit.SetWindowText(text);
}

} // namespace orrelix
