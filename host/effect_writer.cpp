#include "host/effect_writer.h"

#include "host/effect_check.h"
#include "host/fields.h"
#include "host/files.h"
#include "platform/files.h"
#include "platform/paths.h"

#include <chrono>
#include <fmt/format.h>
#include <map>
#include <set>

namespace orrelix {

namespace fs = std::filesystem;

namespace {

// What lies where the component puts the effect's files, with these files. It takes a name in any case for the file that
// is there.
using CPlaces = std::vector<std::pair<fs::directory_entry, CString>>;

// The folder of the file as it is before anything is written.
struct CFolder {
    std::set<fs::path> m_Names;
    CPlaces m_Places;
};

std::error_code ListFolder(const CEffectObject& object, const CString& directory, CFolder& folder) {
    std::map<CString, CString> sources;
    for (int nIndex = 0; nIndex < object.GetResourceNumber(); ++nIndex) {
        const CString source = object.GetResourceLocalPath(nIndex), name = object.GetResourceName(nIndex);
        if (source != directory)
            sources.emplace(CString(name).MakeLower(), source + name);
    }
    std::error_code error;
    for (fs::directory_iterator entry(SystemPath(directory), error), end; !error && entry != end;
         entry.increment(error)) {
        const fs::path name = entry->path().filename();
        folder.m_Names.insert(name);
        if (const auto found = sources.find(CString(name.string()).MakeLower()); found != sources.end())
            folder.m_Places.emplace_back(*entry, found->second);
    }
    return error;
}

// Whether copying a file that the effect needs would write through a link out of the folder.
bool WouldWriteElsewhere(const CPlaces& places, CReport& report) {
    bool bElsewhere = false;
    for (const auto& [entry, source] : places) {
        if (!entry.is_symlink() || !FollowBelow(entry.path(), entry.path().parent_path()).empty())
            continue;
        report.Error(entry.path().string(),
                     "is a link to a place outside of the folder, where the effect needs a file of its own; "
                     "remove the link");
        bElsewhere = true;
    }
    return bElsewhere;
}

bool IsScript(const CEffectObject& object, const CString& source) {
    return DirectoryOfPath(source) + "\\" == object.GetScriptFolder();
}

// Whether a file that is replaced by one that the effect needs would be missed.
bool IsForeign(const CEffectObject& object, const fs::path& place, const CString& source) {
    const CString there = ComponentPath(place);
    return FileExists(there) && !SameContent(source, there) &&
           !(IsScript(object, source) && IsOlderScript(there, source));
}

// Whether a file that the effect needs would land on another one. The component asks nobody about scripts, and about
// images only where there is a screen.
bool WouldReplace(const CEffectObject& object, const CPlaces& places, CReport& report) {
    const bool bAsks = object.Ask<bool>("CanShowDialogs");
    bool bForeign = false;
    for (const auto& [entry, source] : places) {
        const bool bScript = IsScript(object, source);
        if ((bAsks && !bScript) || !IsForeign(object, entry.path(), source))
            continue;
        report.Error(entry.path().string(),
                     bScript
                         ? fmt::format("is there already and would be replaced by the effect's {}; rename "
                                       "it, or say --overwrite",
                                       SystemPath(source).filename().string())
                         : "is there already and would be overwritten; give the image another name, or "
                           "say --overwrite");
        bForeign = true;
    }
    return bForeign;
}

// Why a copy can't be made of a file, a sentence's rest with what to do; empty when one can.
std::string WhyNoFile(const CString& path) {
    const std::error_code error = CInputFile().Open(path);
    if (!error)
        return {};
    std::error_code unknown;
    const fs::file_status status = fs::status(SystemPath(PathOnDisk(path)), unknown);
    if (fs::is_directory(status))
        return "is a folder;";
    if (fs::exists(status) && !fs::is_regular_file(status))
        return "is a pipe or a device;";
    return FileExists(path) ? fmt::format("can't be read ({});", error.message())
                            : "is missing; put it there, or";
}

// Writing makes the component forget files that are gone, which nobody asked for.
bool HasLostFiles(const CEffectObject& object, const fs::path& file, CReport& report) {
    const CListedDirectories listed;
    bool bLost = false;
    for (const CNamedField& field : ListFields(object)) {
        for (const CString& value : field.m_Values) {
            const std::string problem =
                field.IsFile() && !value.IsEmpty() ? WhyNoFile(FromSystemPath(value)) : "";
            if (problem.empty())
                continue;
            report.Error(
                file.string(),
                fmt::format("the effect needs the file {}, which {} set {} to another one or to nothing",
                            value.View(), problem, field.m_Name));
            bLost = true;
        }
    }
    return bLost;
}

// Images of which there is a copy beside the file, such as one that a killed run has made, are those.
void TakeCopies(const CEffectObject& object, const CString& directory) {
    const CListedDirectories listed;
    for (const CNamedField& field : ListFields(object)) {
        vignel::Items values;
        bool bTaken = false;
        for (const CString& value : field.m_Values) {
            const CString source = FromSystemPath(value), copy = directory + FileNameOfPath(source);
            const bool bCopied =
                field.IsFile() && !value.IsEmpty() && source != copy && SameContent(source, copy);
            values.emplace_back(bCopied ? SystemSpelling(copy) : std::string(value.View()));
            bTaken = bTaken || bCopied;
        }
        if (bTaken && field.m_bList)
            object.Ask("PutFieldItems", field.m_Name, values);
        else if (bTaken)
            object.Ask("PutField", field.m_Name, values.front());
    }
}

void ReportMissing(const CString& source, const CString& copy, CReport& report) {
    report.Error(SystemPath(copy).string(), fmt::format("the page needs it, but {} couldn't be copied there",
                                                        SystemPath(source).string()));
}

// The images of the effect, in the order of its fields, as the system spells their paths.
std::vector<CString> ImagesOf(const CEffectObject& object) {
    std::vector<CString> images;
    for (const CNamedField& field : ListFields(object)) {
        if (field.IsFile())
            images.insert(images.end(), field.m_Values.begin(), field.m_Values.end());
    }
    return images;
}

// What the component writes for a file, under another name beside it: it refers to its copies of scripts and images
// whether they could be made or not.
class CDraft {
public:
    CDraft(const CEffectObject& object, const fs::path& file, const CFolder& folder,
           const std::vector<CString>& images, bool bOverwrite, CReport& report)
        : m_Object(object), m_Folder(folder), m_Directory(DirectoryOfPath(ComponentPath(file)) + "\\"),
          m_bOverwrite(bOverwrite), m_Images(images),
          m_Path(SystemPath(m_Directory) / COutputFile::DraftName()), m_Report(report) {}
    ~CDraft() {
        Remove(m_Path);
        for (const auto& [place, kept] : m_Kept)
            Remove(kept);
    }
    CDraft(const CDraft&) = delete;
    CDraft& operator=(const CDraft&) = delete;

    // The result says why it can't be written, and is empty otherwise.
    std::string Write(std::string& content) {
        if (const std::error_code error = KeepOthers())
            return error.message();
        if (!m_Object.WriteConfigFileEx(m_Path, m_bOverwrite))
            return m_Object.Ask<std::string>("GetError");
        const std::error_code error = ReadWholeFile(ComponentPath(m_Path), content);
        return error ? error.message() : std::string();
    }

    bool HasItsFiles() const {
        const bool bScripts = AreScriptsCopied();
        return AreImagesCopied() && bScripts;
    }

    // Takes the copies back. Scripts stay, on which another effect may count by now.
    void Undo() const {
        const CString scripts = m_Object.GetScriptFolder();
        for (int nIndex = 0; nIndex < m_Object.GetResourceNumber(); ++nIndex) {
            const fs::path name = std::string(CString(m_Object.GetResourceName(nIndex)).View());
            std::error_code none;
            if (CString(m_Object.GetResourceLocalPath(nIndex)) != scripts && !m_Folder.m_Names.contains(name))
                fs::remove(m_Path.parent_path() / name, none);
        }
        for (const auto& [place, kept] : m_Kept) {
            std::error_code failed;
            fs::rename(kept, place, failed);
            if (failed)
                m_Report.Error(place.string(), "can't be put back: " + failed.message());
        }
    }

private:
    void Remove(const fs::path& draft) const {
        std::error_code failed;
        fs::remove(draft, failed);
        if (failed)
            m_Report.Warning(draft.string(), "can't be removed: " + failed.message());
    }

    // What copies replace stays under a second name until all is written: a link, as the disk may be full.
    std::error_code KeepOthers() {
        std::error_code failed;
        for (const auto& [entry, source] : m_Folder.m_Places) {
            if (!IsForeign(m_Object, entry.path(), source))
                continue;
            const fs::path place = fs::canonical(entry.path(), failed);
            const fs::path kept = place.parent_path() / COutputFile::DraftName();
            m_Kept.emplace_back(place, kept);
            fs::create_hard_link(place, kept, failed);
            if (failed && !fs::copy_file(place, kept, failed))
                return failed;
        }
        return {};
    }

    bool AreScriptsCopied() const {
        bool bAll = true;
        const CString scripts = m_Object.GetScriptFolder();
        for (int nIndex = 0; nIndex < m_Object.GetResourceNumber(); ++nIndex) {
            const CString name = m_Object.GetResourceName(nIndex);
            if (CString(m_Object.GetResourceLocalPath(nIndex)) != scripts ||
                SameContent(scripts + name, m_Directory + name))
                continue;
            ReportMissing(scripts + name, m_Directory + name, m_Report);
            bAll = false;
        }
        return bAll;
    }

    // Where a copy is missing, the component has forgotten the image. Who has closed the question about a taken name
    // is told of the image, too, but has wanted it so.
    bool AreImagesCopied() const {
        bool bAll = true;
        const std::vector<CString> after = ImagesOf(m_Object);
        for (size_t nImage = 0; nImage < m_Images.size(); ++nImage) {
            const CString source = FromSystemPath(m_Images[nImage]);
            const bool bForgotten = after[nImage].IsEmpty(),
                       bLeft = m_bAsks && after[nImage] == m_Images[nImage];
            const CString copy =
                m_Directory + FileNameOfPath(bForgotten ? source : FromSystemPath(after[nImage]));
            if (source.IsEmpty() || !FileExists(source) || (!bForgotten && SameContent(source, copy)))
                continue;
            ReportMissing(source, copy, m_Report);
            if (!bLeft)
                bAll = false;
        }
        return bAll;
    }

    const CEffectObject& m_Object;
    const CFolder& m_Folder; // as it was before
    const CString m_Directory;
    const bool m_bOverwrite;
    const bool m_bAsks = !m_bOverwrite && m_Object.Ask<bool>("CanShowDialogs"); // about names that are taken
    const std::vector<CString>& m_Images;                                       // as they were before
    const fs::path m_Path;
    CReport& m_Report;
    std::vector<std::pair<fs::path, fs::path>> m_Kept; // files of others, with where they are kept
};

// The file takes its draft's content when all that this refers to is in place.
bool WriteWhole(const CEffectObject& object, const fs::path& file, const CFolder& folder,
                const std::vector<CString>& images, bool bOverwrite, CReport& report) {
    CDraft draft(object, file, folder, images, bOverwrite, report);
    std::string content;
    std::string problem = draft.Write(content);
    if (problem.empty() && draft.HasItsFiles()) {
        const std::error_code error = WriteFileContent(SpelledAsOnDisk(file), content, Durability::PowerCut);
        if (!error)
            return true;
        problem = error.message();
    }
    report.Error(file.string(), problem.empty() ? "hasn't been written" : "can't be written: " + problem);
    draft.Undo();
    return false;
}

// Whether the file wouldn't bring the effect back. A comma in the wrong place loses no more than what was made in dialogs
// would be without the file.
bool WouldBreak(const CEffectObject& object, const fs::path& file, bool bStrict, CReport& report) {
    const std::vector<CNamedField> fields = ListFields(object);
    const std::string problem = WhyNotInFile(fields), commas = WhatCommasBreak(fields);
    if (!problem.empty())
        report.Error(file.string(), problem);
    else if (!commas.empty() && bStrict)
        report.Error(file.string(), commas);
    else if (!commas.empty())
        report.Warning(file.string(), commas);
    return !problem.empty() || (!commas.empty() && bStrict);
}

} // namespace

void WriteEffect(const CEffectObject& object, const fs::path& file, const CWriteOptions& options,
                 CReport& report) {
    const CString directory = DirectoryOfPath(ComponentPath(file)) + "\\";
    if (WouldBreak(object, file, options.m_bStrict, report) ||
        (HasLostFiles(object, file, report) && options.m_bStrict))
        return;
    TakeCopies(object, directory);
    const std::vector<CString> images =
        ImagesOf(object); // asked for resources, the component may forget some
    CFolder folder;
    if (const std::error_code error = ListFolder(object, directory, folder))
        return report.Error(file.string(), "can't be written: " + error.message());
    if (WouldWriteElsewhere(folder.m_Places, report) ||
        (!options.m_bOverwrite && WouldReplace(object, folder.m_Places, report)))
        return;
    object.SetLastUpdateTime(vignel::DaysOf(std::chrono::system_clock::now()));
    if (!WriteWhole(object, file, folder, images, options.m_bOverwrite, report))
        return;
    PrintWritten(file);
    WarnOfHarmfulTexts(object, file.string(), report);
}

} // namespace orrelix
