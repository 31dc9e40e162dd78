#include "host/site.h"

#include "host/files.h"

#include <algorithm>
#include <charconv>
#include <system_error>

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
    return !FollowBelow(file, m_Root).empty();
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
    if (Walk(decoded, m_Root, place))
        return FollowLinks(place, problem);
    problem = LeadsOut();
    return {};
}

fs::path CSite::FollowLinks(const fs::path& place, std::string& problem) const {
    // Most places lie in the site's folder itself, which is known.
    std::error_code unknown;
    const bool bHere = place.parent_path() == m_Root;
    if (const auto type = fs::symlink_status(place, unknown).type();
        bHere && type != fs::file_type::none && type != fs::file_type::symlink)
        return place;
    fs::path end = FollowBelow(place, m_Root);
    if (!end.empty())
        return end;
    std::error_code failed;
    const bool bToNothing = fs::is_symlink(place, failed) && !fs::exists(place, failed);
    problem =
        bToNothing ? "is a link to nothing; a file written there could land outside of the site" : LeadsOut();
    return {};
}

std::string CSite::LeadsOut() const {
    return "leads out of the site's folder " + m_Root.string();
}

} // namespace orrelix
