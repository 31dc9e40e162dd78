#include "host/generated_effect.h"

#include "core/orrelix.h"
#include "host/component_path.h"
#include "platform/module.h"

#include <algorithm>
#include <cctype>
#include <set>

namespace orrelix {

namespace {

constexpr char kCompatibilityScript[] = "orrelix-compat.js";

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
    std::set<CString> names;
    orrelix.SetPreviewPath(kReferenceMark);
    CollectReferences(ScriptText(orrelix, kPreview), names);
    CollectReferences(orrelix.GetHTMLBody(0, kPreview), names);
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

// In a preview the page has all of its files beside it.
std::vector<CEffectFile> RegisteredFiles(COrrelix& orrelix, EHtmlMode mode,
                                         const std::set<CString>& references) {
    std::vector<CEffectFile> files;
    std::set<CString> seen;
    const short nCount = orrelix.GetResourceNumber();
    for (short i = 0; i < nCount; ++i) {
        const CString name = orrelix.GetResourceName(i);
        const CString source = orrelix.GetResourceLocalPath(i) + name;
        if (seen.insert(source).second)
            files.push_back({source, mode == kPreview ? CString() : orrelix.GetResourceWebPath(i),
                             Spellings(name, references)});
    }
    return files;
}

std::vector<CString> LostFiles(const std::set<CString>& references, const std::vector<CEffectFile>& files) {
    std::vector<CString> lost;
    for (const CString& reference : references) {
        const bool bThere = std::any_of(files.begin(), files.end(), [&](const CEffectFile& file) {
            return EqualsNoCase(file.m_Names.front(), reference);
        });
        if (!bThere)
            lost.push_back(reference);
    }
    return lost;
}

bool IsScript(const CEffectFile& file) {
    return EqualsNoCase(file.m_Names.front().Right(3), ".js");
}

// The script files bring along what today's browsers lack. An effect without one gets that from the host.
void AddCompatibilityScript(CGeneratedEffect& effect) {
    effect.m_Files.push_back(
        {GetModuleDirectory() + "\\" + kCompatibilityScript, "", {CString(kCompatibilityScript)}});
    effect.m_Script = ScriptInclude("", kCompatibilityScript) + effect.m_Script;
}

} // namespace

CConfigCheck OpenEffect(const std::filesystem::path& path, COrrelix& orrelix) {
    CConfigCheck file(path);
    const std::string problem = file.WhyNoEffect();
    if (!problem.empty())
        throw CFileError(path, problem);
    if (!orrelix.ReadConfigFile(ComponentPath(path)))
        throw CFileError(path, "can't be read");
    return file;
}

CGeneratedEffect GenerateEffect(const std::filesystem::path& path, EHtmlMode mode) {
    COrrelix orrelix;
    const CConfigCheck file = OpenEffect(path, orrelix);
    CGeneratedEffect effect;
    effect.m_Title = orrelix.GetTitle();
    effect.m_pEffect = file.GetEffect();
    // In this order: registering the files makes the component forget those that are lost.
    const std::set<CString> references = FindReferences(orrelix);
    effect.m_Files = RegisteredFiles(orrelix, mode, references);
    effect.m_Lost = LostFiles(references, effect.m_Files);
    orrelix.SetPreviewPath("");
    effect.m_Script = ScriptText(orrelix, mode);
    effect.m_Cursor = orrelix.GetHTMLBody(0, mode);
    if (std::none_of(effect.m_Files.begin(), effect.m_Files.end(), IsScript))
        AddCompatibilityScript(effect);
    return effect;
}

CString ScriptText(COrrelix& orrelix, EHtmlMode mode) {
    return orrelix.GetHTMLSegmentNumber() == 2 ? orrelix.GetHTMLBody(1, mode) : CString();
}

std::string TitleFrom(std::string_view text) {
    std::string title;
    for (char byte : text)
        title += isalnum(static_cast<unsigned char>(byte)) ? byte : '_';
    return title.empty() || isdigit(static_cast<unsigned char>(title[0])) ? "v" + title : title;
}

} // namespace orrelix
