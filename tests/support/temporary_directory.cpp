#include "tests/support/temporary_directory.h"

#include "platform/paths.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <stdlib.h>

namespace orrelix {

CTemporaryDirectory::CTemporaryDirectory() {
    std::string name = (std::filesystem::temp_directory_path() / "orrelix-test-XXXXXX").string();
    if (!mkdtemp(name.data()))
        ADD_FAILURE() << "no temporary directory could be made at " << name;
    m_Path = name;
}

CTemporaryDirectory::~CTemporaryDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(m_Path, ignored);
}

CString CTemporaryDirectory::Path(const std::string& name) const {
    return HostPath(m_Path / name);
}

CString CTemporaryDirectory::Write(const std::string& name, std::string_view content) const {
    std::ofstream(File(name), std::ios::binary) << content;
    return Path(name);
}

CString HostPath(const std::filesystem::path& path) {
    return FromSystemPath(path.string());
}

std::vector<std::string> StemsIn(const std::filesystem::path& folder, const char* pEnding) {
    std::vector<std::string> stems;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == pEnding)
            stems.push_back(entry.path().stem());
    }
    std::sort(stems.begin(), stems.end());
    return stems;
}

std::string FileContent(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.good()) << path << " can't be read";
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

} // namespace orrelix
