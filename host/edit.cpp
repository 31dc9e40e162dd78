#include "host/edit.h"

#include "core/config_format.h"
#include "core/orrelix.h"
#include "host/component_path.h"
#include "host/effect_check.h"
#include "host/generated_effect.h"
#include "host/named_fields.h"
#include "host/nearest_word.h"
#include "host/text_encoding.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "resources/effects.h"
#include "toolkit/desktop_loader.h"

#include <chrono>
#include <fmt/format.h>
#include <iostream>

namespace orrelix {

namespace fs = std::filesystem;

namespace {

std::vector<std::string> EffectNames() {
    std::vector<std::string> names;
    for (const CEffect& effect : kEffects)
        names.push_back(fmt::format("\"{}\"", effect.m_pName));
    return names;
}

std::string AllEffects() {
    return fmt::format("{}", fmt::join(EffectNames(), ", "));
}

// As properties of files have it.
double Now() {
    using namespace std::chrono;
    return duration<double, days::period>(system_clock::now() - kDayZero).count();
}

// A text of the command line, which is in UTF-8, as the file has it. Bytes that are no UTF-8 go into a UTF-8
// file as they are.
bool ToCodePage(const std::string& option, const std::string& text, CString& converted, CReport& report) {
    converted = text;
    if (GetCodePage() == kUtf8CodePage)
        return true;
    const CConvertedText result = ConvertText(text, "UTF-8", GetEncoding());
    converted = result.m_Text;
    if (result.m_nUnfit + result.m_nInvalid > 0)
        report.WrongUsage(option, fmt::format("has characters that code page {} lacks", GetCodePage()));
    return result.m_nUnfit + result.m_nInvalid == 0;
}

bool ParseSets(const std::vector<std::string>& sets, CFieldValues& values, CReport& report) {
    for (const std::string& set : sets) {
        const size_t nEquals = set.find('=');
        if (nEquals == std::string::npos) {
            report.WrongUsage("--set " + set, "has no \"=\"; write --set NAME=VALUE");
            return false;
        }
        CString value;
        if (!ToCodePage("--set " + set, set.substr(nEquals + 1), value, report))
            return false;
        values[set.substr(0, nEquals)].push_back(value);
    }
    return true;
}

std::string ToTerminal(const CString& value) {
    return Printable(ToUtf8(value.View()).m_Text);
}

void PrintFields(CDhtmlGadget& gadget) {
    for (const CNamedField& field : ListFields(gadget)) {
        const char sign = field.m_bList ? '+' : '=';
        for (const CString& value : field.m_Values)
            std::cout << fmt::format("{:24} {} {}\n", field.m_Name, sign, ToTerminal(value));
        if (field.m_Values.empty())
            std::cout << fmt::format("{:24} + (no items)\n", field.m_Name);
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

// Writing makes the component forget files that are gone, which nobody asked for.
bool HasLostFiles(COrrelix& orrelix, const CEditOptions& options, CReport& report) {
    bool bLost = false;
    for (const CNamedField& field : ListFields(*orrelix.m_pGadget)) {
        for (const CString& value : field.m_Values) {
            if (!field.m_bFileName || value.IsEmpty() || FileExists(value))
                continue;
            report.Error(
                options.m_File.string(),
                fmt::format("the effect needs the file {}, which is missing; put it there, or set {} "
                            "to another one or to nothing",
                            SystemPath(value).string(), field.m_Name));
            bLost = true;
        }
    }
    return bLost;
}

// The component doesn't say when a copy fails.
void CheckCopies(COrrelix& orrelix, const CString& directory, CReport& report) {
    for (short nIndex = 0; nIndex < orrelix.GetResourceNumber(); ++nIndex) {
        const CString name = orrelix.GetResourceName(nIndex);
        const CString source = orrelix.GetResourceLocalPath(nIndex) + name;
        if (!SameContent(source, directory + name))
            report.Error(SystemPath(directory + name).string(),
                         fmt::format("the page needs it, but {} couldn't be copied there",
                                     SystemPath(source).string()));
    }
}

void Write(COrrelix& orrelix, const CEditOptions& options, CReport& report) {
    const CString path = ComponentPath(options.m_File);
    const CString directory = DirectoryOfPath(path) + "\\";
    // Who has worked in dialogs isn't sent away with nothing.
    const bool bByOptions = !options.m_Sets.empty() || !options.m_Effect.empty();
    if (HasLostFiles(orrelix, options, report) && bByOptions)
        return;
    if (!options.m_bOverwrite && !FindDesktop() && WouldOverwrite(orrelix, directory, report))
        return;
    orrelix.SetLastUpdateTime(Now());
    if (!orrelix.WriteConfigFileEx(path, options.m_bOverwrite ? 1 : 0))
        return report.Error(options.m_File.string(), "can't be written: " + orrelix.m_FileError.message());
    CheckCopies(orrelix, directory, report);
    std::cout << options.m_File.string() << '\n';
    WarnOfHarmfulTexts(options.m_File, report);
}

// Runs the dialogs. False when there is nobody to show them to, or who cancelled.
bool RunDialogs(COrrelix& orrelix, const CEditOptions& options, const std::string& otherWay,
                CReport& report) {
    if (!FindDesktop()) {
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
        report.WrongUsage("--set", problem);
    return problem.empty();
}

} // namespace

void NewEffect(const CEditOptions& options, CReport& report) {
    const std::string name = options.m_File.string();
    if (!options.m_bListFields && fs::exists(options.m_File))
        return report.Error(name, "is there already; change it with 'orrelix edit', or name another file");
    if (options.m_Effect.empty() && (options.m_bListFields || !options.m_Sets.empty()))
        return report.WrongUsage(
            name,
            "has no effect yet of which there could be fields; name one with --effect: " + AllEffects());
    if (Printable(options.m_Title) != options.m_Title)
        return report.WrongUsage("--title", "has a line break or another control character");
    COrrelix orrelix;
    CString title = TitleFrom(options.m_File.stem().string());
    if (!options.m_Title.empty() && !ToCodePage("--title", options.m_Title, title, report))
        return;
    orrelix.SetTitle(title);
    // These, too, in the order in which they are to stand in the file.
    orrelix.SetDescription("");
    orrelix.SetBitmapFileName("");
    orrelix.SetPreviewPath("");
    if (options.m_Effect.empty()) {
        if (RunDialogs(orrelix, options, "name one of the effects with --effect: " + AllEffects(), report))
            Write(orrelix, options, report);
        return;
    }
    const CEffect* pEffect = FindEffectNamed(options.m_Effect);
    if (!pEffect)
        return report.WrongUsage("--effect " + options.m_Effect,
                                 "is no effect; " + DidYouMean('"' + options.m_Effect + '"', EffectNames(),
                                                               "there are " + AllEffects()));
    orrelix.SelectType(TypeOf(*pEffect));
    if (options.m_bListFields)
        PrintFields(*orrelix.m_pGadget);
    else if (ChangeByOptions(orrelix, options, report))
        Write(orrelix, options, report);
}

void EditEffect(const CEditOptions& options, CReport& report) {
    COrrelix orrelix;
    OpenEffect(options.m_File, orrelix);
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

} // namespace orrelix
