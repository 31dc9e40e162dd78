#include "platform/files.h"
#include "platform/paths.h"
#include "tests/support/code_page_in_force.h"
#include "tests/support/failing_files.h"
#include "tests/support/temporary_directory.h"

#include <fstream>
#include <functional>
#include <grp.h>
#include <gtest/gtest.h>
#include <set>
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

const std::error_code kNoError;

std::error_code Write(const CString& path, std::string_view content) {
    COutputFile file;
    if (const std::error_code error = file.Open(path))
        return error;
    file.Write(content);
    return file.Commit();
}

} // namespace

TEST(Files, AreFoundWithoutRegardToCaseAndNamedAsOnDisk) {
    const CTemporaryDirectory directory;
    fs::create_directories(directory.File("Site/Images"));
    std::ofstream(directory.File("Site/Images/Photo.GIF")) << "x";
    std::ofstream(directory.File("Site/Images/photo.gif~")) << "x";
    const std::pair<const char*, const char*> cases[] = {
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
    EXPECT_EQ(ReadWholeFile(directory.Path("Site"), content), std::errc::is_a_directory);
    EXPECT_FALSE(FileExists(CString(std::string("\\etc\\passwd\0x", 13))))
        << "a zero byte ends no name early";
}

TEST(Files, OnlyCertainAbsenceCountsAsAbsence) {
    const CTemporaryDirectory directory;
    directory.Write("Photo.gif", "");
    for (const auto error :
         {std::errc::io_error, std::errc::too_many_files_open, std::errc::permission_denied}) {
        bool bFailed = true;
        for (int nCall = 1; bFailed; ++nCall) {
            const CFailingFiles files(nCall, std::make_error_code(error));
            const bool bThere = FileExists(directory.Path("none"));
            bFailed = !files.GetFailed().empty();
            EXPECT_EQ(bThere, bFailed) << files.GetFailed();
        }
        for (int nCall = 1; nCall < 10; ++nCall) {
            const CFailingFiles files(nCall, std::make_error_code(error));
            EXPECT_FALSE(FileNameOnDisk(directory.Path("photo.gif")).IsEmpty()) << files.GetFailed();
        }
    }
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

    EXPECT_EQ(CopyWholeFile(from, to), kNoError);
    EXPECT_EQ(FileContent(directory.File("to")), large);
    struct stat status {};
    stat(directory.File("to").c_str(), &status);
    EXPECT_EQ(status.st_mode & 0777u, 0640u) << "a replaced file keeps its permissions";

    EXPECT_EQ(CopyWholeFile(directory.Path("missing"), to), std::errc::no_such_file_or_directory);
    EXPECT_EQ(CopyWholeFile(directory.Path(), to), std::errc::is_a_directory);
    EXPECT_EQ(CopyWholeFile(from, directory.Path("no\\such\\directory")),
              std::errc::no_such_file_or_directory);
    EXPECT_EQ(FileContent(directory.File("to")), large);
    EXPECT_EQ(CountNames(directory), 2);
}

TEST(Files, AFileOfAnotherUserKeepsItsGroupOrLetsNobodyElseIn) {
    if (geteuid() != 0)
        GTEST_SKIP() << "nobody else can make files of other users";
    constexpr gid_t kOwnGroup = 4711, kStrangers = 4712;
    const struct {
        gid_t m_nGroup;
        mode_t m_nMode, m_nModeAfter;
    } cases[] = {{kOwnGroup, 0664, 0664}, {kOwnGroup, 02664, 0664}, {kStrangers, 02676, 0666}};
    const CTemporaryDirectory directory;
    chmod(directory.File("").c_str(), 0777);
    for (const auto& [nGroup, nMode, nModeAfter] : cases) {
        const CString path = directory.Write("page", "old");
        const std::string page = directory.File("page").string();
        ASSERT_EQ(chown(page.c_str(), 0, nGroup) + chmod(page.c_str(), nMode), 0);
        const pid_t nWriter = fork();
        if (nWriter == 0)
            _exit(setgroups(1, &kOwnGroup) || setgid(65534) || setuid(65534) || Write(path, "new"));
        int nStatus = -1;
        waitpid(nWriter, &nStatus, 0);
        struct stat status {};
        stat(page.c_str(), &status);
        EXPECT_EQ(nStatus, 0);
        EXPECT_EQ(status.st_gid == nGroup, nGroup == kOwnGroup);
        EXPECT_EQ(status.st_mode & 07777, nModeAfter);
        fs::remove(page);
    }
}

TEST(Files, ACopyOntoItselfLeavesTheFileWhole) {
    const CTemporaryDirectory directory;
    const CString path = directory.Write("Page.cfg", "content");
    fs::create_symlink("Page.cfg", directory.File("link"));
    for (const CString& spelling :
         {path, directory.Path() + "\\.\\Page.cfg", directory.Path("link"), directory.Path("PAGE.cfg")})
        EXPECT_EQ(CopyWholeFile(path, spelling), kNoError) << spelling;
    EXPECT_EQ(FileContent(directory.File("Page.cfg")), "content");
    EXPECT_TRUE(fs::is_symlink(directory.File("link")));
    EXPECT_EQ(CountNames(directory), 2);
}

TEST(Files, AnotherSpellingMeansTheFileThatIsThereUnlessItIsAskedForExactly) {
    const CTemporaryDirectory directory;
    const CString from = directory.Write("from", "new");
    directory.Write("Photo.GIF", "old");
    EXPECT_EQ(CopyWholeFile(from, directory.Path("photo.gif"), Spelling::Exact), kNoError);
    EXPECT_EQ(FileContent(directory.File("Photo.GIF")), "old");
    EXPECT_EQ(CopyWholeFile(from, directory.Path("PHOTO.gif")), kNoError);
    EXPECT_EQ(FileContent(directory.File("Photo.GIF")), "new") << "the first of two, as for readers";
    EXPECT_EQ(CountNames(directory), 3);
}

TEST(Files, ListedDirectoriesKnowWhatIsPutIntoThemMeanwhile) {
    const CTemporaryDirectory directory;
    const CString from = directory.Write("from", "new");
    for (const char* pName : {"logo.gif", "Logo.GIF", "lOGO.gif"})
        directory.Write(pName, "");
    const CListedDirectories listed;
    EXPECT_EQ(FileNameOnDisk(directory.Path("LOGO.gif")), "Logo.GIF") << "the first of several";
    EXPECT_FALSE(FileExists(directory.Path("PHOTO.gif")));
    EXPECT_EQ(CopyWholeFile(from, directory.Path("photo.gif")), kNoError);
    EXPECT_EQ(FileNameOnDisk(directory.Path("PHOTO.gif")), "photo.gif");
}

TEST(Files, APipeOrADeviceIsNoFileAndNothingIsWaitedFor) {
    const CTemporaryDirectory directory;
    ASSERT_EQ(mkfifo(directory.File("pipe").c_str(), 0666), 0);
    std::string content;
    EXPECT_EQ(ReadWholeFile(directory.Path("pipe"), content), std::errc::operation_not_supported);
    const std::unique_ptr<FILE, int (*)(FILE*)> pReader(fopen(directory.File("pipe").c_str(), "r+"), fclose);
    for (const CString& path : {directory.Path("pipe"), CString("\\dev\\full")})
        EXPECT_EQ(Write(path, "x"), std::errc::operation_not_supported) << path;
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
    // A number of a process that lives now, but not when the file was written.
    const std::string older = ".orrelix-1-1";
    for (const std::string& name : {leftover, older})
        directory.Write(name, "");
    fs::last_write_time(directory.File(older), fs::file_time_type::clock::now() - std::chrono::hours(1));
    COutputFile::RemoveLeftovers(directory.Path());
    for (const std::string& name : {leftover, older})
        EXPECT_FALSE(fs::exists(directory.File(name))) << name;
    for (const std::string& name : kept)
        EXPECT_TRUE(fs::exists(directory.File(name))) << name;
}

TEST(Files, WhatIsNotCommittedChangesNothing) {
    const CTemporaryDirectory directory;
    const CString path = directory.Write("page", "old");
    {
        COutputFile file;
        ASSERT_EQ(file.Open(path), kNoError);
        file.Write("new");
    }
    EXPECT_EQ(FileContent(directory.File("page")), "old");
    EXPECT_EQ(CountNames(directory), 1);
    EXPECT_EQ(COutputFile().Commit(), std::errc::bad_file_descriptor);
    EXPECT_EQ(Write(directory.Path("no\\such"), "x"), std::errc::no_such_file_or_directory);
    EXPECT_EQ(Write(directory.Path(), "x"), std::errc::is_a_directory);
}

TEST(Files, WhicheverCallFailsTheFileIsTheOldOrTheNewOneAndTheErrorIsTold) {
    const CTemporaryDirectory directory;
    const std::string content(600'000, 'x');
    const CString from = directory.Write("from", content), to = directory.Path("to");
    const struct {
        const char* m_pWhat;
        std::function<std::error_code()> m_Act;
        std::set<std::string> m_Calls;
    } acts[] = {
        {"write",
         [&] { return Write(to, content); },
         {"look", "create", "write", "list", "sync", "close", "rename"}},
        // Of a name that isn't there the directory is listed.
        {"copy",
         [&] { return CopyWholeFile(from, to); },
         {"look", "list", "open", "read", "create", "write", "close", "rename"}},
    };
    const auto run = [&](const auto& act, const std::string& old, int nCall, const std::error_code& fault) {
        fs::remove(directory.File("to"));
        if (!old.empty())
            directory.Write("to", old);
        const CFailingFiles files(nCall, fault);
        const std::error_code error = act.m_Act(),
                              told = fault ? fault : std::make_error_code(std::errc::io_error);
        const std::string call = files.GetFailed();
        SCOPED_TRACE(act.m_pWhat + (" over \"" + old) + "\", " + call + " as call " + std::to_string(nCall));
        // What can't be looked at is taken as it is spelled; what was moved in part is tried again.
        const bool bMayPass = !fault || call == "look" || call == "list" || call.empty();
        EXPECT_TRUE(error ? error == told : bMayPass) << error;
        const bool bThere = fs::exists(directory.File("to"));
        EXPECT_EQ(bThere ? FileContent(directory.File("to")) : "", error ? old : content);
        EXPECT_EQ(CountNames(directory), bThere ? 2 : 1);
        return call;
    };
    for (const auto& act : acts) {
        for (const std::error_code& fault : {std::make_error_code(std::errc::no_space_on_device), kNoError}) {
            std::set<std::string> calls;
            for (const char* pOld : {"old", ""}) {
                std::string call;
                for (int nCall = 1; !(call = run(act, pOld, nCall, fault)).empty(); ++nCall)
                    calls.insert(call);
            }
            EXPECT_EQ(calls, act.m_Calls) << "some call has not failed";
        }
    }
}

TEST(Files, AReplacedLinkStaysALink) {
    const CTemporaryDirectory directory;
    directory.Write("there", "old");
    for (const char* pReal : {"there", "not yet"}) {
        const std::string link = std::string("link to ") + pReal;
        fs::create_symlink(pReal, directory.File(link));
        EXPECT_EQ(Write(directory.Path(link), "new"), kNoError);
        EXPECT_TRUE(fs::is_symlink(directory.File(link)));
        EXPECT_EQ(FileContent(directory.File(pReal)), "new");
    }
    for (const char* pName : {"circle", "link 1"})
        fs::create_symlink("circle", directory.File(pName));
    for (int nLink = 2; nLink <= 45; ++nLink)
        fs::create_symlink("link " + std::to_string(nLink - 1),
                           directory.File("link " + std::to_string(nLink)));
    for (const char* pName : {"circle", "link 45"})
        EXPECT_EQ(Write(directory.Path(pName), "new"), std::errc::too_many_symbolic_link_levels) << pName;
}

} // namespace orrelix
