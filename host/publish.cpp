#include "host/publish.h"

#include "host/effect_check.h"
#include "host/files.h"
#include "host/generated_effect.h"
#include "host/marked_page.h"
#include "host/page_check.h"
#include "host/planned_files.h"
#include "host/site.h"
#include "platform/files.h"

#include <fmt/format.h>

namespace orrelix {

namespace fs = std::filesystem;

namespace {

void WarnOfCharacters(const CMarkedPage& page, const std::string& subject, CReport& report) {
    const size_t nInScripts = page.GetUnfitInScriptsCount();
    if (page.GetUnfitCount() > 0)
        report.Warning(
            subject,
            fmt::format("{} can't be written in the page's encoding, {}, and stand in it as \"&#N;\"{}",
                        Counted(page.GetUnfitCount(), "character"), page.GetEncoding(),
                        nInScripts == 0
                            ? ""
                            : fmt::format(", {} of them in a script, where that may be shown as it "
                                          "stands; give the page UTF-8",
                                          nInScripts)));
    report.WarnOfInvalidBytes(subject, page.GetInvalidCount());
    if (page.IsCharsetMissed())
        report.Warning(
            subject,
            "declares its charset where browsers miss it; put that tag at the beginning of its head");
}

void WarnOfSurroundings(const CMarkedPage& page, const CGeneratedEffect& effect, const std::string& subject,
                        CReport& report) {
    if (ForbidsInlineScripts(page.GetOutline()))
        report.Warning(
            subject, "its Content-Security-Policy forbids inline scripts: of the effect only what stands in "
                     "the page itself will show; add 'unsafe-inline' to its script-src");
    // Without a slash, its folder is the page's.
    if (const auto base = BaseOf(page.GetOutline()); base.find_first_of("/\\") != base.npos)
        report.Warning(
            subject,
            fmt::format("by its <base>, browsers look for the effect's files from \"{}\" on; where that "
                        "isn't the page's own folder, give the effect web paths that begin with \"/\"",
                        base));
    for (const COtherEffect& other : page.GetOthers()) {
        const auto styles = DisputedStyles(effect.m_Cursor, other.m_Cursor);
        if (styles.empty())
            continue;
        const bool bByTitle = styles[0].find(CString(effect.m_Title).MakeLower().View()) != std::string::npos;
        report.Warning(subject,
                       fmt::format("this effect and \"{}\" each say how {} looks, and the one further "
                                   "down wins; {}",
                                   other.m_Title, fmt::join(styles, ", "),
                                   bByTitle ? "give one of them another title"
                                            : "choose the same fonts and colours for both"));
    }
}

// What begins code that a server runs. A stranger's effect mustn't bring any into a page.
bool HasServerCode(const CGeneratedEffect& effect, const std::string& subject, CReport& report) {
    for (const CString* pText : {&effect.m_Script, &effect.m_Cursor}) {
        for (const char* pBegin : {"<?", "<%", "<!--#"}) {
            if (pText->View().find(pBegin) == std::string_view::npos)
                continue;
            report.Error(
                subject,
                fmt::format("its texts have \"{}\", behind which servers run code; take it out, or say "
                            "--overwrite. Nothing has been written",
                            pBegin));
            return true;
        }
    }
    return false;
}

// The page as it was when it was read is `before`.
bool WritePage(const fs::path& path, const std::string& before, const std::string& after,
               const std::string& subject, CReport& report) {
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
    const fs::path pagePlace = SpelledAsOnDisk(options.m_Page);
    const std::string pageName = pagePlace.string();
    if (!fs::is_directory(options.m_Site))
        return report.Error(options.m_Site.string(), "is no folder; name the folder of the site with --site");
    std::string before;
    if (fs::exists(pagePlace) && !fs::is_regular_file(pagePlace))
        return report.Error(pageName, "is no file, so it can't be a page");
    const CFileLock lock = LockFile(pagePlace);
    if (const std::error_code error = ReadWholeFile(ComponentPath(pagePlace), before))
        return report.Error(pageName, "can't be read: " + error.message());
    const CSite site(options.m_Site);
    if (!site.Holds(pagePlace))
        return report.Error(pageName, "doesn't lie in the site's folder " + options.m_Site.string());

    const CEffectObject object;
    OpenEffect(options.m_File, object);
    const CGeneratedEffect effect = GenerateEffect(object, kPublish);
    if (!options.m_bOverwrite && HasServerCode(effect, options.m_File.string(), report))
        return;
    CMarkedPage page(before);
    std::string problem;
    const auto after =
        page.Place(std::string(effect.m_Title.View()), effect.m_Script, effect.m_Cursor, problem);
    if (!after)
        return report.Error(pageName, problem + ". Nothing has been written");
    WarnOfCharacters(page, pageName, report);
    WarnOfSurroundings(page, effect, pageName, report);
    WarnOfHarmfulTexts(object, options.m_File.string(), report);

    // Pages of one site may need the same files: nobody else may put one where none has been seen. What isn't there is
    // locked by its folder.
    const CFileLock siteLock = LockFile(fs::canonical(options.m_Site) / ".orrelix-site");
    // The files first: a page never refers to what isn't there yet.
    const fs::path folder = fs::canonical(fs::absolute(pagePlace).parent_path());
    const fs::path pageFile = fs::canonical(pagePlace);
    CPlannedFiles files(site, options.m_bOverwrite, report);
    files.AddFiles(effect, options.m_File, folder, pageFile,
                   [&](std::string_view address) { return page.Loaded(address); });
    if (files.HasObstacles())
        return;
    files.Write();
    if (*after == before || WritePage(pageFile, before, *after, pageName, report))
        PrintWritten(pagePlace);
}

} // namespace orrelix
