// What a person at a shell sees: every file of tests/host/sessions is played in a folder of its own, in which
// the examples are. An answer ends with the exit code in brackets unless it is 0; paths of the folder, of the user's settings and of the
// component's library begin with $PWD, $SETTINGS and $LIBRARY.
#include "platform/module.h"
#include "platform/paths.h"
#include "tests/support/session.h"
#include "tests/support/temporary_directory.h"

#include <cstdio>
#include <stdlib.h>
#include <sys/wait.h>

namespace orrelix {

namespace fs = std::filesystem;

namespace {

const fs::path kSource = ORRELIX_SOURCE_DIR;
const fs::path kSessions = kSource / "tests/host/sessions";

class Session : public testing::TestWithParam<std::string> {
protected:
    Session() {
        fs::copy(kSource / "examples", m_Folder.File(""), fs::copy_options::recursive);
        const std::string path = fs::path(ORRELIX_PROGRAM).parent_path().string() + ":" + getenv("PATH");
        setenv("PATH", path.c_str(), 1);
        setenv("LC_ALL", "C.UTF-8", 1);
        setenv("XDG_CONFIG_HOME", m_Settings.File("").c_str(), 1); // nobody has registered anything
        setenv("XDG_CONFIG_DIRS", m_Settings.File("none").c_str(), 1);
        for (const char* pScreen : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            unsetenv(pScreen); // nobody is there to answer a dialog
    }

    // What the command writes, as the session has it.
    std::string Answer(const std::string& command) const {
        const std::string folder = m_Folder.File("").string();
        FILE* pOutput = popen(("cd " + folder + "; exec 2>&1\n" + command).c_str(), "r");
        CString output;
        char block[4096];
        while (const size_t nRead = fread(block, 1, sizeof block, pOutput))
            output += std::string_view(block, nRead);
        const int nStatus = pclose(pOutput);
        output.Replace(folder, "$PWD/");
        output.Replace(m_Settings.File("").string(), "$SETTINGS/");
        output.Replace(SystemSpelling(GetModuleDirectory()), "$LIBRARY");
        const int nExitCode = WIFEXITED(nStatus) ? WEXITSTATUS(nStatus) : -1;
        return std::string(output.View()) + (nExitCode ? "[" + std::to_string(nExitCode) + "]\n" : "");
    }

    const CTemporaryDirectory m_Folder;
    const CTemporaryDirectory m_Settings;
};

} // namespace

TEST_P(Session, HasTheseAnswers) {
    EXPECT_TRUE(GoesAsItStands(kSessions / (GetParam() + ".txt"),
                               [this](const std::string& command) { return Answer(command); }));
}

INSTANTIATE_TEST_SUITE_P(All, Session, testing::ValuesIn(StemsIn(kSessions, ".txt")),
                         [](const auto& session) { return session.param; });

} // namespace orrelix
