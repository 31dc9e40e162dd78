#include "platform/files.h"
#include "platform/paths.h"
#include "tests/support/code_page_in_force.h"
#include "tests/support/temporary_directory.h"

#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orrelix {

namespace fs = std::filesystem;

namespace {

// How many names the directory holds, to see that no temporary file stays.
long CountNames(const CTemporaryDirectory& directory) {
    return std::distance(fs::directory_iterator(directory.File("")), fs::directory_iterator());
}

// A limit on the size of files, which fails a writer as a full disk does.
class CFullDisk {
public:
    explicit CFullDisk(rlim_t nRoom) {
        signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_Old);
        const rlimit limit{nRoom, m_Old.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~CFullDisk() { setrlimit(RLIMIT_FSIZE, &m_Old); }

private:
    rlimit m_Old{};
};

} // namespace

TEST(Files, AreFoundWithoutRegardToCaseAndNamedAsOnDisk) {
    const CTemporaryDirectory directory;
    fs::create_directories(directory.File("Site/Images"));
    std::ofstream(directory.File("Site/Images/Photo.GIF")) << "x";
    std::ofstream(directory.File("Site/Images/photo.gif~")) << "x";
    const struct {
        const char* m_pPath;
        const char* m_pName;
    } cases[] = {
        {"Site\\Images\\Photo.GIF", "Photo.GIF"},
        {"site\\IMAGES\\photo.gif", "Photo.GIF"},
        {"site\\images\\PHOTO.gif~", "photo.gif~"},
        {"Site\\Images\\Photo", ""},
        {"Site\\Images\\*.GIF", ""},
        {"Site\\Images\\Photo.GI?", ""},
        {"Site\\Images", ""},
        {"Site\\Images\\", ""},
        {"", ""},
    };
    for (const auto& [pPath, pName] : cases) {
        const CString path = *pPath ? directory.Path(pPath) : CString();
        EXPECT_EQ(FileNameOnDisk(path), pName) << pPath;
        EXPECT_EQ(FileExists(path), *pName != 0) << pPath;
    }
    EXPECT_TRUE(DirectoryExists(directory.Path("site\\images")));
    EXPECT_FALSE(DirectoryExists(directory.Path("site\\images\\photo.gif")));
    std::string content;
    EXPECT_FALSE(ReadWholeFile(directory.Path("Site"), content)) << "a directory is no file";
    EXPECT_FALSE(FileExists(CString(std::string("\\etc\\passwd\0x", 13))))
        << "a zero byte ends no name early";
}

TEST(Files, ABackslashWithinACharacterBelongsToTheName) {
    const CCodePageInForce page(936);
    const CTemporaryDirectory directory;
    std::ofstream(directory.File("\x95\\.txt")) << "x";
    EXPECT_TRUE(FileExists(directory.Path() + "\\\x95\\.txt"));
    // A name that ends in the first half of a character doesn't take the separator behind it along.
    const CString inside = FromSystemPath(directory.File("\x95/a").string());
    fs::create_directory(directory.File("\x95"));
    directory.Write("\x95/a", "");
    EXPECT_TRUE(FileExists(inside)) << inside;
}

TEST(Files, PatternsListFilesSortedWithoutRegardToCase) {
    const CTemporaryDirectory directory;
    for (const char* pName : {"b.GIF", "a.gif", "c.jpg", ".gif", "a.gif.txt", "x.au"})
        directory.Write(pName, "");
    fs::create_directory(directory.File("folder.gif"));
    EXPECT_EQ(FindFiles(directory.Path() + "\\", "*.gif"), (CStringArray{".gif", "a.gif", "b.GIF"}));
    EXPECT_EQ(FindFiles(directory.Path(), "?.*"),
              (CStringArray{"a.gif", "a.gif.txt", "b.GIF", "c.jpg", "x.au"}));
    EXPECT_EQ(FindFiles(directory.Path(), "a*f*t"), CStringArray{"a.gif.txt"});
    EXPECT_EQ(FindFiles(directory.Path("none"), "*"), CStringArray{});
}

TEST(Files, ACopyIsWholeOrAbsent) {
    const CTemporaryDirectory directory;
    const std::string large(1'000'000, 'x');
    const CString from = directory.Write("from", large);
    const CString to = directory.Write("to", "old");
    chmod(directory.File("to").c_str(), 0640);

    EXPECT_TRUE(CopyWholeFile(from, to));
    EXPECT_EQ(FileContent(directory.File("to")), large);
    struct stat status {};
    stat(directory.File("to").c_str(), &status);
    EXPECT_EQ(status.st_mode & 0777u, 0640u) << "a replaced file keeps its permissions";

    directory.Write("to", "old");
    EXPECT_FALSE(CopyWholeFile(directory.Path("missing"), to));
    EXPECT_FALSE(CopyWholeFile(directory.Path(), to));
    {
        const CFullDisk disk(300'000);
        EXPECT_FALSE(CopyWholeFile(from, to));
        EXPECT_FALSE(CopyWholeFile(from, directory.Path("new")));
    }
    EXPECT_EQ(FileContent(directory.File("to")), "old");
    EXPECT_EQ(CountNames(directory), 2);
    EXPECT_FALSE(CopyWholeFile(from, directory.Path("no\\such\\directory")));
}

TEST(Files, ACopyOntoItselfLeavesTheFileWhole) {
    const CTemporaryDirectory directory;
    const CString path = directory.Write("Page.cfg", "content");
    fs::create_symlink("Page.cfg", directory.File("link"));
    for (const CString& spelling :
         {path, directory.Path() + "\\.\\Page.cfg", directory.Path("link"), directory.Path("PAGE.cfg")})
        EXPECT_TRUE(CopyWholeFile(path, spelling)) << spelling;
    EXPECT_EQ(FileContent(directory.File("Page.cfg")), "content");
    EXPECT_TRUE(fs::is_symlink(directory.File("link")));
    EXPECT_EQ(CountNames(directory), 2);
}

TEST(Files, AnotherSpellingMeansTheFileThatIsThereUnlessItIsAskedForExactly) {
    const CTemporaryDirectory directory;
    const CString from = directory.Write("from", "new");
    directory.Write("Photo.GIF", "old");
    EXPECT_TRUE(CopyWholeFile(from, directory.Path("photo.gif"), Spelling::Exact));
    EXPECT_EQ(FileContent(directory.File("Photo.GIF")), "old");
    EXPECT_TRUE(CopyWholeFile(from, directory.Path("PHOTO.gif")));
    EXPECT_EQ(FileContent(directory.File("Photo.GIF")), "new") << "the first of two, as for readers";
    EXPECT_EQ(CountNames(directory), 3);
}

TEST(Files, ListedDirectoriesKnowWhatIsPutIntoThemMeanwhile) {
    const CTemporaryDirectory directory;
    const CString from = directory.Write("from", "new");
    const CListedDirectories listed;
    EXPECT_FALSE(FileExists(directory.Path("PHOTO.gif")));
    EXPECT_TRUE(CopyWholeFile(from, directory.Path("photo.gif")));
    EXPECT_EQ(FileNameOnDisk(directory.Path("PHOTO.gif")), "photo.gif");
}

TEST(Files, APipeIsNoFileAndNothingIsWaitedFor) {
    const CTemporaryDirectory directory;
    ASSERT_EQ(mkfifo(directory.File("pipe").c_str(), 0666), 0);
    std::string content;
    EXPECT_FALSE(ReadWholeFile(directory.Path("pipe"), content));
    EXPECT_FALSE(COutputFile().Open(directory.Path("pipe")));
}

TEST(Files, OnlyWhatADeadWriterLeftIsRemoved) {
    const pid_t nDead = fork();
    if (nDead == 0)
        _exit(0);
    waitpid(nDead, nullptr, 0);
    const CTemporaryDirectory directory;
    const std::string leftover = ".orrelix-" + std::to_string(nDead) + "-1";
    const std::string kept[] = {".orrelix-notes.txt", ".orrelix-", ".orrelix--1", leftover + ".txt",
                                ".orrelix-" + std::to_string(getpid()) + "-1"};
    for (const std::string& name : kept)
        directory.Write(name, "");
    directory.Write(leftover, "");
    COutputFile::RemoveLeftovers(directory.Path());
    EXPECT_FALSE(fs::exists(directory.File(leftover)));
    for (const std::string& name : kept)
        EXPECT_TRUE(fs::exists(directory.File(name))) << name;
}

TEST(Files, WhatIsNotCommittedChangesNothing) {
    const CTemporaryDirectory directory;
    const CString path = directory.Write("page", "old");
    {
        COutputFile file;
        ASSERT_TRUE(file.Open(path));
        file.Write("new");
    }
    EXPECT_EQ(FileContent(directory.File("page")), "old");
    {
        const CFullDisk disk(1000);
        COutputFile file;
        ASSERT_TRUE(file.Open(path));
        file.Write(std::string(1001, 'x'));
        EXPECT_FALSE(file.Commit());
    }
    EXPECT_EQ(FileContent(directory.File("page")), "old");
    EXPECT_EQ(CountNames(directory), 1);

    COutputFile file;
    EXPECT_FALSE(file.Open(directory.Path("no\\such")));
    EXPECT_FALSE(file.Open(directory.Path())) << "a directory is no file";
    EXPECT_FALSE(file.Commit());
    // A device takes the bytes itself and stays what it is.
    ASSERT_TRUE(file.Open("\\dev\\full"));
    file.Write("x");
    EXPECT_FALSE(file.Commit());
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST(Files, AReplacedLinkStaysALink) {
    const CTemporaryDirectory directory;
    directory.Write("there", "old");
    for (const char* pReal : {"there", "not yet"}) {
        const std::string link = std::string("link to ") + pReal;
        fs::create_symlink(pReal, directory.File(link));
        COutputFile file;
        ASSERT_TRUE(file.Open(directory.Path(link)));
        file.Write("new");
        EXPECT_TRUE(file.Commit());
        EXPECT_TRUE(fs::is_symlink(directory.File(link)));
        EXPECT_EQ(FileContent(directory.File(pReal)), "new");
    }
}

} // namespace orrelix
