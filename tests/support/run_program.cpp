#include "tests/support/run_program.h"

#include <csignal>
#include <cstdio>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orrelix {

namespace {

std::string ContentOf(FILE* pFile) {
    std::string content;
    rewind(pFile);
    char block[64 * 1024];
    while (const size_t nRead = fread(block, 1, sizeof block, pFile))
        content.append(block, nRead);
    fclose(pFile);
    return content;
}

// In the child: never returns.
[[noreturn]] void Become(const std::vector<std::string>& arguments, const CProgramLimits& limits,
                         FILE* pOutput, FILE* pErrors) {
    if (limits.m_nFileSize) {
        const rlimit limit{*limits.m_nFileSize, *limits.m_nFileSize}, noDump{0, 0};
        signal(SIGXFSZ, limits.m_bKilledBeyond ? SIG_DFL : SIG_IGN); // ignored: writing fails
        setrlimit(RLIMIT_FSIZE, &limit);
        setrlimit(RLIMIT_CORE, &noDump);
    }
    std::vector<char*> pointers;
    for (const std::string& argument : arguments)
        pointers.push_back(const_cast<char*>(argument.c_str()));
    pointers.push_back(nullptr);
    const bool bReady = dup2(fileno(pOutput), STDOUT_FILENO) >= 0 &&
                        dup2(fileno(pErrors), STDERR_FILENO) >= 0 &&
                        (limits.m_Directory.empty() || chdir(limits.m_Directory.c_str()) == 0);
    if (bReady)
        execv(pointers.front(), pointers.data());
    _exit(127);
}

} // namespace

CProgramRun RunProgram(const std::vector<std::string>& arguments, const CProgramLimits& limits) {
    FILE* pOutput = tmpfile();
    FILE* pErrors = tmpfile();
    const pid_t nChild = fork();
    if (nChild == 0)
        Become(arguments, limits, pOutput, pErrors);
    int nStatus = 0;
    EXPECT_EQ(waitpid(nChild, &nStatus, 0), nChild);
    CProgramRun run;
    run.m_bKilled = WIFSIGNALED(nStatus);
    run.m_nExitCode = WIFEXITED(nStatus) ? WEXITSTATUS(nStatus) : -1;
    run.m_Output = ContentOf(pOutput);
    run.m_Errors = ContentOf(pErrors);
    return run;
}

} // namespace orrelix
