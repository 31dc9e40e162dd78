#include "tests/support/run_program.h"

#include <csignal>
#include <cstdio>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

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

// Opens a watch for changes of a folder's files; to be closed by the caller.
int Watch(const std::string& folder) {
    const int nWatch = inotify_init1(IN_CLOEXEC);
    EXPECT_GE(inotify_add_watch(nWatch, folder.c_str(), IN_CREATE | IN_MODIFY), 0) << folder;
    return nWatch;
}

// Waits for a change, ten seconds at most.
void WaitForChange(int nWatch) {
    pollfd poll{nWatch, POLLIN, 0};
    EXPECT_EQ(::poll(&poll, 1, 10000), 1) << "nothing changed in the watched folder";
}

// In the child: never returns.
[[noreturn]] void Become(const std::vector<std::string>& arguments, const CProgramLimits& limits,
                         FILE* pOutput, FILE* pErrors) {
    if (limits.m_nFileSize) {
        const rlimit limit{*limits.m_nFileSize, *limits.m_nFileSize};
        signal(SIGXFSZ, SIG_IGN); // so that writing fails, as on a full disk
        setrlimit(RLIMIT_FSIZE, &limit);
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
    const int nWatch = limits.m_TouchedFolder.empty() ? -1 : Watch(limits.m_TouchedFolder);
    const pid_t nChild = fork();
    if (nChild == 0)
        Become(arguments, limits, pOutput, pErrors);
    if (nWatch >= 0) {
        WaitForChange(nWatch);
        close(nWatch);
    }
    if (limits.m_KillAfter) {
        std::this_thread::sleep_for(*limits.m_KillAfter);
        kill(nChild, SIGKILL); // not waited for yet, so the number is still its own
    }
    int nStatus = 0;
    EXPECT_EQ(waitpid(nChild, &nStatus, 0), nChild);
    CProgramRun run;
    run.m_bKilled = WIFSIGNALED(nStatus);
    run.m_nExitCode = WIFEXITED(nStatus) ? WEXITSTATUS(nStatus) : -1;
    run.m_Output = ContentOf(pOutput);
    run.m_Errors = ContentOf(pErrors);
    return run;
}
