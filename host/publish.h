// orrelix publish: an effect into a page of a site.
#pragma once

#include "host/report.h"

#include <filesystem>

namespace orrelix {

struct CPublishOptions {
    std::filesystem::path m_File; // the configuration file
    std::filesystem::path m_Page;
    std::filesystem::path m_Site; // the folder of the site's root, in which the page lies
    bool m_bOverwrite;            // whether files that aren't ours may be replaced
};

// Puts the effect's texts into the page and its files where their web paths say. When the page has no place for it, a
// server would run what the texts have, or a file that isn't ours stands where one of them belongs, nothing is written; a
// file that can't be put to its place is reported, and the rest is done. The page is replaced as a whole or not at all.
void Publish(const CPublishOptions& options, CReport& report);

} // namespace orrelix
