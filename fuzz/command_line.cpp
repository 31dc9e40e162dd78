// The program with any words and files: it ends with a code and, if that isn't 0, a sentence; it writes nowhere but in
// its folder, and leaves nothing half done there.
//
// Input: the command's words, one a line; a configuration file x.cfg; a page, site/page.html. "new", "edit" and the others
// find images, links out of the folder, and files of others there.
#include "fuzz/fuzzing.h"

#include <iostream>
#include <map>
#include <sstream>
#include <vector>

int OrrelixMain(int nArguments, char** ppArguments); // what "main" is called here

namespace orrelix {

namespace fs = std::filesystem;

namespace {

using CFiles = std::map<std::string, std::string>;

// Deep enough for what climbs out of it.
fs::path WorkFolder() {
    return FuzzFolder() / "1/2/3/4/5/6/7/8/work";
}

CFiles FilesBelow(const fs::path& folder, const fs::path& except) {
    CFiles files;
    for (auto entry = fs::recursive_directory_iterator(folder); entry != fs::recursive_directory_iterator();
         ++entry) {
        if (entry->path() == except)
            entry.disable_recursion_pending();
        else
            files[entry->path().native()] = entry->is_regular_file() ? FileContent(entry->path()) : "";
    }
    return files;
}

void FillWorkFolder(const std::string& config, const std::string& page) {
    const fs::path folder = WorkFolder();
    for (const auto& entry : fs::directory_iterator(folder))
        fs::remove_all(entry.path());
    fs::create_directories(folder / "site/images");
    PutFile("x.cfg", config);
    PutFile("site/page.html", page);
    for (const char* pImage : {"house.gif", "book.gif", "letter.gif", "clock.gif", "site/images/clock.gif"})
        PutFile(pImage, pImage);
    fs::create_symlink("../outside.gif", "link.gif");
    fs::create_symlink("../../outside.html", "site/link.html");
    fs::create_directory_symlink("../..", "site/up");
}

// Words that name a file name it in the folder.
std::vector<std::string> Words(const std::string& lines) {
    std::vector<std::string> words = {"orrelix"};
    std::istringstream input(lines);
    for (std::string word; std::getline(input, word) && words.size() < 16;) {
        for (size_t nAt; (nAt = word.find("..")) != word.npos;)
            word[nAt] = '_';
        for (const size_t nAt : {size_t(0), word.find('=') + 1}) {
            if (nAt < word.size() && word[nAt] == '/')
                word[nAt] = '_';
        }
        words.push_back(word.substr(0, 200));
    }
    return words;
}

bool ReachesTerminal(const std::string& output) {
    for (const char* pMark : {"\x1B", "\x7F", "\xC2\x9B", "\xE2\x80\xAE", "\xE2\x81\xA6", "\r"}) {
        if (output.find(pMark) != output.npos)
            return true;
    }
    return false;
}

// Of which the name has a process's number.
bool IsTemporary(const std::string& name) {
    constexpr std::string_view kPrefix = ".orrelix-";
    return name.starts_with(kPrefix) && name.find_first_of("0123456789") == kPrefix.size();
}

int Run(std::vector<std::string> words, std::string& complaint) {
    std::ostringstream out, errors;
    auto* pOut = std::cout.rdbuf(out.rdbuf());
    auto* pErrors = std::cerr.rdbuf(errors.rdbuf());
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    const int nCode = OrrelixMain(static_cast<int>(arguments.size()), arguments.data());
    std::cout.rdbuf(pOut);
    std::cerr.rdbuf(pErrors);
    complaint = errors.str();
    Require(!ReachesTerminal(complaint), "no control character reaches a terminal: " + complaint);
    Require(!ReachesTerminal(out.str()), "no control character reaches a terminal: " + out.str());
    return nCode;
}

void FuzzCommandLine(CPieces pieces, const CFiles& outside) {
    const std::vector<std::string> words = Words(pieces.Next());
    const std::string config = pieces.Next();
    FillWorkFolder(config, pieces.Next());
    std::string complaint;
    const int nCode = Run(words, complaint);
    Require(nCode >= 0 && nCode <= 2, "a code that scripts are told of");
    Require(nCode == 0 || complaint.starts_with("orrelix: "), "what fails says why");
    Require(FilesBelow(FuzzFolder(), WorkFolder()) == outside, "nothing is written outside of the folder");
    const CFiles files = FilesBelow(WorkFolder(), "");
    for (const auto& [file, content] : files)
        Require(!IsTemporary(fs::path(file).filename().native()), "no temporary file stays");
    if (words.size() < 2 || words[1] != "publish" || nCode != 0)
        return;
    Require(Run(words, complaint) == 0, "what was published can be published again: " + complaint);
    Require(FilesBelow(WorkFolder(), "") == files, "what is published twice is there once");
}

CFiles g_outside;

} // namespace

} // namespace orrelix

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    using namespace orrelix;
    fs::create_directories(WorkFolder());
    fs::current_path(WorkFolder());
    PutFile("../outside.gif", "secret");
    PutFile("../outside.html", "<body><!-- vignel: t --></body>");
    for (const char* pFolders : {"XDG_CONFIG_HOME", "XDG_CONFIG_DIRS", "XDG_RUNTIME_DIR", "TMPDIR"})
        setenv(pFolders, WorkFolder().c_str(), 1);
    for (const char* pScreen : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        unsetenv(pScreen);
    g_outside = FilesBelow(FuzzFolder(), WorkFolder());
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, size_t nSize) {
    orrelix::FuzzCommandLine({pData, nSize}, orrelix::g_outside);
    return 0;
}
