#include "host/config_check.h"

#include "core/config_format.h"
#include "core/orrelix.h"
#include "core/parameters.h"
#include "host/component_path.h"
#include "host/report.h"

#include <algorithm>
#include <fmt/format.h>
#include <iterator>

namespace orrelix {

CConfigCheck::CConfigCheck(const std::filesystem::path& path) {
    m_Store.ReadFile(ComponentPath(path), &m_Form);
    if (m_Form.m_Error)
        throw CFileError(path, "can't be read: " + m_Form.m_Error.message());
    if (m_Form.m_nMarkers == 0) {
        m_Damage.push_back(fmt::format("is no configuration file: it has no line \"{}\"", kMarkers[0]));
    } else if (m_Form.m_nMarkers < std::size(kMarkers)) {
        m_Damage.push_back(
            fmt::format("is damaged: the line \"{}\" is missing, and what should stand behind it with it",
                        kMarkers[m_Form.m_nMarkers]));
    } else {
        // One of the resource lines is the count itself.
        CheckCount("resource", m_Store.m_Resources.GetSize(), m_Form.m_nResourceLines - 1);
        CheckCount("segment", m_Store.m_Segments.GetSize(), m_Form.m_nSegmentEnds);
    }
}

void CConfigCheck::CheckCount(const char* pNoun, std::ptrdiff_t nPromised, std::ptrdiff_t nThere) {
    if (nPromised != nThere)
        m_Damage.push_back(fmt::format("is damaged: its count promises {}, and {} can be found",
                                       Counted(static_cast<size_t>(nPromised), pNoun),
                                       std::max<std::ptrdiff_t>(nThere, 0)));
}

bool CConfigCheck::IsOurs() const {
    const CString* pProgID = m_Store.m_DescriptionMap.Find("ProgID");
    return pProgID && *pProgID == kProgID;
}

CString CConfigCheck::GetEffectType() const {
    return GetListItem(m_Store.GetParameter("DhtmlType", ""), 0);
}

const CEffect* CConfigCheck::GetEffect() const {
    return IsOurs() ? FindEffect(GetEffectType()) : nullptr;
}

std::string CConfigCheck::WhyNoEffect() const {
    if (m_Form.m_nMarkers < 4) // up to the Parameter Part's end
        return m_Damage.front();
    if (!IsOurs()) {
        const CString* pProgID = m_Store.m_DescriptionMap.Find("ProgID");
        const std::string whose = pProgID && !pProgID->IsEmpty()
                                      ? "belongs to another component, " + std::string(pProgID->View())
                                      : "doesn't say which component it belongs to (ProgID)";
        return whose + "; effects are those of " + kProgID;
    }
    if (GetEffectType() == "0")
        return "no effect has been chosen for it yet";
    if (!GetEffect())
        return fmt::format("names no effect that is known here (DhtmlType is \"{}\")",
                           GetEffectType().View());
    return {};
}

} // namespace orrelix
