// A program run as a process of its own, as a person's shell does it.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace orrelix {

struct CProgramRun {
    int m_nExitCode = -1; // -1 when a signal ended it
    bool m_bKilled = false;
    std::string m_Output;
    std::string m_Errors;
};

struct CProgramLimits {
    std::optional<size_t> m_nFileSize; // the longest file it can write; more fails
    bool m_bKilledBeyond = false;      // more doesn't fail but kills it, in the midst of writing
    std::string m_Directory;           // where it runs, if not here
};

// Runs a program to its end. The first of the arguments is the program's path.
CProgramRun RunProgram(const std::vector<std::string>& arguments, const CProgramLimits& limits = {});

} // namespace orrelix
