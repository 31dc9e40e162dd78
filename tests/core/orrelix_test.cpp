#include "core/orrelix.h"
#include "tests/support/temporary_directory.h"

#include <gtest/gtest.h>

namespace orrelix {

namespace {

std::string FileOfType(const std::string& progId, const std::string& parameters) {
    return "========== Description Part Begin ==========\r\nProgID = " + progId +
           "\r\n========== Description Part End ==========\r\n\r\n"
           "========== Parameter Part Begin ==========\r\n" +
           parameters +
           "========== Parameter Part End ==========\r\n\r\n"
           "========== Resource Part Begin ==========\r\nResource Number = 1\r\nfrom.file=\\x\\=\r\n"
           "========== Resource Part End ==========\r\n\r\n";
}

} // namespace

TEST(Orrelix, IsNewWithNothingSelected) {
    COrrelix orrelix;
    EXPECT_EQ(orrelix.GetHTMLBody(0, 0), "Not Select DHTML Script\r\n");
    EXPECT_EQ(orrelix.GetHTMLSegmentNumber(), 1);
    EXPECT_EQ(orrelix.GetResourceNumber(), 0);
    EXPECT_EQ(orrelix.GetHTMLPosition(0), "cursor");
    EXPECT_EQ(orrelix.GetHTMLPosition(1), "script");
    EXPECT_EQ(orrelix.GetHTMLPosition(-2), "script");
}

TEST(Orrelix, SelectsAGadgetByTheTypeOfAFile) {
    const CTemporaryDirectory directory;
    const struct {
        const char* m_pWhat;
        std::string m_File;
        const char* m_pType;
        bool m_bAnimateText;
    } cases[] = {
        {"ours", FileOfType("VignelServer.Orrelix", "DhtmlType = 1\r\n"), "1", true},
        {"a list, of which the first item counts", FileOfType("VignelServer.Orrelix", "DhtmlType = 1,2\r\n"),
         "1", true},
        {"no type of ours", FileOfType("VignelServer.Orrelix", "DhtmlType = 17\r\n"), "17", false},
        {"no type", FileOfType("VignelServer.Orrelix", ""), "", false},
        {"another component's", FileOfType("VignelServer.Other", "DhtmlType = 1\r\n"), "0", false},
        {"another case", FileOfType("vignelserver.orrelix", "DhtmlType = 1\r\n"), "0", false},
        {"an empty file", "", "0", false},
    };
    for (const auto& [pWhat, bytes, pType, bAnimateText] : cases) {
        COrrelix orrelix;
        EXPECT_TRUE(orrelix.ReadConfigFile(directory.Write("file.cfg", bytes))) << pWhat;
        EXPECT_EQ(orrelix.m_Type, pType) << pWhat;
        EXPECT_EQ(orrelix.m_pGadget == &orrelix.m_AnimateText, bAnimateText) << pWhat;
    }
    COrrelix orrelix;
    EXPECT_FALSE(orrelix.ReadConfigFile(directory.Path("missing.cfg")));
}

TEST(Orrelix, AsksTheGadgetForItsResourcesOnce) {
    const CTemporaryDirectory directory;
    COrrelix orrelix;
    ASSERT_TRUE(orrelix.ReadConfigFile(
        directory.Write("file.cfg", FileOfType("VignelServer.Orrelix",
                                               "DhtmlType = 1\r\nAnimateTextPara = ,,,,,,,,,s/\r\n"))));
    EXPECT_EQ(orrelix.GetResourceName(0), "Animate.js") << "the gadget's list takes the place of the file's";
    EXPECT_EQ(orrelix.GetResourceWebPathByName("Animate.js"), "s/");
    EXPECT_TRUE(orrelix.SetResourceLocalPath("\\elsewhere\\"));
    EXPECT_EQ(orrelix.GetResourceLocalPath(0), "\\elsewhere\\") << "not asked again";
    orrelix.m_bResourcesRegistered = false;
    EXPECT_EQ(orrelix.GetResourceLocalPath(0), GetModuleDirectory() + "\\");
}

TEST(Orrelix, WritesTheFileAnewWithThePreviewForm) {
    const CTemporaryDirectory directory;
    const CString path = directory.Path("page.cfg");
    COrrelix orrelix;
    ASSERT_TRUE(orrelix.ReadConfigFile(
        directory.Write("old.cfg", FileOfType("VignelServer.Orrelix", "DhtmlType = 1\r\nStale = 1\r\n"))));
    orrelix.SetPreviewPath("preview/");
    ASSERT_TRUE(orrelix.WriteConfigFile(path));
    ASSERT_TRUE(orrelix.WriteConfigFileEx(path, 1)) << "a second time adds nothing";
    EXPECT_TRUE(std::filesystem::exists(directory.File("animate.js")));

    CVignelConfig config;
    ASSERT_TRUE(config.ReadFile(path));
    EXPECT_EQ(config.GetParameter("Stale", "gone"), "gone");
    EXPECT_EQ(config.GetParameter("DhtmlType", ""), "1");
    ASSERT_EQ(config.m_Segments.GetSize(), 1);
    EXPECT_EQ(config.m_Segments[0].m_Position, "cursor");
    EXPECT_EQ(config.m_Segments[0].m_Body, orrelix.GetHTMLBody(0, 0));
    EXPECT_GT(config.m_Segments[0].m_Body.Find("src=\"preview/animate.js\""), 0);
    EXPECT_FALSE(orrelix.WriteConfigFile(directory.Path("no\\such.cfg")));
}

} // namespace orrelix
