// Every configuration file of examples/: the text it gives in each mode, and the file written again.
#include "core/orrelix.h"
#include "platform/code_page.h"
#include "tests/support/expected_text.h"
#include "tests/support/temporary_directory.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace orrelix {

namespace fs = std::filesystem;

namespace {

const fs::path kSource = ORRELIX_SOURCE_DIR;

// The examples in a place where they can be written, as the current directory, with the module where they
// have it.
class Example : public testing::TestWithParam<std::string> {
protected:
    Example() : m_OldDirectory(fs::current_path()), m_OldModule(GetModuleDirectory()) {
        fs::copy(kSource / "examples", m_Directory.File("examples"), fs::copy_options::recursive);
        fs::current_path(m_Directory.File(""));
        SetModuleDirectory("\\usr\\lib\\orrelix");
    }
    ~Example() override {
        SetModuleDirectory(m_OldModule);
        fs::current_path(m_OldDirectory);
    }

    CString Path() const { return CString("examples\\") + GetParam() + ".cfg"; }

private:
    CTemporaryDirectory m_Directory;
    fs::path m_OldDirectory;
    CString m_OldModule;
};

} // namespace

TEST_P(Example, GivesItsTextInEveryMode) {
    COrrelix orrelix;
    ASSERT_TRUE(orrelix.ReadConfigFile(Path()));
    std::string text;
    for (short nPosition = static_cast<short>(orrelix.GetHTMLSegmentNumber() - 1); nPosition >= 0;
         --nPosition) {
        for (short nMode = 0; nMode <= 2; ++nMode) {
            const char* modeNames[] = {"preview", "publish", "neither"};
            text += "<!-- " + std::string(orrelix.GetHTMLPosition(nPosition)) + ", " + modeNames[nMode] +
                    " -->\r\n";
            text += orrelix.GetHTMLBody(nPosition, nMode).View();
        }
    }
    EXPECT_TRUE(EqualsExpected(kSource / "tests/expected" / (GetParam() + ".html"), text));
}

TEST_P(Example, WrittenAgainHasTheSameBytes) {
    const std::string before = FileContent("examples/" + GetParam() + ".cfg");
    COrrelix orrelix;
    ASSERT_TRUE(orrelix.ReadConfigFile(Path()));
    ASSERT_TRUE(orrelix.WriteConfigFile(Path()));
    // The one pair of properties that share a bucket changes places with every reading.
    COrrelix again;
    ASSERT_TRUE(again.ReadConfigFile(Path()));
    ASSERT_TRUE(again.WriteConfigFile(Path()));
    EXPECT_EQ(FileContent("examples/" + GetParam() + ".cfg"), before);
}

INSTANTIATE_TEST_SUITE_P(Gadgets, Example, testing::ValuesIn(StemsIn(kSource / "examples", ".cfg")),
                         [](const auto& example) { return example.param; });

} // namespace orrelix
