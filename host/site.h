// A site's folder: where the files of a page lie, by the addresses at which the page refers to them.
#pragma once

#include "host/generated_effect.h"
#include "host/report.h"

#include <filesystem>
#include <map>
#include <string>

namespace orrelix {

class CSite {
public:
    // The folder has to exist.
    explicit CSite(const std::filesystem::path& root);

    // Whether a file lies below the site's folder, links followed up to the folder it lies in.
    bool Holds(const std::filesystem::path& file) const;

    // Where the file of an address belongs that a page in `pageFolder` refers to as browsers read it: UTF-8,
    // "%" and two digits for a byte, a backslash like a slash. "/x/y.js" counts from the site's root. Empty,
    // and `problem` says why, when the address is a full one or leads out of the site's folder.
    std::filesystem::path Locate(std::string_view address, const std::filesystem::path& pageFolder,
                                 std::string& problem) const;

private:
    std::filesystem::path m_Root; // without links in it
};

// The files of one or more effects on their way into a site. All are planned before the first is written.
class CFileCopies {
public:
    CFileCopies(const CSite& site, CReport& report) : m_Site(site), m_Report(report) {}

    // Plans the files of an effect that a page needs. Files that are missing, that have no
    // place in the site, or that would land on another one of the plan or on `page`, are reported under
    // `subject` and left out.
    void Plan(const CGeneratedEffect& effect, const std::filesystem::path& page, const std::string& subject);

    // Copies what is planned.
    void Run();

private:
    void PlanFile(const CEffectFile& file, const std::filesystem::path& page, const std::string& subject);
    bool IsFree(const std::filesystem::path& target, const CString& source) const;

    const CSite& m_Site;
    CReport& m_Report;
    std::map<std::filesystem::path, CString> m_Sources; // by target
};

} // namespace orrelix
