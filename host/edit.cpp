#include "host/edit.h"

#include "core/orrelix.h"
#include "host/component_path.h"
#include "host/config_file.h"
#include "host/named_fields.h"
#include "platform/files.h"
#include "resources/effects.h"
#include "toolkit/desktop_loader.h"

#include <cctype>
#include <chrono>
#include <iomanip>
#include <iostream>

namespace fs = std::filesystem;

namespace {

std::string EffectNames() {
    std::string names;
    for (const CEffect& effect : kEffects)
        names += std::string(names.empty() ? "" : ", ") + '"' + effect.m_pName + '"';
    return names;
}

// The type of the effect with this name, in any case; empty for none.
CString TypeOfEffect(const std::string& name) {
    for (size_t nEffect = 0; nEffect < std::size(kEffects); ++nEffect) {
        if (EqualsNoCase(kEffects[nEffect].m_pName, name))
            return ToText(static_cast<long long>(nEffect) + 1);
    }
    return {};
}

// Days since 30 December 1899, as properties of files have them.
double Now() {
    using namespace std::chrono;
    const sys_days start = year(1899) / December / 30;
    return duration<double, std::ratio<86400>>(system_clock::now() - start).count();
}

// A title that can stand in names of a page's script: letters, digits and "_", no digit first.
std::string TitleFrom(const std::string& stem) {
    std::string title;
    for (char byte : stem)
        title += isalnum(static_cast<unsigned char>(byte)) ? byte : '_';
    return title.empty() || isdigit(static_cast<unsigned char>(title[0])) ? "v" + title : title;
}

bool ParseSets(const std::vector<std::string>& sets, CFieldValues& values, CReport& report) {
    for (const std::string& set : sets) {
        const size_t nEquals = set.find('=');
        if (nEquals == std::string::npos) {
            report.Error("--set " + set, "has no \"=\"; write --set NAME=VALUE");
            return false;
        }
        values[set.substr(0, nEquals)].push_back(CString(set.substr(nEquals + 1)));
    }
    return true;
}

void PrintFields(CDhtmlGadget& gadget) {
    for (const CNamedField& field : ListFields(gadget)) {
        const char* pName = field.m_Name.c_str();
        for (const CString& value : field.m_Values)
            std::cout << std::left << std::setw(24) << pName << (field.m_bList ? " + " : " = ") << value
                      << '\n';
        if (field.m_Values.empty())
            std::cout << std::left << std::setw(24) << pName << " + (no items)\n";
    }
}

// Whether a file that the effect needs would land on another one. Without a screen nobody can be asked, and a
// name that is taken would leave the effect without its image.
bool WouldOverwrite(COrrelix& orrelix, const CString& directory, CReport& report) {
    bool bTaken = false;
    for (short nIndex = 0; nIndex < orrelix.GetResourceNumber(); ++nIndex) {
        const CString name = orrelix.GetResourceName(nIndex);
        const CString source = orrelix.GetResourceLocalPath(nIndex);
        // Scripts are the component's own and are always brought up to date.
        if (source == GetModuleDirectory() + "\\" || source == directory || !FileExists(directory + name))
            continue;
        report.Error(
            SystemPath(directory + name).string(),
            "is there already and would be overwritten; give the image another name, or say --overwrite");
        bTaken = true;
    }
    return bTaken;
}

void Write(COrrelix& orrelix, const CEditOptions& options, CReport& report) {
    const CString path = ComponentPath(options.m_File);
    if (!options.m_bOverwrite && !FindWindows() &&
        WouldOverwrite(orrelix, DirectoryOfPath(path) + "\\", report))
        return;
    orrelix.SetLastUpdateTime(Now());
    if (orrelix.WriteConfigFileEx(path, options.m_bOverwrite ? 1 : 0))
        std::cout << options.m_File.string() << '\n';
    else
        report.Error(options.m_File.string(), "can't be written: " + SystemReason());
}

// Runs the dialogs. False when there is nobody to show them to, or who cancelled.
bool RunDialogs(COrrelix& orrelix, const CEditOptions& options, const std::string& otherWay,
                CReport& report) {
    if (!FindWindows()) {
        report.Error(options.m_File.string(),
                     "there is no screen to show dialogs on; without one, " + otherWay);
        return false;
    }
    if (orrelix.Config())
        return true;
    report.Error(options.m_File.string(), "cancelled; nothing has been written");
    return false;
}

bool ChangeByOptions(COrrelix& orrelix, const CEditOptions& options, CReport& report) {
    CFieldValues values;
    if (!ParseSets(options.m_Sets, values, report))
        return false;
    const std::string problem = SetFields(*orrelix.m_pGadget, values);
    if (!problem.empty())
        report.Error("--set", problem);
    return problem.empty();
}

} // namespace

void NewEffect(const CEditOptions& options, CReport& report) {
    const std::string name = options.m_File.string();
    if (!options.m_bListFields && fs::exists(options.m_File))
        return report.Error(name, "is there already; change it with 'orrelix edit', or name another file");
    if (options.m_Effect.empty() && (options.m_bListFields || !options.m_Sets.empty()))
        return report.Error(name,
                            "has no effect yet of which there could be fields; name one with --effect: " +
                                EffectNames());
    COrrelix orrelix;
    orrelix.SetTitle(options.m_Title.empty() ? TitleFrom(options.m_File.stem().string()) : options.m_Title);
    orrelix.SetDescription("");
    orrelix.SetBitmapFileName("");
    orrelix.SetPreviewPath("");
    if (options.m_Effect.empty()) {
        if (RunDialogs(orrelix, options, "name one of the effects with --effect: " + EffectNames(), report))
            Write(orrelix, options, report);
        return;
    }
    const CString type = TypeOfEffect(options.m_Effect);
    if (type.IsEmpty())
        return report.Error("--effect " + options.m_Effect, "is no effect; there are " + EffectNames());
    orrelix.SelectType(type);
    if (options.m_bListFields)
        PrintFields(*orrelix.m_pGadget);
    else if (ChangeByOptions(orrelix, options, report))
        Write(orrelix, options, report);
}

void EditEffect(const CEditOptions& options, CReport& report) {
    const std::string name = options.m_File.string();
    const CConfigFile file(options.m_File);
    std::string reason;
    if (!file.HoldsEffect(reason))
        return report.Error(name, reason);
    COrrelix orrelix;
    if (!orrelix.ReadConfigFile(ComponentPath(options.m_File)))
        return report.Error(name, "can't be read: " + SystemReason());
    if (options.m_bListFields)
        return PrintFields(*orrelix.m_pGadget);
    const bool bChanged =
        options.m_Sets.empty()
            ? RunDialogs(orrelix, options, "set fields with --set NAME=VALUE; --list-fields shows them",
                         report)
            : ChangeByOptions(orrelix, options, report);
    if (bChanged)
        Write(orrelix, options, report);
}
