// The files that a command is about to write into a site. All are planned before the first is written, so that
// nothing is when one of them would replace a file that isn't ours.
#pragma once

#include "host/generated_effect.h"
#include "host/report.h"
#include "host/site.h"

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace orrelix {

class CPlannedFiles {
public:
    CPlannedFiles(const CSite& site, CReport& report) : m_Site(site), m_Report(report) {}

    // Whether the effect's text that stands in the page by now refers to an address, which is in the code page.
    using CReferenceTest = std::function<bool(std::string_view address)>;

    // Plans the files of a configuration file's effect that a page needs: in which folder it lies, and which
    // file it is, both without links. Files that are missing, that lie outside of the configuration file's
    // folder and the site's, that have no place in the site, or that would land on another one of the plan or
    // on the page, are reported and left out.
    void AddFiles(const CGeneratedEffect& effect, const std::filesystem::path& configFile,
                  const std::filesystem::path& pageFolder, const std::filesystem::path& page,
                  const CReferenceTest& isReferredTo);

    // Plans a page, which may be none of the plan yet; `subject` is what it shows. Throws CFileError for `subject`
    // when its place is taken or leads out of the site.
    void AddPage(const std::filesystem::path& page, const std::string& content, const std::string& subject);

    // Whether files with other content stand in the way that aren't ours: ours are those that the page's effect
    // refers to already, and our scripts, whatever their age. Each is reported.
    bool HasObstacles() const;

    // Writes what is planned, the pages last, and prints their paths. What fails is reported, and the rest is done.
    void Write() const;

private:
    struct CPlannedFile {
        std::filesystem::path m_Target; // without links
        std::string m_Subject;          // the configuration file
        CString m_Source;               // what is copied there; empty for a page
        std::string m_Content;          // of a page
        bool m_bScript = false;
        bool m_bReferredTo = false;

        std::string GetName() const;
        bool IsWritten() const;
        std::error_code Write() const;
    };

    bool CheckSource(const CEffectFile& file, const std::filesystem::path& configFile) const;
    void AddFile(const CEffectFile& file, const std::filesystem::path& configFile,
                 const std::filesystem::path& pageFolder, const std::filesystem::path& page,
                 bool bReferredTo);
    void Add(CPlannedFile file);
    const CPlannedFile* FindAt(const std::filesystem::path& target) const;

    const CSite& m_Site;
    CReport& m_Report;
    std::vector<CPlannedFile> m_Files;
    std::map<std::string, size_t> m_Indices; // by target
};

} // namespace orrelix
