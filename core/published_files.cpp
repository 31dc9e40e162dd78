#include "core/published_files.h"

#include "core/orrelix.h"

#include <algorithm>
#include <set>

namespace orrelix {

namespace {

// Stands in front of each file's name in a text that was generated for finding them.
constexpr std::string_view kReferenceMark = "\x01orrelix\x01";

// The names of the files that a text refers to, as it spells them: from the mark to the quote that closes
// what was opened in front of it.
void CollectReferences(std::string_view text, std::set<CString>& names) {
    for (size_t nMark = text.find(kReferenceMark); nMark != std::string_view::npos;
         nMark = text.find(kReferenceMark, nMark + 1)) {
        const size_t nName = nMark + kReferenceMark.size();
        const char quote = nMark > 0 ? text[nMark - 1] : '"';
        names.insert(CString(text.substr(nName, text.find(quote, nName) - nName)));
    }
}

std::set<CString> FindReferences(COrrelix& orrelix) {
    CVignelConfig config;
    config.m_DescriptionMap = orrelix.m_Config.m_DescriptionMap;
    config.SetPreviewPath(CString(kReferenceMark));
    std::set<CString> names;
    for (short nPosition = 0; nPosition < orrelix.GetHTMLSegmentNumber(); ++nPosition)
        CollectReferences(orrelix.m_pGadget->GetHTMLBody(config, kPreview, nPosition), names);
    return names;
}

std::vector<CString> Spellings(const CString& name, const std::set<CString>& references) {
    std::vector<CString> names = {name};
    for (const CString& reference : references) {
        if (reference != name && EqualsNoCase(reference, name))
            names.push_back(reference);
    }
    return names;
}

} // namespace

CPageFiles FindPageFiles(COrrelix& orrelix) {
    // In this order: registering the files makes the component forget those that are lost.
    const std::set<CString> references = FindReferences(orrelix);
    CPageFiles found;
    std::set<CString> seen;
    for (short nIndex = 0; nIndex < orrelix.GetResourceNumber(); ++nIndex) {
        const CString name = orrelix.GetResourceName(nIndex);
        const CString source = orrelix.GetResourceLocalPath(nIndex) + name;
        if (seen.insert(source).second)
            found.m_Files.push_back(
                {source, orrelix.GetResourceWebPath(nIndex), Spellings(name, references)});
    }
    for (const CString& reference : references) {
        if (std::none_of(found.m_Files.begin(), found.m_Files.end(), [&](const CPageFile& file) {
                return EqualsNoCase(file.m_Names.front(), reference);
            }))
            found.m_Lost.push_back(reference);
    }
    return found;
}

} // namespace orrelix
