#include "host/config_check.h"

#include "core/config_format.h"
#include "core/orrelix.h"
#include "core/parameters.h"
#include "host/component_path.h"
#include "host/report.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <unordered_set>

namespace orrelix {

namespace {

// The lines between which the parts stand, in the file's order.
constexpr std::array<std::string_view, 8> kMarkers = {
    kDescriptionPart.m_Begin, kDescriptionPart.m_End, kParameterPart.m_Begin, kParameterPart.m_End,
    kResourcePart.m_Begin,    kResourcePart.m_End,    kHtmlPart.m_Begin,      kHtmlPart.m_End,
};
constexpr size_t kMarkersUpToParameters = 4;

std::string_view TakeLine(std::string_view& text) {
    const size_t nEnd = text.find('\n');
    std::string_view line = text.substr(0, nEnd);
    text.remove_prefix(nEnd == std::string_view::npos ? text.size() : nEnd + 1);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

// The keys that stand in front of a "=", in order.
std::vector<CString> KeysOf(std::string_view part, const CMapStringToString& map) {
    std::vector<CString> keys;
    std::unordered_set<std::string_view> seen;
    while (!part.empty()) {
        const std::string_view line = TakeLine(part);
        const size_t nEquals = line.find('=');
        if (nEquals == std::string_view::npos)
            continue;
        const std::string_view key = Trim(line.substr(0, nEquals));
        if (map.Find(key) && seen.insert(key).second)
            keys.emplace_back(key);
    }
    return keys;
}

template <class TMatches>
long CountLines(std::string_view part, TMatches matches) {
    long nLines = 0;
    while (!part.empty())
        nLines += matches(TakeLine(part)) ? 1 : 0;
    return nLines;
}

} // namespace

CConfigCheck::CConfigCheck(const std::filesystem::path& path) {
    std::string content;
    if (!ReadFileContent(path, content))
        throw CFileError(path, "can't be read: " + SystemReason());
    if (!m_Store.ReadFile(ComponentPath(path)))
        throw CFileError(path, "can't be read");
    Inspect(content);
}

void CConfigCheck::Inspect(std::string_view content) {
    // What stands behind each marker that is there, up to the next one.
    std::array<std::string_view, kMarkers.size()> parts;
    const char* pPartBegin = content.data();
    while (!content.empty() && m_nMarkers < kMarkers.size()) {
        const char* pLine = content.data();
        if (!EqualsNoCase(TakeLine(content), kMarkers[m_nMarkers]))
            continue;
        if (m_nMarkers > 0)
            parts[m_nMarkers - 1] = {pPartBegin, static_cast<size_t>(pLine - pPartBegin)};
        pPartBegin = content.data();
        ++m_nMarkers;
    }
    if (m_nMarkers > 0 && m_nMarkers < kMarkers.size())
        parts[m_nMarkers - 1] = {pPartBegin, static_cast<size_t>(content.data() - pPartBegin)};
    // A segment may hold a line that looks like the part's end.
    if (m_nMarkers == kMarkers.size())
        parts[6] = {parts[6].data(), static_cast<size_t>(content.data() + content.size() - parts[6].data())};

    m_DescriptionKeys = KeysOf(parts[0], m_Store.m_DescriptionMap);
    m_ParameterKeys = KeysOf(parts[2], m_Store.m_ParameterMap);
    if (m_nMarkers == 0) {
        m_Damage.push_back("is no configuration file: it has no line \"" + std::string(kMarkers[0]) + "\"");
    } else if (m_nMarkers < kMarkers.size()) {
        m_Damage.push_back("is damaged: the line \"" + std::string(kMarkers[m_nMarkers]) +
                           "\" is missing, and what should stand behind it with it");
    } else {
        CheckCounts(parts[4], parts[6]);
    }
}

void CConfigCheck::CheckCounts(std::string_view resourcePart, std::string_view htmlPart) {
    const struct {
        const char* m_pNoun;
        long m_nPromised;
        long m_nThere;
    } lists[] = {
        {"resource", static_cast<long>(m_Store.m_Resources.GetSize()),
         // One of the lines with "=" is the count itself.
         CountLines(resourcePart,
                    [](std::string_view line) { return line.find('=') != std::string_view::npos; }) -
             1},
        {"segment", static_cast<long>(m_Store.m_Segments.GetSize()),
         CountLines(htmlPart, [](std::string_view line) { return EqualsNoCase(line, kSegmentEnd); })},
    };
    for (const auto& list : lists) {
        if (list.m_nPromised != list.m_nThere)
            m_Damage.push_back("is damaged: its count promises " +
                               Counted(static_cast<size_t>(list.m_nPromised), list.m_pNoun) + ", and " +
                               std::to_string(std::max(list.m_nThere, 0L)) + " can be found");
    }
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
    if (m_nMarkers < kMarkersUpToParameters)
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
        return "names no effect that is known here (DhtmlType is \"" + std::string(GetEffectType().View()) +
               "\")";
    return {};
}

} // namespace orrelix
