#include "fuzz/fuzzing.h"

#include "platform/paths.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <unistd.h>

namespace orrelix {

namespace fs = std::filesystem;

namespace {

struct CFuzzFolder {
    CFuzzFolder() {
        std::string name = (fs::temp_directory_path() / "orrelix-fuzz-XXXXXX").native();
        if (!mkdtemp(name.data()))
            throw std::runtime_error("no folder to write into");
        m_Path = name;
    }
    ~CFuzzFolder() {
        std::error_code ignored;
        fs::remove_all(m_Path, ignored);
    }

    fs::path m_Path;
};

} // namespace

std::string CPieces::Next() {
    const size_t nEnd = std::min(m_Left.find('\0'), m_Left.size());
    std::string piece(m_Left.substr(0, nEnd));
    m_Left.remove_prefix(std::min(nEnd + 1, m_Left.size()));
    return piece;
}

void Require(bool bHolds, const std::string& promise) {
    if (bHolds)
        return;
    std::fprintf(stderr, "BROKEN: %s\n", promise.c_str());
    std::abort();
}

const fs::path& FuzzFolder() {
    static const CFuzzFolder folder;
    return folder.m_Path;
}

CString FuzzPath(const std::string& name) {
    return FromSystemPath((FuzzFolder() / name).native());
}

void PutFile(const fs::path& path, std::string_view content) {
    std::ofstream(path, std::ios::binary) << content;
}

std::string FileContent(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string Without(std::string text, std::string_view characters, char instead) {
    for (char& character : text)
        character = characters.find(character) == characters.npos ? character : instead;
    return text;
}

} // namespace orrelix
