// What all tests of the program share: a folder of its own, and the program run in it on real files.
#pragma once

#include "core/orrelix.h"
#include "tests/support/run_program.h"
#include "tests/support/temporary_directory.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <stdlib.h>

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

    // Writes a configuration file of Animate Text with one message, as the component does.
    void WriteEffect(const std::string& name, const std::string& title, const std::string& message,
                     const std::string& scriptPath = "") const {
        COrrelix orrelix;
        orrelix.m_Type = "1";
        orrelix.SetTitle(title);
        orrelix.m_AnimateText.m_Messages = {message};
        orrelix.m_AnimateText.m_ScriptPath = scriptPath;
        orrelix.m_pGadget = &orrelix.m_AnimateText;
        ASSERT_TRUE(orrelix.WriteConfigFile(m_Folder.Path(name)));
    }

    std::string Content(const std::string& name) const { return FileContent(m_Folder.File(name)); }
    bool Exists(const std::string& name) const { return std::filesystem::exists(m_Folder.File(name)); }
    static std::string Example(const std::string& name) {
        return std::string(ORRELIX_SOURCE_DIR "/examples/") + name;
    }

    CTemporaryDirectory m_Folder;
};
