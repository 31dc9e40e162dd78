// A host that loads, uses and unloads the library a thousand times, and finds its process as it was.
#include "include/orrelix.hpp"
#include "tests/faults/failing_heap.h"

#include <csignal>
#include <fstream>
#include <iostream>
#include <locale.h>
#include <sstream>

extern char** environ;

namespace {

constexpr int kRounds = 1000;
constexpr int kFirstRounds = 10; // that give the system's library what it keeps

// What a library may not change of the process that loads it.
std::string Surroundings() {
    std::ostringstream all;
    all << setlocale(LC_ALL, nullptr) << std::filesystem::current_path() << getpid();
    for (char** ppVariable = environ; *ppVariable; ++ppVariable)
        all << '\n' << *ppVariable;
    for (int nSignal = 1; nSignal < NSIG; ++nSignal) {
        struct sigaction action {};
        sigaction(nSignal, nullptr, &action);
        all << '\n' << reinterpret_cast<void*>(action.sa_handler) << action.sa_flags;
        for (int nMasked = 1; nMasked < NSIG; ++nMasked)
            all << sigismember(&action.sa_mask, nMasked);
    }
    return all.str();
}

// Blocks of the heap, and pages of the whole process.
std::pair<long, long> Memory() {
    long nPages = 0;
    std::ifstream("/proc/self/statm") >> nPages;
    return {g_heap.m_nLive, nPages};
}

void Use(const vignel::Orrelix& orrelix, const char* pFile) {
    orrelix.Inspector().Put("CodePage", 936);
    if (!orrelix.ReadConfigFile(pFile) || orrelix.GetHTMLBody(0, 0).empty() ||
        orrelix.GetResourceNumber() == 0)
        throw std::runtime_error("the file isn't read");
    orrelix.Config();
    orrelix.Inspector().Call("GetPageFileNumber");
}

void Round(const char* pFile) {
    const vignel::Library library(ORRELIX_LIBRARY);
    {
        const vignel::Orrelix orrelix(library);
        Use(orrelix, pFile);
        if (VignelUnload(library.Handle()))
            throw std::runtime_error("the library goes in spite of its object");
    }
    if (!VignelUnload(library.Handle()) || dlopen(ORRELIX_LIBRARY, RTLD_LAZY | RTLD_NOLOAD))
        throw std::runtime_error("the library stays");
}

} // namespace

int main(int, char** pArguments) {
    for (const char* pScreen : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        unsetenv(pScreen);
    setlocale(LC_ALL, "C.UTF-8");
    signal(SIGPIPE, SIG_IGN);
    const std::string surroundings = Surroundings();
    for (int nRound = 0; nRound < kFirstRounds; ++nRound)
        Round(pArguments[1]);
    const auto memory = Memory();
    for (int nRound = kFirstRounds; nRound < kRounds; ++nRound)
        Round(pArguments[1]);
    const auto memoryAtLast = Memory();
    std::cout << "heap " << memory.first << " blocks, at last " << memoryAtLast.first << "; process "
              << memory.second << " pages, at last " << memoryAtLast.second << "\n";
    return memory == memoryAtLast && surroundings == Surroundings() ? 0 : 1;
}
