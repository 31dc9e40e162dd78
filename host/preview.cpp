#include "host/preview.h"

#include "host/effect_check.h"
#include "host/files.h"
#include "host/generated_effect.h"
#include "host/preview_page.h"
#include "host/site.h"
#include "host/text_encoding.h"

#include <fmt/format.h>
#include <iostream>

namespace orrelix {

namespace fs = std::filesystem;

namespace {

constexpr char kIndexName[] = "index.html";

class CPreviewRun {
public:
    CPreviewRun(const CPreviewOptions& options, CReport& report)
        : m_Options(options), m_Report(report), m_Out(fs::canonical(options.m_Out)), m_Site(m_Out),
          m_Copies(m_Site, report) {}

    void Run() {
        for (const fs::path& file : m_Options.m_Files) {
            try {
                AddPage(file);
            } catch (const std::exception& error) {
                m_Report.Error(file.string(), error.what());
            }
        }
        m_Copies.Run();
        if (m_Options.m_bIndex)
            Write(kIndexName, IndexPage(m_Pages));
    }

private:
    void AddPage(const fs::path& file) {
        const std::string name = file.stem().string() + ".html";
        const fs::path page = m_Out / name;
        std::error_code noSuchFolder; // is told when the file is read
        if (fs::equivalent(fs::absolute(file).parent_path(), m_Out, noSuchFolder))
            throw CFileError(file, "lies in the folder for the pages; name another one with --out");
        if (m_Options.m_bIndex && name == kIndexName)
            throw CFileError(file, "would have its page where the index belongs; rename the file");
        for (const CPreviewPage& other : m_Pages) {
            if (other.m_Name == name)
                throw CFileError(file,
                                 fmt::format("would have its page where that of {} is; rename one of them",
                                             other.m_Source));
        }
        const CEffectObject object;
        OpenEffect(file, object);
        const CGeneratedEffect effect = GenerateEffect(object, kPreview);
        m_Copies.Plan(effect, page, file.string());
        CPreviewPage preview{name, file.string(), effect};
        WarnOfInvalidText(preview);
        WarnOfHarmfulTexts(object, file.string(), m_Report);
        Write(name, EffectPage(preview));
        m_Pages.push_back(std::move(preview));
    }

    void WarnOfInvalidText(const CPreviewPage& page) {
        size_t nInvalid = 0;
        for (const CString* pText :
             {&page.m_Effect.m_Title, &page.m_Effect.m_Script, &page.m_Effect.m_Cursor})
            nInvalid += ToUtf8(pText->View()).m_nInvalid;
        m_Report.WarnOfInvalidBytes(page.m_Source, nInvalid);
    }

    void Write(const std::string& name, const std::string& content) {
        if (const std::error_code error = WriteFileContent(m_Out / name, content, Durability::Usual))
            return m_Report.Error((m_Out / name).string(), "can't be written: " + error.message());
        std::cout << (m_Out / name).string() << '\n';
    }

    const CPreviewOptions& m_Options;
    CReport& m_Report;
    const fs::path m_Out;
    const CSite m_Site;
    CFileCopies m_Copies;
    std::vector<CPreviewPage> m_Pages;
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
