// A site's folder: where the files of a page lie, by the addresses at which the page refers to them.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace orrelix {

class CSite {
public:
    // The folder has to exist.
    explicit CSite(const std::filesystem::path& root);

    // Whether a file lies below the site's folder, links followed.
    bool Holds(const std::filesystem::path& file) const;

    // Where the file of an address belongs that a page in `pageFolder` refers to as browsers read it: UTF-8,
    // "%" and two digits for a byte, a backslash like a slash. "/x/y.js" counts from the site's root. Empty,
    // and `problem` says why, when the address is a full one or leads out of the site's folder, links
    // followed. The place has no links in it.
    std::filesystem::path Locate(std::string_view address, const std::filesystem::path& pageFolder,
                                 std::string& problem) const;

    // A place, links followed. Empty, and `problem` says why, when it lies outside of the site's folder.
    std::filesystem::path FollowLinks(const std::filesystem::path& place, std::string& problem) const;

private:
    std::string LeadsOut() const;

    std::filesystem::path m_Root; // without links in it
};

} // namespace orrelix
