// The files that a command is about to write into a site. All are planned before the first is written, so that
// nothing is when one of them would replace a file that isn't ours.
#pragma once

#include "host/generated_effect.h"
#include "host/report.h"
#include "host/site.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace orrelix {

class CPlannedFiles {
public:
    CPlannedFiles(const CSite& site, bool bOverwrite, CReport& report)
        : m_Site(site), m_bOverwrite(bOverwrite), m_Report(report) {}

    // Whether the effect's text that stands in the page by now loads an address, which is in the code page.
    using CLoadTest = std::function<bool(std::string_view address)>;

    // Plans the files of a configuration file's effect that a page needs: in which folder it lies, and which
    // file it is, both without links. Files that are missing, that lie outside of the configuration file's
    // folder and the site's, that have no place in the site, that would land on another one of the plan or
    // on the page, or that servers may take for something else than pictures, are reported and left out.
    void AddFiles(const CGeneratedEffect& effect, const std::filesystem::path& configFile,
                  const std::filesystem::path& pageFolder, const std::filesystem::path& page,
                  const CLoadTest& isLoaded);

    // Throws CFileError for `subject`, which is what the page shows, when its place is taken by another file of the
    // plan or leads out of the site. The result is that place.
    std::filesystem::path CheckPage(const std::filesystem::path& page, const std::string& subject) const;

    // Plans a page, with the same check.
    void AddPage(const std::filesystem::path& page, std::string content, const std::string& subject);

    // From now on, what is planned is written at once, so that memory doesn't grow with the files: for folders in which
    // nothing can be in the way. A page has to come after its files.
    void WriteAtOnce() { m_bAtOnce = true; }

    // Whether files with other content stand in the way that aren't ours, and mustn't be overwritten: ours are those
    // that the page's effect loads already, and our scripts, whatever their age. Each is reported. What is left out
    // counts: its place would be taken for ours as soon as the page loads it.
    bool HasObstacles() const;

    // Writes what is planned, the pages last, as they never refer to what isn't there yet, and prints their paths. What
    // fails is reported, and the rest is done.
    void Write() const;

private:
    struct CPlannedFile {
        std::filesystem::path m_Target; // without links
        std::string m_Subject;          // the configuration file
        CString m_Source;               // what is copied there; empty for a page
        std::string m_Content;          // of a page
        bool m_bScript = false;
        bool m_bLoaded = false;
        bool m_bLeftOut = false; // has been reported, and isn't written

        std::string GetName() const;
        bool IsWritten() const;
        std::error_code Write() const;
    };

    bool CheckSource(const CEffectFile& file, const std::filesystem::path& configFile) const;
    // Adds a file, which is planned but for its place, under all of its names. False where it is left out.
    bool AddFile(CPlannedFile planned, const CEffectFile& file, const std::filesystem::path& pageFolder,
                 const std::filesystem::path& page);
    // Empty where nothing speaks against it.
    std::string WhyNotAtItsPlace(const CPlannedFile& planned, const std::filesystem::path& page) const;
    void Add(CPlannedFile file);
    void Write(const CPlannedFile& file) const;
    const CPlannedFile* FindAt(const std::filesystem::path& target) const;

    const CSite& m_Site;
    const bool m_bOverwrite;
    CReport& m_Report;
    std::vector<CPlannedFile> m_Files;
    std::unordered_map<std::string, size_t> m_Indices; // by target
    std::unordered_set<std::string> m_Met;             // needs for which all is planned
    bool m_bAtOnce = false;
};

} // namespace orrelix
