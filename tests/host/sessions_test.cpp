// What a person at a shell sees: every file of tests/host/sessions is played in a folder of its own, in which
// the examples are, and has to come out as it stands. A command stands behind "  $ ", with "  > " before its
// further lines; then what it wrote, and its exit code in brackets unless it is 0. Lines that aren't indented
// say why.
#include "tests/host/program_test.h"
#include "tests/support/expected_text.h"

#include <algorithm>
#include <sstream>

namespace orrelix {

namespace fs = std::filesystem;

namespace {

const fs::path kSessions = ORRELIX_SOURCE_DIR "/tests/host/sessions";

std::vector<std::string> SessionNames() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(kSessions)) {
        if (entry.path().extension() == ".txt")
            names.push_back(entry.path().stem());
    }
    std::sort(names.begin(), names.end());
    return names;
}

class Session : public ProgramTest, public testing::WithParamInterface<std::string> {
protected:
    // What the command writes, as the session has it.
    std::string Answer(const std::string& command) const {
        CProgramLimits limits;
        limits.m_Directory = m_Folder.File("").string();
        const CProgramRun run = RunProgram({"/bin/sh", "-c", "exec 2>&1\n" + command}, limits);
        std::string output = run.m_Output, answer;
        const std::string folder = limits.m_Directory;
        for (size_t n = output.find(folder); n != std::string::npos; n = output.find(folder, n))
            output.replace(n, folder.size(), "$PWD/");
        std::istringstream lines(output);
        for (std::string line; std::getline(lines, line);)
            answer += line.empty() ? "\n" : "  " + line + (lines.eof() ? " (and no line end)\n" : "\n");
        return answer + (run.m_nExitCode ? "  [" + std::to_string(run.m_nExitCode) + "]\n" : "");
    }
};

} // namespace

TEST_P(Session, GoesAsItStands) {
    fs::copy(Example(""), m_Folder.File(""), fs::copy_options::recursive);
    const std::string path = fs::path(ORRELIX_PROGRAM).parent_path().string() + ":" + getenv("PATH");
    setenv("PATH", path.c_str(), 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    std::istringstream session(FileContent(kSessions / (GetParam() + ".txt")));
    std::string text, command;
    bool bAfterComment = false;
    for (std::string line; std::getline(session, line) || !command.empty(); line.clear()) {
        if (!command.empty() && line.starts_with("  > ")) {
            command += "\n" + line.substr(4);
            text += line + "\n";
            continue;
        }
        if (!command.empty())
            text += Answer(command);
        command = line.starts_with("  $ ") ? line.substr(4) : "";
        const bool bComment = !line.empty() && !line.starts_with("  ");
        text += bComment && !bAfterComment && !text.empty() ? "\n" : "";
        text += bComment || !command.empty() ? line + "\n" : "";
        bAfterComment = bComment;
    }
    EXPECT_TRUE(EqualsExpected(kSessions / (GetParam() + ".txt"), text));
}

INSTANTIATE_TEST_SUITE_P(All, Session, testing::ValuesIn(SessionNames()),
                         [](const auto& session) { return session.param; });

} // namespace orrelix
