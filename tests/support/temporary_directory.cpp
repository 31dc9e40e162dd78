#include "tests/support/temporary_directory.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
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
    std::string text = path.string();
    std::replace(text.begin(), text.end(), '/', '\\');
    return CString(std::move(text));
}

std::string FileContent(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.good()) << path << " can't be read";
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace orrelix
