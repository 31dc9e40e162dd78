#include "tests/host/program_test.h"

#include <set>

namespace orrelix {

namespace fs = std::filesystem;

namespace {

class Preview : public ProgramTest {
protected:
    // The names of the files in a folder.
    std::set<std::string> Names(const std::string& folder) const {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(m_Folder.File(folder)))
            names.insert(entry.path().filename());
        return names;
    }

    // A list of links with one image, by its name beside the configuration file.
    void WriteImageEffect(const std::string& file, const std::string& image) const {
        COrrelix orrelix;
        ASSERT_TRUE(orrelix.ReadConfigFile(HostPath(Example("cool_link_plain.cfg"))));
        orrelix.m_CoolLink.m_Images[0] = m_Folder.Path(image);
        ASSERT_TRUE(orrelix.WriteConfigFileEx(m_Folder.Path(file), 1));
    }
};

} // namespace

TEST_F(Preview, EveryExampleHasAPageWithAllItNeedsBesideIt) {
    fs::copy(Example(""), m_Folder.File("source"));
    const std::set<std::string> sources = Names("source");
    std::vector<std::string> arguments = {"preview", "--out", "out/pages", "--index", "--code-page", "936"};
    for (const std::string& name : sources) {
        if (name.ends_with(".cfg"))
            arguments.push_back("source/" + name);
    }
    ExpectRun(arguments, 0);
    EXPECT_EQ(Names("source"), sources);

    const std::set<std::string> names = Names("out/pages");
    const std::string index = Content("out/pages/index.html");
    size_t nReferences = 0;
    for (const std::string& source : sources) {
        if (!source.ends_with(".cfg"))
            continue;
        const std::string page = source.substr(0, source.size() - 4) + ".html";
        SCOPED_TRACE(page);
        ASSERT_TRUE(names.contains(page));
        EXPECT_NE(index.find("<iframe src=\"" + page + "#effect\""), std::string::npos);
        const std::string text = Content("out/pages/" + page);
        EXPECT_TRUE(text.starts_with("<!DOCTYPE html>\n"));
        EXPECT_NE(text.find("<meta charset=\"gbk\">"), std::string::npos);
        EXPECT_NE(text.find("src=\""), std::string::npos) << "at least one script";
        for (size_t n = text.find(" src="); n != std::string::npos; n = text.find(" src=", n + 1)) {
            const std::string reference = text.substr(n + 6, text.find(text[n + 5], n + 6) - n - 6);
            EXPECT_TRUE(names.contains(reference)) << reference;
            ++nReferences;
        }
        // A script segment stands in the head.
        EXPECT_LT(text.find(".js\""), text.find(page.starts_with("animate") ? "</html>" : "</head>"));
    }
    EXPECT_GT(nReferences, 20U);
    EXPECT_TRUE(names.contains("Calander2.js") && names.contains("calander2.js"));
}

TEST_F(Preview, APageInACodePageThatBrowsersDontKnowIsInUtf8) {
    WriteEffect("x.cfg", "x",
                "Gr\x81\xE1"
                "e");
    ExpectRun({"preview", "x.cfg", "--out", "out", "--code-page", "850"}, 0);
    EXPECT_NE(Content("out/x.html").find("<meta charset=\"utf-8\">"), std::string::npos);
    EXPECT_NE(Content("out/x.html").find("Grüße"), std::string::npos);
}

TEST_F(Preview, AFolderInAnyScriptIsFoundWhateverTheCodePage) {
    // The last byte of the folder's name and a backslash behind it would be one character of code page 936.
    fs::create_directories(m_Folder.File("中"));
    WriteEffect("中/x.cfg", "x", "text");
    for (const char* pCodePage : {"65001", "936", "932", "1252"}) {
        ExpectRun({"preview", "中/x.cfg", "--out", "户", "--code-page", pCodePage}, 0);
        EXPECT_TRUE(Exists("户/animate.js") && Exists("户/Animate.js"));
        fs::remove_all(m_Folder.File("户"));
    }
}

TEST_F(Preview, ClashesAndFilesWithoutAPageAreReportedAndTheRestIsDone) {
    for (const char* pFolder : {"a", "b", "c"})
        fs::create_directories(m_Folder.File(pFolder));
    m_Folder.Write("a/photo.gif", "one");
    m_Folder.Write("b/photo.gif", "other");
    m_Folder.Write("c/photo.gif", "one");
    WriteImageEffect("a/a.cfg", "a/photo.gif");
    WriteImageEffect("b/b.cfg", "b/photo.gif");
    WriteImageEffect("c/c.cfg", "c/photo.gif");
    WriteEffect("c/a.cfg", "x", "text");
    WriteEffect("c/index.cfg", "x", "text");
    m_Folder.Write("c/bad.cfg", "nothing");

    ExpectRun({"preview", "a/a.cfg", "c/c.cfg", "--out", "out"}, 0); // the same image twice is no clash
    const CProgramRun run = ExpectRun({"preview", "a/a.cfg", "b/b.cfg", "c/a.cfg", "c/index.cfg", "c/bad.cfg",
                                       "none/x.cfg", "c/c.cfg", "--out", "all", "--index"},
                                      1, "b/photo.gif");
    for (const char* pMessage :
         {"c/a.cfg: would have its page where that of a/a.cfg is",
          "c/index.cfg: would have its page where the index belongs", "c/bad.cfg: is no configuration file",
          "none/x.cfg: can't be read: No such file"})
        EXPECT_NE(run.m_Errors.find(pMessage), std::string::npos) << pMessage << "\n" << run.m_Errors;
    EXPECT_EQ(Content("all/photo.gif"), "one");
    EXPECT_TRUE(Exists("all/c.html"));

    // An image that is gone is named.
    fs::remove(m_Folder.File("a/photo.gif"));
    ExpectRun({"preview", "a/a.cfg", "--out", "lost"}, 1, "\"photo.gif\", which is missing");
    EXPECT_TRUE(Exists("lost/a.html"));

    ExpectRun({"preview", "a/a.cfg", "--out", "a"}, 1, "a/a.cfg");
    EXPECT_FALSE(Exists("a/a.html"));
}

} // namespace orrelix
