#include "host/edit.h"

#include "host/component.h"
#include "host/effect_writer.h"
#include "host/fields.h"
#include "host/files.h"
#include "host/nearest_word.h"
#include "host/text_encoding.h"
#include "host/title.h"
#include "platform/code_page.h"
#include "platform/files.h"

#include <fmt/format.h>
#include <iostream>
#include <nlohmann/json.hpp>
#include <optional>

namespace orrelix {

namespace fs = std::filesystem;

namespace {

std::vector<std::string> EffectNames(const CEffectObject& object) {
    std::vector<std::string> names;
    for (const std::string& name : object.Ask<vignel::Items>("GetEffectNames"))
        names.push_back(fmt::format("\"{}\"", name));
    return names;
}

std::string AllEffects(const CEffectObject& object) {
    return fmt::format("{}", fmt::join(EffectNames(object), ", "));
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

// "  [number 0 to 5000]", "  [none, dotted, solid]"; nothing for a text.
std::string Explanation(const CEffectObject& object, const CNamedField& field) {
    const auto choices = object.Ask<vignel::Items>("GetFieldChoices", field.m_Name);
    const int nMost = object.Ask<int>("GetFieldMaximum", field.m_Name);
    if (!choices.empty())
        return fmt::format("  [{}]", fmt::join(choices, ", "));
    if (nMost > 0)
        return fmt::format("  [{} {} to {}]", field.m_Kind, object.Ask<int>("GetFieldMinimum", field.m_Name),
                           nMost);
    return field.m_Kind == "text" ? "" : fmt::format("  [{}]", field.m_Kind);
}

void PrintFields(const CEffectObject& object) {
    for (const CNamedField& field : ListFields(object)) {
        const char sign = field.m_bList ? '+' : '=';
        std::string explanation = Explanation(object, field);
        for (const CString& value : field.m_Values) {
            std::cout << fmt::format("{:24} {} {}{}\n", field.m_Name, sign, ToTerminal(value), explanation);
            explanation.clear(); // once for a list
        }
        if (field.m_Values.empty())
            std::cout << fmt::format("{:24} + (no items){}\n", field.m_Name, explanation);
    }
}

void PrintFieldsAsJson(const CEffectObject& object) {
    nlohmann::ordered_json json = nlohmann::ordered_json::array();
    for (const CNamedField& field : ListFields(object)) {
        nlohmann::ordered_json row = {{"name", field.m_Name}, {"kind", field.m_Kind}};
        std::vector<std::string> values;
        for (const CString& value : field.m_Values)
            values.push_back(ToUtf8(value.View()).m_Text);
        if (field.m_bList)
            row["items"] = values;
        else
            row["value"] = values.front();
        if (const auto choices = object.Ask<vignel::Items>("GetFieldChoices", field.m_Name); !choices.empty())
            row["choices"] = choices;
        if (const int nMost = object.Ask<int>("GetFieldMaximum", field.m_Name); nMost > 0) {
            row["minimum"] = object.Ask<int>("GetFieldMinimum", field.m_Name);
            row["maximum"] = nMost;
        }
        json.push_back(std::move(row));
    }
    std::cout << PrintableJson(json.dump(2)) << '\n';
}

void ListFields(const CEffectObject& object, const CEditOptions& options) {
    options.m_bJson ? PrintFieldsAsJson(object) : PrintFields(object);
}

void Write(const CEffectObject& object, const CEditOptions& options, CReport& report) {
    // Who has worked in dialogs isn't sent away with nothing.
    const bool bByOptions = !options.m_Sets.empty() || !options.m_Effect.empty();
    WriteEffect(object, options.m_File, {options.m_bOverwrite, bByOptions}, report);
}

// Runs the dialogs. False when there is nobody to show them to, or who cancelled.
bool RunDialogs(const CEffectObject& object, const CEditOptions& options, const std::string& otherWay,
                CReport& report) {
    if (!object.Ask<bool>("CanShowDialogs")) {
        report.Error(options.m_File.string(),
                     "there is no screen to show dialogs on; without one, " + otherWay);
        return false;
    }
    if (object.Config())
        return true;
    const auto error = object.Ask<std::string>("GetError");
    report.Error(options.m_File.string(),
                 (error.empty() ? "cancelled" : error) + "; nothing has been written");
    return false;
}

// What is in the file; nothing when there is none.
std::optional<std::string> ContentOf(const fs::path& file) {
    std::string content;
    const CString path = ComponentPath(file);
    const std::error_code error = ReadWholeFile(path, content);
    if (error && FileExists(path))
        throw CFileError(file, "can't be read: " + error.message());
    return error ? std::nullopt : std::optional(content);
}

// Whether the name is taken, in whatever case and by whatever.
bool IsThere(const fs::path& file) {
    std::error_code unknown;
    return FileExists(ComponentPath(file)) || fs::exists(file, unknown);
}

fs::path FreeNameBeside(const fs::path& file) {
    for (int nNumber = 2;; ++nNumber) {
        const std::string name =
            fmt::format("{}-{}{}", file.stem().string(), nNumber, file.extension().string());
        fs::path free = file.parent_path() / name;
        if (!IsThere(free))
            return free;
    }
}

// The dialogs have been open for any time, in which others could write the file. Then theirs stays, and what has been
// made here gets a name of its own.
void WriteAfterDialogs(const CEffectObject& object, CEditOptions options,
                       const std::optional<std::string>& before, CReport& report) {
    CFileLock lock;
    const fs::path file = options.m_File;
    std::string problem;
    try {
        lock = LockFile(file);
        if (ContentOf(file) != before)
            problem = "has been changed meanwhile by somebody else";
    } catch (const CFileError& error) {
        problem = error.what();
    }
    if (!problem.empty()) {
        options.m_File = FreeNameBeside(file);
        report.Error(file.string(),
                     fmt::format("{}; it is left as it is, and what you have made goes into {}", problem,
                                 options.m_File.string()));
    }
    Write(object, options, report);
}

bool ChangeByOptions(const CEffectObject& object, const CEditOptions& options, CReport& report) {
    CFieldValues values;
    if (!ParseSets(options.m_Sets, values, report))
        return false;
    std::vector<std::string> remarks;
    const std::string problem = SetFields(object, values, remarks);
    for (const std::string& remark : remarks)
        report.Warning("--set", remark);
    if (!problem.empty())
        report.WrongUsage("--set", problem);
    return problem.empty();
}

} // namespace

void NewEffect(const CEditOptions& options, CReport& report) {
    const bool bByOptions = !options.m_Effect.empty();
    CFileLock lock;
    if (bByOptions && !options.m_bListFields)
        lock = LockFile(options.m_File);
    // Not before it is locked: somebody else may just have made it in another case.
    const fs::path file = SpelledAsOnDisk(options.m_File);
    const std::string name = file.string();
    if (!options.m_bListFields && fs::exists(file))
        return report.Error(name, "is there already; change it with 'orrelix edit', or name another file");
    const CEffectObject object;
    if (options.m_Effect.empty() && (options.m_bListFields || !options.m_Sets.empty()))
        return report.WrongUsage(
            name, "has no effect yet of which there could be fields; name one with --effect: " +
                      AllEffects(object));
    if (Printable(options.m_Title) != options.m_Title)
        return report.WrongUsage("--title", "has a line break or another control character");
    CString title = TitleFrom(options.m_File.stem().string());
    if (!options.m_Title.empty() && !ToCodePage("--title", options.m_Title, title, report))
        return;
    object.SetTitle(std::string(title.View()));
    // These, too, in the order in which they are to stand in the file.
    object.SetDescription("");
    object.SetBitmapFileName("");
    object.SetPreviewPath("");
    if (!bByOptions) {
        if (RunDialogs(object, options, "name one of the effects with --effect: " + AllEffects(object),
                       report))
            WriteAfterDialogs(object, options, std::nullopt, report);
        return;
    }
    vignel::Result known;
    object.SetEffect(options.m_Effect, known);
    if (!known)
        return report.WrongUsage("--effect " + options.m_Effect,
                                 "is no effect; " + DidYouMean('"' + options.m_Effect + '"',
                                                               EffectNames(object),
                                                               "there are " + AllEffects(object)));
    if (options.m_bListFields)
        ListFields(object, options);
    else if (ChangeByOptions(object, options, report))
        Write(object, options, report);
}

void EditEffect(const CEditOptions& options, CReport& report) {
    const CEffectObject object;
    if (options.m_bListFields) {
        OpenEffect(options.m_File, object);
        ListFields(object, options);
    } else if (options.m_Sets.empty()) {
        const auto before = ContentOf(options.m_File);
        OpenEffect(options.m_File, object);
        if (RunDialogs(object, options, "set fields with --set NAME=VALUE; --list-fields shows them", report))
            WriteAfterDialogs(object, options, before, report);
    } else {
        const CFileLock lock = LockFile(options.m_File);
        OpenEffect(options.m_File, object);
        if (ChangeByOptions(object, options, report))
            Write(object, options, report);
    }
}

} // namespace orrelix
