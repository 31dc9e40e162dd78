#include "gadgets/animate_text.h"
#include "tests/support/temporary_directory.h"

#include <filesystem>
#include <gtest/gtest.h>

TEST(AnimateText, StartsWithItsDefaults) {
    CVignelConfig config;
    CAnimateText animate;
    animate.WriteParameters(config);
    EXPECT_EQ(config.GetParameter("AnimateTextPara", ""),
              "1,FFFFFF,0000FF,130,200,200,269,10,50,,4,FFFFFF,110");
    EXPECT_EQ(config.GetParameter("AnimateTextFontPara", ""), ",,,");
    EXPECT_EQ(config.GetParameter("AnimateTextStr", ""),
              "Animate Text,Support IE 4,Hope you enjoy this script at your page,"
              "<a href=\"http://www.brindlefen.example/\">Visit our Home Page</a>,");
}

TEST(AnimateText, ReadsAMissingParameterAsNoMessages) {
    CVignelConfig config;
    CAnimateText animate;
    EXPECT_TRUE(animate.ReadParameters(config, ""));
    EXPECT_TRUE(animate.m_Messages.IsEmpty());
    EXPECT_EQ(animate.m_Width, "269");
    config.SetPreviewPath("p/");
    const CString text = animate.GetHTMLBody(config, kPreview, 0);
    EXPECT_EQ(text.Find("<script type=\"text/javascript\" src=\"p/animate.js\"></script>\r\n<div "), 0)
        << "the page still loads the file: " << text;
}

TEST(AnimateText, AsksForThePreviewPathInThePreviewAlone) {
    for (const short mode : {short(1), short(2), short(-1)}) {
        CVignelConfig config;
        CAnimateText().GetHTMLBody(config, mode, 0);
        EXPECT_TRUE(config.m_DescriptionMap.IsEmpty()) << mode;
    }
}

TEST(AnimateText, NamesItsScriptInTwoSpellings) {
    const CTemporaryDirectory directory;
    CVignelConfig config;
    CAnimateText animate;
    animate.m_ScriptPath = "js/";
    config.AddResource({"stale", "", ""});
    EXPECT_EQ(animate.RegisterResources(config), 1);
    EXPECT_EQ(config.GetResourceName(0), "Animate.js");
    EXPECT_EQ(config.GetResourceLocalPath(0), GetModuleDirectory() + "\\");
    EXPECT_EQ(config.GetResourceWebPath(0), "js/");
    animate.CopyResources(directory.Path() + "\\", 0);
    EXPECT_EQ(FileContent(directory.File("animate.js")),
              FileContent(std::filesystem::path(ORRELIX_SOURCE_DIR "/scripts/orrelix-compat.js")) +
                  FileContent(std::filesystem::path(ORRELIX_SOURCE_DIR "/scripts/animate.js")));
}
