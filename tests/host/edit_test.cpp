#include "resources/effects.h"
#include "tests/host/program_test.h"

#include <sstream>

namespace orrelix {

namespace {

class Edit : public ProgramTest {
protected:
    // The value of a parameter in a file that was written.
    CString Parameter(const std::string& file, const char* pKey) const {
        CVignelConfig config;
        EXPECT_TRUE(config.ReadFile(m_Folder.Path(file)));
        return config.GetParameter(pKey, "(none)");
    }
};

} // namespace

TEST_F(Edit, MakesAndChangesAnEffectByOptions) {
    const CProgramRun run = ExpectRun({"new", "2nd news.cfg", "--effect", "slide text", "--set", "m_Speed=50",
                                       "--set", "m_Text=a=b, c", "--set", "m_TitleFontFamily=Arial,Verdana"},
                                      0);
    EXPECT_EQ(run.m_Output, "2nd news.cfg\n");
    EXPECT_EQ(Parameter("2nd news.cfg", "DhtmlType"), "2");
    EXPECT_EQ(Parameter("2nd news.cfg", "TextShowText"), "a=b, c");
    EXPECT_EQ(Parameter("2nd news.cfg", "TextShowFontPara"), "Arial~@^`Verdana,,,,,,,");
    EXPECT_NE(Content("2nd news.cfg").find("\r\nTitle = v2nd_news\r\n"), std::string::npos)
        << "a title has to stand in the names of scripts";

    ExpectRun({"edit", "2nd news.cfg", "--set", "m_Speed=70"}, 0);
    EXPECT_EQ(Parameter("2nd news.cfg", "TextShowPara"), "70,0,47,716,122,551,134,188,,");
    EXPECT_EQ(Parameter("2nd news.cfg", "TextShowText"), "a=b, c");

    ExpectRun({"new", "2nd news.cfg", "--effect", "Slide Text"}, 1, "2nd news.cfg"); // isn't made anew
    EXPECT_EQ(Parameter("2nd news.cfg", "TextShowText"), "a=b, c");
}

TEST_F(Edit, SetsListsItemByItem) {
    ExpectRun({"new", "links.cfg", "--title", "links", "--effect", "Link Select Table", "--set",
               "m_Texts=One, two", "--set", "m_Texts=Three", "--set", "m_Links=http://a.example/", "--set",
               "m_Width=10"},
              0);
    EXPECT_EQ(Parameter("links.cfg", "CoolLinkTextStr"), "One~@^` two,Three,");
    EXPECT_EQ(Parameter("links.cfg", "CoolLinkLinkStr"), "http://a.example/,http://www.vellumark.example/,");
    EXPECT_EQ(Parameter("links.cfg", "CoolLinkImgWidth"), "10,,");
    EXPECT_TRUE(Exists("select.js"));
    ExpectRun({"edit", "links.cfg", "--set", "m_Links=http://b.example/"}, 0);
    EXPECT_EQ(Parameter("links.cfg", "CoolLinkTextStr"), "One~@^` two,Three,")
        << "one link takes no texts away";

    const CProgramRun fields = Run({"edit", "links.cfg", "--list-fields"});
    EXPECT_NE(fields.m_Output.find("m_Texts                  + One, two\n"), std::string::npos)
        << fields.m_Output;
    EXPECT_NE(fields.m_Output.find("m_SelectWidth            = 200\n"), std::string::npos) << fields.m_Output;
}

TEST_F(Edit, EveryEffectListsItsFieldsAndTakesThemBack) {
    for (const CEffect& effect : kEffects) {
        const CProgramRun fields =
            ExpectRun({"new", "x.cfg", "--effect", effect.m_pName, "--list-fields"}, 0);
        EXPECT_FALSE(Exists("x.cfg"));
        std::vector<std::string> arguments = {"new", std::string(effect.m_pName) + ".cfg", "--effect",
                                              effect.m_pName};
        std::istringstream lines(fields.m_Output);
        for (std::string line; std::getline(lines, line);) {
            arguments.insert(arguments.end(), {"--set", line.substr(0, line.find(' ')) + "=" +
                                                            line.substr(line.find_first_of("=+") + 2)});
        }
        ExpectRun(arguments, 0);
        EXPECT_EQ(Run({"edit", arguments[1], "--list-fields"}).m_Output, fields.m_Output) << effect.m_pName;
    }
}

TEST_F(Edit, AsksBeforeItOverwritesAnImage) {
    m_Folder.Write("photo.gif", "old");
    std::filesystem::create_directory(m_Folder.File("from"));
    m_Folder.Write("from/photo.gif", "new");
    std::vector<std::string> arguments = {"new", "tip.cfg", "--effect", "ToolTip", "--set"};
    arguments.push_back("m_Image=" + std::string(m_Folder.Path("from\\photo.gif").View()));
    ExpectRun(arguments, 1, "--overwrite");
    EXPECT_EQ(Content("photo.gif"), "old");
    EXPECT_FALSE(Exists("tip.cfg"));

    arguments.push_back("--overwrite");
    ExpectRun(arguments, 0);
    EXPECT_EQ(Content("photo.gif"), "new");
    EXPECT_TRUE(Exists("tip.cfg"));
}

TEST_F(Edit, AnImageIsNamedAsTheSystemDoesAndNeverForgotten) {
    std::filesystem::create_directory(m_Folder.File("page"));
    m_Folder.Write("photo.gif", "photo");
    ExpectRun({"new", "page/tip.cfg", "--effect", "ToolTip", "--set", "m_Image=photo.gif"}, 0);
    EXPECT_EQ(Content("page/photo.gif"), "photo");
    const std::string before = Content("page/tip.cfg");
    std::filesystem::remove(m_Folder.File("page/photo.gif"));
    ExpectRun({"edit", "page/tip.cfg", "--set", "m_DelayTime=1"}, 1, "photo.gif, which is missing");
    EXPECT_EQ(Content("page/tip.cfg"), before);
    ExpectRun({"edit", "page/tip.cfg", "--set", "m_Image="}, 0);
}

TEST_F(Edit, ACopyThatFailsIsNamed) {
    std::filesystem::create_directory(m_Folder.File("Calander2.js"));
    ExpectRun({"new", "x.cfg", "--effect", "Calender"}, 1, "Calander2.js: the page needs it");
}

TEST_F(Edit, TextsAreThoseOfTheCodePage) {
    ExpectRun({"--code-page", "936", "new", "x.cfg", "--effect", "Slide Text", "--set", "m_Text=你好"}, 0);
    EXPECT_EQ(Parameter("x.cfg", "TextShowText"), "\xC4\xE3\xBA\xC3");
    const CProgramRun fields = ExpectRun({"--code-page", "936", "edit", "x.cfg", "--list-fields"}, 0);
    EXPECT_NE(fields.m_Output.find("= 你好\n"), std::string::npos) << fields.m_Output;
}

TEST_F(Edit, SaysWhatIsWrongAndWhatToDo) {
    m_Folder.Write("damaged.cfg", "nothing of ours");
    const struct {
        std::vector<std::string> m_Arguments;
        int m_nExitCode;
        const char* m_pMessage;
    } cases[] = {
        {{"new", "x.cfg"}, 1, "there is no screen to show dialogs on"},
        {{"new", "x.cfg"}, 1, "--effect: \"Animate Text\""},
        {{"edit", Example("text_show_plain.cfg")}, 1, "--list-fields"},
        {{"new", "x.cfg", "--effect", "Marquee"}, 2, "is no effect"},
        {{"new", "x.cfg", "--effect", "Slide Text", "--set", "m_Sped=1"}, 2, "no field m_Sped"},
        {{"new", "x.cfg", "--effect", "Slide Text", "--set", "m_Speed"}, 2, "NAME=VALUE"},
        {{"new", "x.cfg", "--effect", "Slide Text", "--set", "m_Speed=1", "--set", "m_Speed=2"},
         2,
         "set it once"},
        {{"new", "x.cfg", "--set", "m_Speed=1"}, 2, "name one with --effect"},
        {{"new", "no/such/x.cfg", "--effect", "Slide Text"}, 1, "can't be written"},
        {{"edit", "damaged.cfg", "--set", "m_Speed=1"}, 1, "damaged.cfg"},
        {{"edit", "missing.cfg", "--set", "m_Speed=1"}, 1, "missing.cfg"},
        {{"new"}, 2, "FILE"},
        {{"edit", ""}, 2, "FILE"},
        {{"new", "x.cfg", "--effect", "Slide Text", "--title", "a\nb"}, 2, "--title"},
        {{"--code-page", "1252", "new", "x.cfg", "--effect", "Slide Text", "--set", "m_Text=你"}, 2, "1252"},
        {{"new", "x.cfg", "--effect", "ToolTip", "--set", "m_Image=/gone.gif"},
         1,
         "/gone.gif, which is missing"},
    };
    for (const auto& [arguments, nExitCode, pMessage] : cases) {
        ExpectRun(arguments, nExitCode, pMessage);
        EXPECT_FALSE(Exists("x.cfg"));
    }
}

} // namespace orrelix
