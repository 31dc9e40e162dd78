#include "host/generated_effect.h"

#include "platform/paths.h"

namespace orrelix {

namespace {

constexpr char kCompatibilityScript[] = "orrelix-compat.js";

std::vector<CString> TextsOf(const vignel::Items& items) {
    return {items.begin(), items.end()};
}

// In a preview the page has all of its files beside it.
std::vector<CEffectFile> PageFiles(const CEffectObject& object, EHtmlMode mode) {
    std::vector<CEffectFile> files;
    const CString scriptFolder = object.GetScriptFolder();
    const int nFiles = object.Ask<int>("GetPageFileNumber");
    for (int nFile = 0; nFile < nFiles; ++nFile) {
        const CString source = FromSystemPath(object.Ask<std::string>("GetPageFileSource", nFile));
        files.push_back({source, mode == kPreview ? "" : object.Ask<std::string>("GetPageFileWebPath", nFile),
                         TextsOf(object.Ask<vignel::Items>("GetPageFileNames", nFile)),
                         DirectoryOfPath(source) + "\\" == scriptFolder});
    }
    return files;
}

// The script files bring along what today's browsers lack. An effect without one gets that from the host.
void AddCompatibilityScript(CGeneratedEffect& effect, const CEffectObject& object) {
    effect.m_Files.push_back(
        {object.GetScriptFolder() + kCompatibilityScript, "", {CString(kCompatibilityScript)}, true});
    effect.m_Script = CString("<script type=\"text/javascript\" src=\"") + kCompatibilityScript +
                      "\"></script>\r\n" + effect.m_Script;
}

} // namespace

CGeneratedEffect GenerateEffect(const CEffectObject& object, EHtmlMode mode) {
    CGeneratedEffect effect;
    effect.m_Title = object.GetTitle();
    effect.m_Effect = std::string(object.GetEffect().View());
    effect.m_Description = object.GetDescriptionOf(effect.m_Effect);
    effect.m_Files = PageFiles(object, mode);
    effect.m_Lost = TextsOf(object.Ask<vignel::Items>("GetLostFiles"));
    object.SetPreviewPath("");
    effect.m_Script = ScriptText(object, mode);
    effect.m_Cursor = object.GetHTMLBody(0, mode);
    if (object.Ask<bool>("NeedsCompatibilityScript"))
        AddCompatibilityScript(effect, object);
    return effect;
}

CString ScriptText(const CEffectObject& object, EHtmlMode mode) {
    return object.GetHTMLSegmentNumber() == 2 ? CString(object.GetHTMLBody(1, mode)) : CString();
}

} // namespace orrelix
