#include "host/site.h"

#include "host/files.h"
#include "host/text_encoding.h"
#include "platform/files.h"

#include <algorithm>
#include <charconv>
#include <fmt/format.h>
#include <system_error>
#include <vector>

namespace orrelix {

namespace fs = std::filesystem;

namespace {

bool IsLetter(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

// What browsers do with an address before they look at it: blanks and control characters go from both ends,
// line breaks and tabs from everywhere, and backslashes are slashes.
std::string Cleaned(std::string_view address) {
    const auto isBlank = [](char byte) { return static_cast<unsigned char>(byte) <= ' '; };
    while (!address.empty() && isBlank(address.front()))
        address.remove_prefix(1);
    while (!address.empty() && isBlank(address.back()))
        address.remove_suffix(1);
    std::string result;
    for (char byte : address) {
        if (byte != '\t' && byte != '\r' && byte != '\n')
            result += byte == '\\' ? '/' : byte;
    }
    return result;
}

bool IsFullAddress(std::string_view address) {
    if (address.starts_with("//"))
        return true;
    const size_t nColon = address.find(':');
    if (nColon == 0 || nColon == std::string_view::npos || !IsLetter(address.front()))
        return false;
    return std::all_of(address.begin(), address.begin() + static_cast<std::ptrdiff_t>(nColon), [](char byte) {
        return IsLetter(byte) || (byte >= '0' && byte <= '9') || byte == '+' || byte == '-' || byte == '.';
    });
}

std::string Decoded(std::string_view address) {
    std::string result;
    for (size_t i = 0; i < address.size(); ++i) {
        unsigned char byte = 0;
        const char* pDigits = address.data() + i + 1;
        if (address[i] == '%' && i + 2 < address.size() &&
            std::from_chars(pDigits, pDigits + 2, byte, 16).ptr == pDigits + 2) {
            result += static_cast<char>(byte);
            i += 2;
        } else {
            result += address[i];
        }
    }
    return result;
}

bool IsBelow(const fs::path& path, const fs::path& root) {
    return std::mismatch(root.begin(), root.end(), path.begin(), path.end()).first == root.end();
}

// Goes along an address's steps from a folder of the site. False when it climbs out.
bool Walk(std::string_view steps, const fs::path& root, fs::path& place) {
    for (size_t nStart = 0; nStart <= steps.size();) {
        const size_t nEnd = std::min(steps.find_first_of("/\\", nStart), steps.size());
        const std::string_view step = steps.substr(nStart, nEnd - nStart);
        if (step == "..") {
            if (place == root)
                return false;
            place = place.parent_path();
        } else if (!step.empty() && step != ".") {
            place /= step;
        }
        nStart = nEnd + 1;
    }
    return place != root;
}

} // namespace

CSite::CSite(const fs::path& root) : m_Root(fs::canonical(root)) {}

bool CSite::Holds(const fs::path& file) const {
    return IsBelow(fs::weakly_canonical(fs::absolute(file).parent_path()), m_Root);
}

fs::path CSite::Locate(std::string_view address, const fs::path& pageFolder, std::string& problem) const {
    const std::string cleaned = Cleaned(address);
    if (IsFullAddress(cleaned)) {
        problem = "is a full address, which publishing can't put files at; put it there yourself";
        return {};
    }
    const std::string decoded = Decoded(cleaned);
    if (cleaned.find_first_of("?#") != std::string::npos || decoded.find('\0') != std::string::npos) {
        problem = "is no address of a file: it holds a \"?\", a \"#\" or a zero byte";
        return {};
    }
    fs::path place = cleaned.starts_with('/') ? m_Root : fs::weakly_canonical(pageFolder);
    std::error_code failed;
    // Twice: along the address alone, and along the links that stand on its way.
    const bool bInside =
        Walk(decoded, m_Root, place) && IsBelow(fs::weakly_canonical(place.parent_path(), failed), m_Root) &&
        !failed && (!fs::exists(place, failed) || IsBelow(fs::canonical(place, failed), m_Root)) && !failed;
    if (!bInside) {
        problem = "leads out of the site's folder " + m_Root.string();
        return {};
    }
    if (fs::is_symlink(fs::symlink_status(place, failed)) && !fs::exists(place, failed)) {
        problem = "is a link to nothing; a file written there could land outside of the site";
        return {};
    }
    return place;
}

void CFileCopies::Plan(const CGeneratedEffect& effect, const fs::path& page, const std::string& subject) {
    for (const CString& name : effect.m_Lost)
        m_Report.Error(subject,
                       fmt::format("the effect needs the file \"{}\", which is missing; put it beside "
                                   "the configuration file",
                                   name.View()));
    for (const CEffectFile& file : effect.m_Files)
        PlanFile(file, page, subject);
}

void CFileCopies::PlanFile(const CEffectFile& file, const fs::path& page, const std::string& subject) {
    const std::string source = SystemPath(file.m_Source).string();
    if (!FileExists(file.m_Source)) {
        m_Report.Error(subject, fmt::format("the effect needs the file {}, which is missing", source));
        return;
    }
    for (const CString& name : file.m_Names) {
        // Browsers ask for names in UTF-8, whatever the page is in.
        const std::string address = ToUtf8((file.m_WebPath + name).View()).m_Text;
        std::string problem;
        const fs::path target = m_Site.Locate(address, page.parent_path(), problem);
        if (target.empty())
            m_Report.Error(subject,
                           fmt::format("\"{}\", where the page looks for {}, {}", address, source, problem));
        else if (target == page)
            m_Report.Error(subject, fmt::format("the file {} would land on the page itself", source));
        else if (!IsFree(target, file.m_Source))
            m_Report.Error(
                subject,
                fmt::format("the files {} and {} differ, but both would be {}; give one of them another name",
                            source, SystemPath(m_Sources.at(target)).string(), target.string()));
        else
            m_Sources.emplace(target, file.m_Source);
        if (target.empty())
            return; // the other spellings lie at the same place
    }
}

bool CFileCopies::IsFree(const fs::path& target, const CString& source) const {
    const auto found = m_Sources.find(target);
    return found == m_Sources.end() || found->second == source || SameContent(found->second, source);
}

void CFileCopies::Run() {
    fs::path folder; // the targets are sorted
    for (const auto& [target, source] : m_Sources) {
        if (fs::is_regular_file(target) && SameContent(source, ComponentPath(target)))
            continue;
        std::error_code failed;
        fs::create_directories(target.parent_path(), failed);
        if (folder != target.parent_path()) {
            folder = target.parent_path();
            COutputFile::RemoveLeftovers(ComponentPath(folder));
        }
        if (!failed)
            failed = CopyWholeFile(source, ComponentPath(target), Spelling::Exact);
        if (failed)
            m_Report.Error(target.string(), "can't be written: " + failed.message());
    }
}

} // namespace orrelix
