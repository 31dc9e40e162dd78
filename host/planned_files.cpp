#include "host/planned_files.h"

#include "host/files.h"
#include "host/text_encoding.h"
#include "platform/files.h"

#include <algorithm>
#include <fmt/format.h>
#include <system_error>

namespace orrelix {

namespace fs = std::filesystem;

namespace {

// What marks a folder as ours, and what is being written.
constexpr char kOwnPrefix[] = ".orrelix-";

// Endings, each between blanks: those by which servers and browsers tell pictures, and those by which some servers tell
// what they run, wherever in a name they stand.
constexpr std::string_view kPictures =
    " .apng .avif .bmp .cur .dib .emf .gif .heic .ico .jfif .jpe .jpeg .jpg .jxl .pjp "
    ".pjpeg .png .svg .svgz .tif .tiff .webp .wmf .xbm ";
constexpr std::string_view kPrograms =
    " .asp .aspx .cgi .jsp .phar .php .php3 .php4 .php5 .php7 .phtml .shtml ";

// Whether no server runs or obeys a file of this name, which a stranger may have chosen: it has a picture's ending, doesn't
// begin with a dot, and has no other ending that a server runs.
bool IsPictureName(const fs::path& target) {
    CString lower = CString(target.filename().native()).MakeLower();
    lower.Replace(";", "."); // where some servers take a name for ended
    const auto hasOneOf = [](std::string_view endings, const fs::path& name) {
        return endings.find(" " + name.extension().native() + " ") != std::string_view::npos;
    };
    fs::path name = std::string(lower.View());
    bool bPicture = !lower.View().starts_with('.') && hasOneOf(kPictures, name);
    while (bPicture && (name = name.stem()).has_extension())
        bPicture = !hasOneOf(kPrograms, name);
    return bPicture;
}

// What a file is for: those of the same key have the same place and the same source.
std::string KeyOf(const CEffectFile& file, const fs::path& configFolder, const fs::path& pageFolder) {
    constexpr char kZero = '\0'; // which is in no path
    std::string key = configFolder.native() + kZero + pageFolder.native() + kZero +
                      std::string(file.m_Source.View()) + kZero + std::string(file.m_WebPath.View());
    for (const CString& name : file.m_Names)
        key.append(1, kZero).append(name.View());
    return key;
}

} // namespace

std::string CPlannedFiles::CPlannedFile::GetName() const {
    return m_Source.IsEmpty() ? "the page of " + m_Subject : SystemPath(m_Source).string();
}

// Whether the file lies there as it is to be, in this very spelling.
bool CPlannedFiles::CPlannedFile::IsWritten() const {
    std::error_code none;
    if (!fs::is_regular_file(m_Target, none))
        return false;
    if (!m_Source.IsEmpty())
        return SameContent(m_Source, ComponentPath(m_Target));
    std::string content;
    return !ReadWholeFile(ComponentPath(m_Target), content) && content == m_Content;
}

std::error_code CPlannedFiles::CPlannedFile::Write() const {
    std::error_code failed;
    fs::create_directories(m_Target.parent_path(), failed);
    if (failed || IsWritten())
        return failed;
    return m_Source.IsEmpty() ? WriteFileContent(m_Target, m_Content, Durability::Usual)
                              : CopyWholeFile(m_Source, ComponentPath(m_Target), Spelling::Exact);
}

void CPlannedFiles::AddFiles(const CGeneratedEffect& effect, const fs::path& configFile,
                             const fs::path& pageFolder, const fs::path& page, const CLoadTest& isLoaded) {
    for (const CString& name : effect.m_Lost)
        m_Report.Error(configFile.string(),
                       fmt::format("the effect needs the file \"{}\", which is missing; put it beside "
                                   "the configuration file",
                                   name.View()));
    for (const CEffectFile& file : effect.m_Files) {
        // Nearly all effects of a folder need the same scripts.
        std::string need = KeyOf(file, configFile.parent_path(), pageFolder);
        if (m_Met.contains(need))
            continue;
        const bool bLoaded = std::any_of(file.m_Names.begin(), file.m_Names.end(), [&](const CString& name) {
            return isLoaded((file.m_WebPath + name).View());
        });
        const bool bLeftOut = !CheckSource(file, configFile);
        if (AddFile({{}, configFile.string(), file.m_Source, "", file.m_bScript, bLoaded, bLeftOut}, file,
                    pageFolder, page))
            m_Met.insert(std::move(need));
    }
}

bool CPlannedFiles::CheckSource(const CEffectFile& file, const fs::path& configFile) const {
    const std::string source = SystemPath(file.m_Source).string();
    if (!FileExists(file.m_Source)) {
        m_Report.Error(configFile.string(),
                       fmt::format("the effect needs the file {}, which is missing", source));
        return false;
    }
    const fs::path onDisk = SystemPath(PathOnDisk(file.m_Source));
    const fs::path folder = fs::absolute(SpelledAsOnDisk(configFile)).parent_path();
    if (file.m_bScript || !FollowBelow(onDisk, folder).empty() || m_Site.Holds(onDisk))
        return true;
    m_Report.Error(configFile.string(),
                   fmt::format("the file {} is a link to one outside of the configuration file's folder; "
                               "put the file itself there",
                               source));
    return false;
}

bool CPlannedFiles::AddFile(CPlannedFile planned, const CEffectFile& file, const fs::path& pageFolder,
                            const fs::path& page) {
    const std::string source = planned.GetName();
    bool bAll = !planned.m_bLeftOut;
    const auto refuse = [&](const std::string& problem) {
        m_Report.Error(planned.m_Subject, problem);
        bAll = false;
    };
    for (const CString& name : file.m_Names) {
        // Browsers ask for names in UTF-8, whatever the page is in.
        const std::string address = ToUtf8((file.m_WebPath + name).View()).m_Text;
        std::string problem;
        planned.m_Target = m_Site.Locate(address, pageFolder, problem);
        if (planned.m_Target.empty()) {
            refuse(fmt::format("\"{}\", where the page looks for {}, {}", address, source, problem));
            break; // the other spellings lie at the same place
        }
        problem = WhyNotAtItsPlace(planned, page);
        if (!problem.empty()) {
            refuse(problem);
            continue;
        }
        if (!planned.m_bLeftOut && !file.m_bScript && !m_bOverwrite && !IsPictureName(planned.m_Target)) {
            refuse(fmt::format(
                "the file {} would be {}, whose name isn't a picture's, so that a server may run or "
                "obey it; give it another one, or say --overwrite",
                source, planned.m_Target.string()));
            planned.m_bLeftOut = true;
        }
        if (!FindAt(planned.m_Target))
            Add(planned);
    }
    return bAll;
}

std::string CPlannedFiles::WhyNotAtItsPlace(const CPlannedFile& planned, const fs::path& page) const {
    const std::string source = planned.GetName();
    if (planned.m_Target.filename().native().starts_with(kOwnPrefix))
        return fmt::format("the file {} has a name that this program keeps for itself; give it another one",
                           source);
    if (planned.m_Target == page)
        return fmt::format("the file {} would land on the page itself", source);
    const CPlannedFile* pOther = FindAt(planned.m_Target);
    if (!pOther || pOther->m_Source == planned.m_Source ||
        (!pOther->m_Source.IsEmpty() && SameContent(pOther->m_Source, planned.m_Source)))
        return "";
    return fmt::format("the files {} and {} differ, but both would be {}; give one of them another name",
                       source, pOther->GetName(), planned.m_Target.string());
}

fs::path CPlannedFiles::CheckPage(const fs::path& page, const std::string& subject) const {
    std::string problem;
    fs::path target = m_Site.FollowLinks(page, problem);
    if (target.empty())
        throw CFileError(subject, fmt::format("would have its page at {}, which {}", page.string(), problem));
    if (const CPlannedFile* pOther = FindAt(target))
        throw CFileError(
            subject, fmt::format("would have its page where {} is; rename one of them", pOther->GetName()));
    return target;
}

void CPlannedFiles::AddPage(const fs::path& page, std::string content, const std::string& subject) {
    Add({CheckPage(page, subject), subject, "", std::move(content)});
}

void CPlannedFiles::Add(CPlannedFile file) {
    if (m_bAtOnce) {
        Write(file);
        std::string().swap(file.m_Content); // which gives its memory back
    }
    if (!file.m_bLeftOut)
        m_Indices.emplace(file.m_Target.native(), m_Files.size());
    m_Files.push_back(std::move(file));
}

const CPlannedFiles::CPlannedFile* CPlannedFiles::FindAt(const fs::path& target) const {
    const auto found = m_Indices.find(target.native());
    return found == m_Indices.end() ? nullptr : &m_Files[found->second];
}

bool CPlannedFiles::HasObstacles() const {
    bool bObstacles = false;
    for (const CPlannedFile& file : m_Files) {
        if (m_bOverwrite || !fs::exists(file.m_Target) || file.m_bLoaded || file.IsWritten() ||
            (file.m_bScript && IsOlderScript(ComponentPath(file.m_Target), file.m_Source)))
            continue;
        m_Report.Error(
            file.m_Target.string(),
            fmt::format("is there already and would be {} {}; give one of them another name, or say "
                        "--overwrite. Nothing has been written",
                        file.m_bLeftOut ? "taken for" : "replaced by", file.GetName()));
        bObstacles = true;
    }
    return bObstacles;
}

void CPlannedFiles::Write(const CPlannedFile& file) const {
    if (file.m_bLeftOut)
        return;
    if (const std::error_code error = file.Write())
        m_Report.Error(file.m_Target.string(), "can't be written: " + error.message());
    else if (file.m_Source.IsEmpty())
        PrintWritten(file.m_Target);
}

void CPlannedFiles::Write() const {
    fs::path folder;
    for (const bool bPages : {false, true}) {
        for (const CPlannedFile& file : m_Files) {
            if (file.m_Source.IsEmpty() != bPages)
                continue;
            if (folder != file.m_Target.parent_path()) {
                folder = file.m_Target.parent_path();
                COutputFile::RemoveLeftovers(ComponentPath(folder));
            }
            Write(file);
        }
    }
}

} // namespace orrelix
