// What all tests of the program share: a folder of its own, and the program run in it on real files.
#pragma once

#include "core/orrelix.h"
#include "tests/support/run_program.h"
#include "tests/support/temporary_directory.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <stdlib.h>

namespace orrelix {

class ProgramTest : public testing::Test {
protected:
    // Nobody is there to answer a dialog of the program.
    ProgramTest() {
        for (const char* pScreen : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            unsetenv(pScreen);
    }

    // Runs `orrelix` with these arguments in the folder.
    CProgramRun Run(std::vector<std::string> arguments, CProgramLimits limits = {}) const {
        arguments.insert(arguments.begin(), ORRELIX_PROGRAM);
        limits.m_Directory = m_Folder.File("").string();
        return RunProgram(arguments, limits);
    }

    // Runs it to this exit code, with this among its errors; where nothing is to be said, nothing may be.
    CProgramRun ExpectRun(const std::vector<std::string>& arguments, int nExitCode,
                          const std::string& message = "", const CProgramLimits& limits = {}) const {
        SCOPED_TRACE(testing::PrintToString(arguments));
        const CProgramRun run = Run(arguments, limits);
        EXPECT_EQ(run.m_nExitCode, nExitCode) << run.m_Errors;
        EXPECT_NE(run.m_Errors.find(message), std::string::npos) << message << " isn't in: " << run.m_Errors;
        EXPECT_EQ(run.m_Errors.empty(), message.empty()) << run.m_Errors;
        return run;
    }

    // Writes a configuration file of Animate Text with one message, as the component does.
    void WriteEffect(const std::string& name, const std::string& title, const std::string& message,
                     const std::string& scriptPath = "") const {
        COrrelix orrelix;
        orrelix.SelectType("1");
        orrelix.SetTitle(title);
        orrelix.m_AnimateText.m_Messages = {message};
        orrelix.m_AnimateText.m_ScriptPath = scriptPath;
        ASSERT_TRUE(orrelix.WriteConfigFile(m_Folder.Path(name)));
    }

    std::string Content(const std::string& name) const { return FileContent(m_Folder.File(name)); }
    bool Exists(const std::string& name) const { return std::filesystem::exists(m_Folder.File(name)); }
    static std::string Example(const std::string& name) {
        return std::string(ORRELIX_SOURCE_DIR "/examples/") + name;
    }

    CTemporaryDirectory m_Folder;
};

} // namespace orrelix
