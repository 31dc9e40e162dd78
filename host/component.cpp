#include "host/component.h"

#include "host/files.h"
#include "host/report.h"
#include "platform/code_page.h"
#include "platform/module.h"
#include "platform/paths.h"

#include <algorithm>

namespace orrelix {

namespace fs = std::filesystem;

namespace {

// Nobody waits for a page of that size.
constexpr int kMostHtml = 64 * 1024 * 1024;

// The second name is all that a package has which isn't for developers.
constexpr const char* kLibraryNames[] = {"libVignelOrrelix.so",
                                         "libVignelOrrelix.so." ORRELIX_LIBRARY_VERSION};

vignel::Library LoadComponent() {
    char registered[VIGNEL_PATH_SIZE];
    const bool bRegistered = VignelFindLibrary(kProgID, registered, sizeof registered);
    const fs::path beside = FindComponentBesideProgram();
    if (bRegistered && (beside.empty() || fs::exists(registered)))
        return vignel::Library(fs::path(registered));
    if (beside.empty())
        throw std::runtime_error(
            "the component isn't registered; say where it is with 'orrelix register LIBRARY'");
    return vignel::Library(beside);
}

} // namespace

fs::path FindComponentBesideProgram() {
    const fs::path program = SystemSpelling(GetModuleFile());
    for (const char* pFolder : {"../lib", "../" ORRELIX_LIBRARY_DIR}) {
        for (const char* pName : kLibraryNames) {
            const fs::path library = program.parent_path() / pFolder / pName;
            std::error_code unknown;
            if (fs::exists(library, unknown))
                return fs::canonical(library.parent_path(), unknown) / pName;
        }
    }
    return {};
}

const vignel::Library& GetComponent() {
    static const vignel::Library library = LoadComponent();
    return library;
}

CEffectObject::CEffectObject() : vignel::Orrelix(GetComponent()), m_Inspector(Inspector()) {
    if (!m_Inspector)
        throw std::runtime_error("the registered component is another version than this program");
    m_Inspector.Put("CodePage", GetCodePage());
    m_Inspector.Put("RawTexts", 1);
    m_Inspector.Put("MostHTML", kMostHtml);
}

std::string CEffectObject::GetDescriptionOf(const std::string& effect) const {
    // The same for all objects, and asked for once.
    static const auto names = Ask<vignel::Items>("GetEffectNames");
    static const auto descriptions = Ask<vignel::Items>("GetEffectDescriptions");
    const auto found = std::find(names.begin(), names.end(), effect);
    return found == names.end() ? "" : descriptions[static_cast<size_t>(found - names.begin())];
}

CString CEffectObject::GetScriptFolder() const {
    return FromSystemPath(m_Inspector.Get<std::string>("ScriptFolder") + "/");
}

void ReadConfig(const fs::path& path, const CEffectObject& effect) {
    const bool bRead = effect.ReadConfigFile(PathForComponent(path));
    const std::string error = effect.Ask<std::string>("GetError");
    if (!bRead || !error.empty())
        throw CFileError(path, "can't be read: " + error);
}

void OpenEffect(const fs::path& path, const CEffectObject& effect) {
    ReadConfig(path, effect);
    const std::string problem = effect.Ask<std::string>("GetProblem");
    if (!problem.empty())
        throw CFileError(path, problem);
}

} // namespace orrelix
