#include "core/published_files.h"

#include "core/orrelix.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>

namespace orrelix {

namespace {

// Stands in front of each file's name in a text that was generated for finding them.
constexpr std::string_view kReferenceMark = "\x01orrelix\x01";

// Names that a text has, by their lower-case form.
using CSpellings = std::map<CString, std::set<CString>>;

CString LowerCase(CString name) {
    return name.MakeLower();
}

// The names of the files that a text refers to, as it spells them: from the mark to the quote that closes
// what was opened in front of it.
void CollectReferences(std::string_view text, CSpellings& names) {
    for (size_t nMark = text.find(kReferenceMark); nMark != std::string_view::npos;
         nMark = text.find(kReferenceMark, nMark + 1)) {
        const size_t nName = nMark + kReferenceMark.size();
        const char quote = nMark > 0 ? text[nMark - 1] : '"';
        const CString name(text.substr(nName, text.find(quote, nName) - nName));
        names[LowerCase(name)].insert(name);
    }
}

CSpellings FindReferences(COrrelix& orrelix) {
    CVignelConfig config;
    config.m_DescriptionMap = orrelix.m_Config.m_DescriptionMap;
    config.SetPreviewPath(CString(kReferenceMark));
    CSpellings names;
    for (short nPosition = 0; nPosition < orrelix.GetHTMLSegmentNumber(); ++nPosition)
        CollectReferences(orrelix.m_pGadget->GetHTMLBody(config, kPreview, nPosition), names);
    return names;
}

// The name as registered first.
std::vector<CString> NamesOf(const CString& name, const CSpellings& references) {
    std::vector<CString> names = {name};
    if (const auto spellings = references.find(LowerCase(name)); spellings != references.end())
        std::copy_if(spellings->second.begin(), spellings->second.end(), std::back_inserter(names),
                     [&](const CString& spelling) { return spelling != name; });
    return names;
}

CPageFiles FilesOf(const CArray<VignelResource>& resources, const CSpellings& references) {
    CPageFiles found;
    std::set<CString> sources, names;
    for (const VignelResource& resource : resources) {
        const CString source = resource.m_LocalPath + resource.m_Name;
        if (sources.insert(source).second)
            found.m_Files.push_back({source, resource.m_WebPath, NamesOf(resource.m_Name, references)});
        names.insert(LowerCase(resource.m_Name));
    }
    for (const auto& [name, spellings] : references) {
        if (!names.contains(name))
            found.m_Lost.insert(found.m_Lost.end(), spellings.begin(), spellings.end());
    }
    return found;
}

} // namespace

CPageFiles FindPageFiles(COrrelix& orrelix) {
    // In this order: registering the files makes the component forget those that are lost.
    const CSpellings references = FindReferences(orrelix);
    return orrelix.WithResources(
        [&](const CArray<VignelResource>& resources) { return FilesOf(resources, references); });
}

} // namespace orrelix
