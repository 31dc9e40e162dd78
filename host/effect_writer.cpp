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

// Whether a file that the effect needs would land on another one. Without a screen nobody can be asked, and a
// name that is taken would leave the effect without its image.
bool WouldOverwrite(const CEffectObject& object, const CString& directory, CReport& report) {
    const CListedDirectories listed;
    bool bTaken = false;
    for (int nIndex = 0; nIndex < object.GetResourceNumber(); ++nIndex) {
        const CString name = object.GetResourceName(nIndex);
        const CString source = object.GetResourceLocalPath(nIndex);
        // Scripts are the component's own and are always brought up to date.
        if (source == object.GetScriptFolder() || source == directory || !FileExists(directory + name))
            continue;
        report.Error(
            SystemPath(directory + name).string(),
            "is there already and would be overwritten; give the image another name, or say --overwrite");
        bTaken = true;
    }
    return bTaken;
}

// What lies where the component puts the effect's files, with these files. It takes a name in any case for the file that
// is there.
using CPlaces = std::vector<std::pair<fs::directory_entry, CString>>;

CPlaces PlacesOf(const CEffectObject& object, const CString& directory) {
    std::map<CString, CString> sources;
    for (int nIndex = 0; nIndex < object.GetResourceNumber(); ++nIndex) {
        const CString folder = object.GetResourceLocalPath(nIndex), name = object.GetResourceName(nIndex);
        if (folder != directory)
            sources.emplace(CString(name).MakeLower(), folder + name);
    }
    CPlaces places;
    std::error_code noSuchFolder; // is told when the file is written
    for (const fs::directory_entry& entry : fs::directory_iterator(SystemPath(directory), noSuchFolder)) {
        const auto found = sources.find(CString(entry.path().filename().string()).MakeLower());
        if (found != sources.end())
            places.emplace_back(entry, found->second);
    }
    return places;
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

// Whether a script would land on a file that isn't ours. The component asks nobody about scripts.
bool WouldReplaceScripts(const CEffectObject& object, const CPlaces& places, CReport& report) {
    const CString scripts = object.GetScriptFolder();
    bool bForeign = false;
    for (const auto& [entry, source] : places) {
        const CString there = ComponentPath(entry.path());
        if (DirectoryOfPath(source) + "\\" != scripts || !FileExists(there) || SameContent(source, there) ||
            IsOlderScript(there, source))
            continue;
        report.Error(entry.path().string(),
                     fmt::format("is there already and would be replaced by the effect's {}; rename it, or "
                                 "say --overwrite",
                                 SystemPath(source).filename().string()));
        bForeign = true;
    }
    return bForeign;
}

// Writing makes the component forget files that are gone, which nobody asked for.
bool HasLostFiles(const CEffectObject& object, const fs::path& file, CReport& report) {
    const CListedDirectories listed;
    bool bLost = false;
    for (const CNamedField& field : ListFields(object)) {
        for (const CString& value : field.m_Values) {
            if (!field.IsFile() || value.IsEmpty() || FileExists(FromSystemPath(value)))
                continue;
            report.Error(
                file.string(),
                fmt::format("the effect needs the file {}, which is missing; put it there, or set {} "
                            "to another one or to nothing",
                            value.View(), field.m_Name));
            bLost = true;
        }
    }
    return bLost;
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
    CDraft(const CEffectObject& object, const fs::path& file, const std::vector<CString>& images,
           bool bOverwrite, CReport& report)
        : m_Object(object), m_Directory(DirectoryOfPath(ComponentPath(file)) + "\\"),
          m_bOverwrite(bOverwrite), m_Images(images),
          m_Path(SystemPath(m_Directory) / COutputFile::DraftName()), m_Report(report) {
        for (const fs::directory_entry& entry : fs::directory_iterator(m_Path.parent_path(), m_Error))
            m_Before.insert(entry.path().filename());
    }
    ~CDraft() {
        std::error_code failed;
        fs::remove(m_Path, failed);
        if (failed)
            m_Report.Warning(m_Path.string(), "can't be removed: " + failed.message());
    }
    CDraft(const CDraft&) = delete;
    CDraft& operator=(const CDraft&) = delete;

    // The result says why it can't be written, and is empty otherwise.
    std::string Write(std::string& content) const {
        if (m_Error)
            return m_Error.message();
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
    void RemoveImages() const {
        if (m_Error) // nothing has been copied, and what was there before is unknown
            return;
        const CString scripts = m_Object.GetScriptFolder();
        for (int nIndex = 0; nIndex < m_Object.GetResourceNumber(); ++nIndex) {
            const fs::path name = std::string(CString(m_Object.GetResourceName(nIndex)).View());
            std::error_code none;
            if (CString(m_Object.GetResourceLocalPath(nIndex)) != scripts && !m_Before.contains(name))
                fs::remove(m_Path.parent_path() / name, none);
        }
    }

private:
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
    const CString m_Directory;
    const bool m_bOverwrite;
    const bool m_bAsks = !m_bOverwrite && m_Object.Ask<bool>("CanShowDialogs"); // about names that are taken
    const std::vector<CString>& m_Images;                                       // as they were before
    const fs::path m_Path;
    CReport& m_Report;
    std::set<fs::path> m_Before; // names in the directory
    std::error_code m_Error;     // of listing them
};

// The file takes its draft's content when all that this refers to is in place.
bool WriteWhole(const CEffectObject& object, const fs::path& file, const std::vector<CString>& images,
                bool bOverwrite, CReport& report) {
    const CDraft draft(object, file, images, bOverwrite, report);
    std::string content;
    std::string problem = draft.Write(content);
    if (problem.empty() && draft.HasItsFiles()) {
        const std::error_code error = WriteFileContent(SpelledAsOnDisk(file), content, Durability::PowerCut);
        if (!error)
            return true;
        problem = error.message();
    }
    report.Error(file.string(), problem.empty() ? "hasn't been written" : "can't be written: " + problem);
    draft.RemoveImages();
    return false;
}

} // namespace

void WriteEffect(const CEffectObject& object, const fs::path& file, const CWriteOptions& options,
                 CReport& report) {
    const CString directory = DirectoryOfPath(ComponentPath(file)) + "\\";
    if (const std::string problem = WhyNotInFile(ListFields(object)); !problem.empty())
        return report.Error(file.string(), problem);
    if (HasLostFiles(object, file, report) && options.m_bKeepLost)
        return;
    const std::vector<CString> images =
        ImagesOf(object); // asked for resources, the component may forget some
    const CPlaces places = PlacesOf(object, directory);
    if (WouldWriteElsewhere(places, report))
        return;
    if (!options.m_bOverwrite && WouldReplaceScripts(object, places, report))
        return;
    if (!options.m_bOverwrite && !object.Ask<bool>("CanShowDialogs") &&
        WouldOverwrite(object, directory, report))
        return;
    object.SetLastUpdateTime(vignel::DaysOf(std::chrono::system_clock::now()));
    if (!WriteWhole(object, file, images, options.m_bOverwrite, report))
        return;
    PrintWritten(file);
    WarnOfHarmfulTexts(object, file.string(), report);
}

} // namespace orrelix
