#include "host/publish.h"

#include "host/component_path.h"
#include "host/effect_check.h"
#include "host/generated_effect.h"
#include "host/marked_page.h"
#include "host/site.h"
#include "platform/files.h"

#include <fmt/format.h>
#include <iostream>

namespace orrelix {

namespace fs = std::filesystem;

namespace {

void WarnOfCharacters(const CMarkedPage& page, const std::string& subject, CReport& report) {
    if (page.GetUnfitCount() > 0)
        report.Warning(subject,
                       fmt::format("{} can't be written in the page's encoding, {}, and stand in it as "
                                   "\"&#N;\"",
                                   Counted(page.GetUnfitCount(), "character"), page.GetEncoding()));
    report.WarnOfInvalidBytes(subject, page.GetInvalidCount());
}

// The page as it was when it was read is `before`.
bool WritePage(const fs::path& path, const std::string& before, const std::string& after,
               const std::string& subject, CReport& report) {
    COutputFile::RemoveLeftovers(ComponentPath(path.parent_path()));
    std::string now;
    if (ReadWholeFile(ComponentPath(path), now) || now != before) {
        report.Error(subject, "has been changed meanwhile by somebody else; publish again");
        return false;
    }
    const std::error_code error = WriteFileContent(path, after, Durability::PowerCut);
    if (error)
        report.Error(subject, fmt::format("can't be written: {}; the page is as it was", error.message()));
    return !error;
}

} // namespace

void Publish(const CPublishOptions& options, CReport& report) {
    const std::string pageName = options.m_Page.string();
    if (!fs::is_directory(options.m_Site))
        return report.Error(options.m_Site.string(), "is no folder; name the folder of the site with --site");
    std::string before;
    if (fs::exists(options.m_Page) && !fs::is_regular_file(options.m_Page))
        return report.Error(pageName, "is no file, so it can't be a page");
    if (const std::error_code error = ReadWholeFile(ComponentPath(options.m_Page), before))
        return report.Error(pageName, "can't be read: " + error.message());
    const CSite site(options.m_Site);
    if (!site.Holds(options.m_Page))
        return report.Error(pageName, "doesn't lie in the site's folder " + options.m_Site.string());

    const CGeneratedEffect effect = GenerateEffect(options.m_File, kPublish);
    CMarkedPage page(before);
    std::string problem;
    const auto after =
        page.Place(std::string(effect.m_Title.View()), effect.m_Script, effect.m_Cursor, problem);
    if (!after)
        return report.Error(pageName, problem + ". Nothing has been written");
    WarnOfCharacters(page, pageName, report);
    WarnOfHarmfulTexts(options.m_File, report);

    // The files first: a page never refers to what isn't there yet.
    const fs::path pagePath =
        fs::canonical(fs::absolute(options.m_Page).parent_path()) / options.m_Page.filename();
    CFileCopies copies(site, report);
    copies.Plan(effect, pagePath, options.m_File.string());
    copies.Run();
    if (*after == before || WritePage(pagePath, before, *after, pageName, report))
        std::cout << pageName << '\n';
}

} // namespace orrelix
