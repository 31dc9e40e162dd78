#include "host/preview.h"

#include "host/effect_check.h"
#include "host/files.h"
#include "host/generated_effect.h"
#include "host/planned_files.h"
#include "host/preview_page.h"
#include "host/text_encoding.h"
#include "platform/files.h"

#include <fmt/format.h>

namespace orrelix {

namespace fs = std::filesystem;

namespace {

constexpr char kIndexName[] = "index.html";

// Tells that the folder was made for previews, whatever else has come to lie there.
constexpr char kMarkName[] = ".orrelix-preview";
constexpr char kMark[] = "This folder is for pages of 'orrelix preview', which replaces what lies in it.\n";

class CPreviewRun {
public:
    CPreviewRun(const CPreviewOptions& options, CReport& report)
        : m_Options(options), m_Report(report), m_Out(fs::canonical(options.m_Out)), m_Site(m_Out),
          m_Files(m_Site, options.m_bOverwrite, report) {}

    void Run() {
        const bool bAtOnce = Claim() || m_Options.m_bOverwrite;
        if (bAtOnce)
            m_Files.WriteAtOnce();
        for (const fs::path& file : m_Options.m_Files)
            Try(file, [&] { AddPage(file); });
        if (m_Options.m_bIndex)
            Try(m_Out / kIndexName,
                [&] { m_Files.AddPage(m_Out / kIndexName, IndexPage(m_Cards), "all effects"); });
        if (bAtOnce)
            return;
        if (!m_Files.HasObstacles())
            return m_Files.Write();
        m_Report.Error(
            m_Options.m_Out.string(),
            fmt::format(
                "has no mark of preview, which older versions made none of; if all that lies there may be "
                "replaced, put an empty file {} there",
                kMarkName));
    }

private:
    // One that gives no page leaves the others alone.
    template <class TAdd>
    void Try(const fs::path& file, TAdd add) {
        try {
            add();
        } catch (const std::exception& error) {
            m_Report.Error(file.string(), error.what());
        }
    }

    // Whether all of the folder is ours.
    bool Claim() {
        COutputFile::RemoveLeftovers(ComponentPath(m_Out));
        const fs::path mark = m_Out / kMarkName;
        if (!fs::is_empty(m_Out))
            return fs::is_regular_file(fs::symlink_status(mark));
        if (const std::error_code error = WriteFileContent(mark, kMark, Durability::Usual))
            m_Report.Error(mark.string(), "can't be written: " + error.message());
        return true;
    }

    void AddPage(const fs::path& file) {
        const std::string name = file.stem().string() + ".html";
        const fs::path page = m_Out / name;
        std::error_code noSuchFolder; // is told when the file is read
        if (fs::equivalent(fs::absolute(file).parent_path(), m_Out, noSuchFolder))
            throw CFileError(file, "lies in the folder for the pages; name another one with --out");
        if (m_Options.m_bIndex && name == kIndexName)
            throw CFileError(file, "would have its page where the index belongs; rename the file");
        const CEffectObject object;
        OpenEffect(file, object);
        const CPreviewPage preview{name, file.string(), GenerateEffect(object, kPreview)};
        m_Files.CheckPage(page, preview.m_Source);
        m_Files.AddFiles(preview.m_Effect, file, m_Out, page, [](std::string_view) { return false; });
        m_Files.AddPage(page, EffectPage(preview), preview.m_Source);
        WarnOfInvalidText(preview);
        WarnOfHarmfulTexts(object, file.string(), m_Report);
        if (m_Options.m_bIndex)
            m_Cards.push_back(IndexCard(preview));
    }

    void WarnOfInvalidText(const CPreviewPage& page) {
        size_t nInvalid = 0;
        for (const CString* pText :
             {&page.m_Effect.m_Title, &page.m_Effect.m_Script, &page.m_Effect.m_Cursor})
            nInvalid += ToUtf8(pText->View()).m_nInvalid;
        m_Report.WarnOfInvalidBytes(page.m_Source, nInvalid);
    }

    const CPreviewOptions& m_Options;
    CReport& m_Report;
    const fs::path m_Out;
    const CSite m_Site;
    CPlannedFiles m_Files;
    std::vector<std::string> m_Cards; // of the index
};

} // namespace

void Preview(const CPreviewOptions& options, CReport& report) {
    std::error_code failed;
    fs::create_directories(options.m_Out, failed);
    if (failed || !fs::is_directory(options.m_Out))
        return report.Error(options.m_Out.string(), "is no folder that pages can be written to");
    CPreviewRun(options, report).Run();
}

} // namespace orrelix
