#include "platform/profile.h"
#include "tests/support/user_settings.h"

#include <array>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <tuple>
#include <unistd.h>

namespace orrelix {

namespace fs = std::filesystem;

namespace {

class Profile : public testing::Test {
protected:
    void WriteFile(const std::string& content) {
        fs::create_directories(m_User.Folder());
        std::ofstream(m_User.File(), std::ios::binary) << content;
    }

    CUserSettings m_User;
};

// Runs the function in a process of its own, which ends with what the function returns.
pid_t Start(const std::function<int()>& run) {
    const pid_t nProcess = fork();
    if (nProcess == 0)
        _exit(run());
    return nProcess;
}

int WaitFor(pid_t nProcess) {
    int nStatus = 0;
    EXPECT_EQ(waitpid(nProcess, &nStatus, 0), nProcess);
    return nStatus;
}

CString Key(int nIndex) {
    return "Value" + ToText(nIndex);
}

} // namespace

TEST_F(Profile, EveryTextComesBackAsItWasStored) {
    const CString texts[] = {"plain",
                             "  blanks outside ",
                             " ",
                             "two\r\nlines\n",
                             "\ttab\x7f",
                             "a=b=c",
                             "[section]",
                             "]",
                             "; no comment",
                             "#no comment",
                             "\\x3d",
                             "a\\",
                             "Gr\xc3\xbc\xc3\x9f \xe9\xa2\x9c\xe8\x89\xb2",
                             "\x83\x5c\x81\x3d\xff",
                             std::string("zero\0byte", 9)};
    for (const CString& text : texts) {
        EXPECT_TRUE(WriteProfileString("fixed", "key", text));
        EXPECT_EQ(GetProfileString("fixed", "key"), text) << "as a value";
        EXPECT_TRUE(WriteProfileString(text, text, "found"));
        EXPECT_EQ(GetProfileString(text, text), "found") << "as section and key: " << text;
    }
    EXPECT_TRUE(WriteProfileString("fixed", "key", ""));
    EXPECT_EQ(GetProfileString("fixed", "key", "default"), "");
    EXPECT_EQ(GetProfileString("fixed", "other key", "default"), "default");
    EXPECT_EQ(GetProfileString("other section", "key", "default"), "default");
}

TEST_F(Profile, OnlyTheKeysThatAreWrittenChange) {
    WriteFile("; by hand\n[A]\n#One=#\n One = 1 \r\nTwo=2\n\n[B]\nOne=b\nno entry\n[A]\nOne=late\n");
    EXPECT_EQ(GetProfileString("A", "One"), "1");
    EXPECT_EQ(GetProfileString("A", "#One", "no key"), "no key");
    EXPECT_TRUE(ChangeProfileSection("A", [](CProfileSection& section) {
        section.WriteString("Two", section.GetString("One") + "+1");
        section.WriteString("Three", "3");
        section.WriteString("Four", "4");
        section.WriteString("Three", "three");
    }));
    EXPECT_TRUE(WriteProfileString("C", "One", "c"));
    EXPECT_EQ(FileContent(m_User.File()),
              "; by hand\n[A]\n#One=#\n One = 1 \r\nTwo=1+1\n\n[B]\nOne=b\nno entry\n[A]\n"
              "One=late\nThree=three\nFour=4\n[C]\nOne=c\n");
}

TEST_F(Profile, ADamagedFileCostsNoMoreThanWhatIsDamaged) {
    // What it is, its content, and the value of the key "k" in the section "s".
    const std::tuple<const char*, std::string, const char*> cases[] = {
        {"empty", "", "default"},
        {"cut off in the section", "[s", "default"},
        {"cut off in the key", "[s]\nk", "default"},
        {"cut off in an escape", "[s]\nk=a\\x4", "a\\x4"},
        {"no escape", "[s]\nk=\\xzz\\", "\\xzz\\"},
        {"no section", "k=v\n", "default"},
        {"zeros", std::string(5000, '\0'), "default"},
        {"zeros before", std::string(50, '\0') + "\n[s]\nk=v\n", "v"},
        {"a key twice", "[s]\nk=first\nk=second\n", "first"},
        {"no keys", "=\n[]\n==\n[s]\n=\n", "default"},
        {"every byte", "\xff\xfe\x80[s]\n\x01\x02=\x03\n[s]\nk=\xff", "\xff"},
    };
    for (const auto& [pName, content, pValue] : cases) {
        WriteFile(content);
        EXPECT_EQ(GetProfileString("s", "k", "default"), pValue) << pName;
        EXPECT_TRUE(WriteProfileString("s", "k", "new")) << pName;
        EXPECT_EQ(GetProfileString("s", "k", "default"), "new") << pName;
    }
}

TEST_F(Profile, WhatCantBeReadIsAbsentAndWhatCantBeWrittenIsFalse) {
    const fs::path root = m_User.Root();
    const std::pair<const char*, std::function<void()>> cases[] = {
        {"a folder in place of the file", [&] { fs::create_directories(m_User.File()); }},
        {"a folder in place of the lock", [&] { fs::create_directories(m_User.Folder() / "settings.lock"); }},
        {"a file too large to be ours",
         [&] {
             WriteFile("[s]\nk=v\n");
             fs::resize_file(m_User.File(), 5'000'000);
         }},
        {"a file in place of the folder", [&] { std::ofstream(root / kCompanyWord) << "x"; }},
        {"a configuration folder below a file", [&] { setenv("XDG_CONFIG_HOME", "/dev/null/settings", 1); }},
        {"a home that isn't there", [&] {
             unsetenv("XDG_CONFIG_HOME");
             setenv("HOME", "/dev/null", 1);
         }}};
    for (const auto& [pName, spoil] : cases) {
        const pid_t nProcess = Start([&, act = spoil] {
            act();
            const bool bWritten = WriteProfileString("s", "k", "v");
            return (bWritten ? 1 : 0) + (GetProfileString("s", "k", "default") == "default" ? 0 : 2);
        });
        EXPECT_EQ(WaitFor(nProcess), 0) << pName;
        fs::remove_all(root / kCompanyWord);
    }
}

TEST_F(Profile, ReadOnlySettingsAreReadAndStayAsTheyAre) {
    const std::string content = "[s]\nk=v\n";
    WriteFile(content);
    fs::permissions(m_User.File(), fs::perms(0444));
    for (const fs::path& folder : {m_User.Folder(), m_User.Root() / kCompanyWord, m_User.Root()})
        fs::permissions(folder, fs::perms(0555));
    const pid_t nProcess = Start([] {
        if (geteuid() == 0 && setuid(65534) != 0) // who may do everything would write
            return 4;
        const bool bWritten = WriteProfileString("s", "k", "new");
        return (bWritten ? 1 : 0) + (GetProfileString("s", "k") == "v" ? 0 : 2);
    });
    EXPECT_EQ(WaitFor(nProcess), 0);
    EXPECT_EQ(FileContent(m_User.File()), content);
    for (const fs::path& folder : {m_User.Root(), m_User.Root() / kCompanyWord, m_User.Folder()})
        fs::permissions(folder, fs::perms::owner_all);
}

TEST_F(Profile, TheFolderIsFoundAsTheConventionSays) {
    const std::array<const char*, 3> cases[] = {
        {"/c", "/h", "\\c\\Brindlefen\\Vellumark Orrelix"},
        {"", "/h", "\\h\\.config\\Brindlefen\\Vellumark Orrelix"},
        {"relative", "/h", "\\h\\.config\\Brindlefen\\Vellumark Orrelix"},
        {"", "relative", ""}};
    for (const auto& [pConfiguration, pHome, pFolder] : cases) {
        const pid_t nProcess = Start([pConfig = pConfiguration, pHomeFolder = pHome, pWanted = pFolder] {
            setenv("XDG_CONFIG_HOME", pConfig, 1);
            setenv("HOME", pHomeFolder, 1);
            return GetSettingsFolder(false) == pWanted ? 0 : 1;
        });
        EXPECT_EQ(WaitFor(nProcess), 0) << pConfiguration << ", " << pHome;
    }
}

// On a busy disk the lock isn't got within its time now and then: the writer is told, and tries again.
TEST_F(Profile, ProcessesThatWriteAtOnceLoseNothing) {
    const auto insist = [](const std::function<bool()>& write) {
        for (int nTry = 0; nTry < 30 && !write(); ++nTry) {
        }
    };
    constexpr int kProcesses = 4, kRounds = 25;
    std::vector<pid_t> processes;
    for (int nProcess = 0; nProcess < kProcesses; ++nProcess) {
        processes.push_back(Start([&] {
            for (int nRound = 1; nRound <= kRounds; ++nRound) {
                insist([&] { return WriteProfileString("own", Key(nProcess), ToText(nRound)); });
                insist([] {
                    return ChangeProfileSection("shared", [](CProfileSection& section) {
                        section.WriteString("Count", ToText(ToInteger(section.GetString("Count")) + 1));
                    });
                });
            }
            return 0;
        }));
    }
    for (pid_t nProcess : processes)
        EXPECT_EQ(WaitFor(nProcess), 0);
    EXPECT_EQ(GetProfileString("shared", "Count"), ToText(kProcesses * kRounds));
    for (int nProcess = 0; nProcess < kProcesses; ++nProcess)
        EXPECT_EQ(GetProfileString("own", Key(nProcess)), ToText(kRounds));
}

} // namespace orrelix
