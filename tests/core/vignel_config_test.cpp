#include "core/vignel_config.h"
#include "platform/paths.h"
#include "tests/support/code_page_in_force.h"
#include "tests/support/temporary_directory.h"

#include <gtest/gtest.h>
#include <random>

namespace orrelix {

namespace {

// A file with the given lines in the four parts.
std::string File(const std::string& description, const std::string& parameters, const std::string& resources,
                 const std::string& html) {
    return "========== Description Part Begin ==========\r\n" + description +
           "========== Description Part End ==========\r\n\r\n"
           "========== Parameter Part Begin ==========\r\n" +
           parameters +
           "========== Parameter Part End ==========\r\n\r\n"
           "========== Resource Part Begin ==========\r\n" +
           resources +
           "========== Resource Part End ==========\r\n\r\n"
           "========== HTML Part Begin ==========\r\n" +
           html + "========== HTML Part End ==========\r\n\r\n";
}

// What a store holds, in one text that tells all of it.
std::string Content(const CVignelConfig& config) {
    std::string content;
    const auto add = [&](std::initializer_list<std::string_view> pieces) {
        for (std::string_view piece : pieces)
            content.append("[").append(piece).append("]");
        content += ' ';
    };
    config.m_DescriptionMap.ForEach([&](const CString& key, const CString& value) {
        add({"D", key, value});
    });
    config.m_ParameterMap.ForEach([&](const CString& key, const CString& value) { add({"P", key, value}); });
    for (const VignelResource& resource : config.m_Resources)
        add({"R", resource.m_Name, resource.m_LocalPath, resource.m_WebPath});
    for (const VignelSegment& segment : config.m_Segments)
        add({"S", segment.m_Position, segment.m_Body});
    return content;
}

class VignelConfig : public testing::Test {
protected:
    // What a new store holds after reading a file of these bytes.
    std::string ContentOf(std::string_view bytes) {
        CVignelConfig config;
        EXPECT_TRUE(config.ReadFile(m_Directory.Write("file.cfg", bytes)));
        return Content(config);
    }

    std::string Written(const CVignelConfig& config) {
        EXPECT_EQ(config.WriteFile(m_Directory.Path("written.cfg")), std::error_code());
        return FileContent(m_Directory.File("written.cfg"));
    }

    CTemporaryDirectory m_Directory;
};

} // namespace

TEST_F(VignelConfig, WritesWhatItHoldsAndReadsItBack) {
    CVignelConfig config;
    config.SetTitle("t1");
    config.SetLastUpdateTime(37622.75);
    config.SetDescription("");
    config.SetParameter("AnimateTextPara", "1,2");
    config.AddResource({"a.js", "\\a=b\\", "scripts/"});
    EXPECT_EQ(config.AddSegment({"script", "<b>\r\n  x \r\n\r\n"}), 0);
    EXPECT_EQ(config.AddSegment({"cursor", ""}), 1);
    const std::string bytes =
        File("Title = t1\r\nLastUpdateTime = 37622.750000000\r\nDescription = \r\n",
             "AnimateTextPara = 1,2\r\n", "Resource Number = 1\r\na.js=\\a=b\\=scripts/\r\n",
             "Segment Number = 2\r\nSegment Position = script\r\n<b>\r\n  x \r\n\r\n"
             "===== Segment End =====\r\nSegment Position = cursor\r\n===== Segment End =====\r\n");
    EXPECT_EQ(Written(config), bytes);
    EXPECT_EQ(ContentOf(bytes), Content(config));
    CVignelConfig again;
    again.ReadFile(m_Directory.Path("written.cfg"));
    EXPECT_EQ(Written(again), bytes);
    EXPECT_EQ(again.GetLastUpdateTime(), 37622.75);
}

TEST_F(VignelConfig, AskingForAPropertyCreatesItAndForAParameterDoesNot) {
    CVignelConfig config;
    EXPECT_EQ(config.GetPreviewPath(), "");
    EXPECT_EQ(config.GetParameter("Key", "default"), "default");
    EXPECT_EQ(Written(config),
              File("PreviewPath = \r\n", "", "Resource Number = 0\r\n", "Segment Number = 0\r\n"));
}

TEST_F(VignelConfig, ReadsOddLinesAsTold) {
    const std::string r0 = "Resource Number = 0\r\n", s0 = "Segment Number = 0\r\n";
    const struct {
        const char* m_pWhat;
        std::string m_Bytes;
        std::string m_Content;
    } cases[] = {
        {"blanks around key and value", File(" \t Title \v=\f  a b \t\r\n", "", r0, s0), "[D][Title][a b] "},
        {"case of a key", File("title = x\r\n", "", r0, s0), "[D][title][x] "},
        {"a line without =", File("Title\r\nTitle = x\r\n", "", r0, s0), "[D][Title][x] "},
        {"two = in a value", File("", "K = a = b=\r\n", r0, s0), "[P][K][a = b=] "},
        {"an empty key", File("", "= v\r\n", r0, s0), "[P][][v] "},
        {"LF alone",
         "========== description part BEGIN ==========\nTitle = x\n========== Description Part End "
         "==========",
         "[D][Title][x] "},
        {"a CR within a line", File("", "K = a\rb\r\n", r0, s0), "[P][K][a\rb] "},
        {"a marker with a blank", "========== Description Part Begin ========== \r\nTitle = x\r\n", ""},
        {"a missing End marker",
         "========== Parameter Part Begin ==========\r\nTitle = x\r\n" + File("Title = y\r\n", "", r0, s0),
         "[D][Title][y] "},
        {"a description without End",
         "========== Description Part Begin ==========\r\nA = 1\r\n========== Parameter Part Begin "
         "==========\r\nB = 2\r\n",
         "[D][][========= Parameter Part Begin ==========] [D][A][1] [D][B][2] "},
        {"resource lines",
         File("", "",
              "resource NUMBER=5\r\n a = b:\\long path \r\nnone\r\n=b\r\na=b=c\r\na= b=c=d =e\r\n==\r\n", s0),
         "[R][a][b:\\long path][] [R][][b][] [R][a][b][c] [R][a][b=c=d][e] [R][][][] "},
        {"a count of 2 more than 65,536",
         File("", "", "Resource Number = 65538\r\na=b=c\r\nd=e=f\r\ng=h=i\r\n", s0),
         "[R][a][b][c] [R][d][e][f] "},
        {"a count of 65,536", File("", "", "Resource Number = 65536\r\na=b=c\r\n", s0), ""},
        {"a count above the lines",
         File("", "", "Resource Number = 2\r\na=b=c\r\n", "Segment Number = 0\r\nq=r\r\n"),
         "[R][a][b][c] [R][][========= Resource Part End =========][] "},
        {"no Resource Number",
         File("", "", "a=b=c\r\n", "Segment Position = cursor\r\nSegment Number = 1\r\n"), ""},
        {"segment words in any case",
         File("", "", r0,
              "x\r\nSEGMENT number=2\r\nfoo = bar\r\nSegment POSITION = script \r\n a\n===== segment END "
              "=====\nx\nSegment Position=cursor\r\nb\r\n===== Segment End =====\r\n"),
         "[S][script][ a\r\n] [S][cursor][b\r\n] "},
    };
    for (const auto& [pWhat, bytes, content] : cases)
        EXPECT_EQ(ContentOf(bytes), content) << pWhat;
}

TEST_F(VignelConfig, ReadsTheTimeFromTheNumberInFrontWhateverTheLocale) {
    for (const auto& [pText, time] : {std::pair(" +15.5x", 15.5),
                                      {"-2,5", -2.0},
                                      {".5", 0.5},
                                      {"1e2", 100.0},
                                      {"0x10", 0.0},
                                      {"inf", 0.0},
                                      {"-nan", 0.0},
                                      {"-", 0.0},
                                      {"", 0.0}}) {
        CVignelConfig config;
        config.m_DescriptionMap["LastUpdateTime"] = pText;
        EXPECT_EQ(config.GetLastUpdateTime(), time) << pText;
    }
}

TEST_F(VignelConfig, KeepsWhatWasReadWhereAFileEnds) {
    const std::string whole =
        File("Title = t\r\n", "K = v\r\n", "Resource Number = 2\r\na=b=c\r\nd=e=f\r\n",
             "Segment Number = 2\r\nSegment Position = script\r\none\r\n===== Segment End =====\r\n"
             "Segment Position = cursor\r\ntwo\r\nthree\r\n===== Segment End =====\r\n");
    const auto upTo = [&](const std::string& last) {
        return whole.substr(0, whole.find(last) + last.size());
    };
    EXPECT_EQ(ContentOf(upTo("Title = t")), "[D][Title][t] ");
    EXPECT_EQ(ContentOf(upTo("a=b=c")), "[D][Title][t] [P][K][v] [R][a][b][c] [R][][][] ");
    EXPECT_EQ(ContentOf(upTo("two")),
              "[D][Title][t] [P][K][v] [R][a][b][c] [R][d][e][f] [S][script][one\r\n] [S][cursor][two\r\n] ");
    // Wherever it is cut, reading ends and what is written from it can be read.
    for (size_t nLength = 0; nLength <= whole.size(); nLength += 7) {
        CVignelConfig config;
        ASSERT_TRUE(
            config.ReadFile(m_Directory.Write("cut.cfg", std::string_view(whole).substr(0, nLength))));
        ASSERT_EQ(ContentOf(Written(config)), Content(config)) << "cut at " << nLength;
    }
}

TEST_F(VignelConfig, SurvivesFilesOfRandomPieces) {
    const std::string pieces[] = {"========== Description Part Begin ==========",
                                  "========== Description Part End ==========",
                                  "========== Parameter Part Begin ==========",
                                  "========== Resource Part Begin ==========",
                                  "Resource Number = 65535",
                                  "Segment Number = -1",
                                  "Segment Position = cursor",
                                  "========== HTML Part Begin ==========",
                                  "===== Segment End =====",
                                  "a=b=c",
                                  "=",
                                  "\r\n",
                                  "\n",
                                  "\r",
                                  std::string(3, '\0'),
                                  "\x95\\",
                                  std::string(300'000, 'x')};
    std::mt19937 random(7);
    for (int nRound = 0; nRound < 200; ++nRound) {
        std::string bytes;
        for (int nPiece = 0; nPiece < 30; ++nPiece)
            bytes += pieces[random() % std::size(pieces)] + (random() % 2 ? "\r\n" : "");
        CVignelConfig config, again;
        ASSERT_TRUE(config.ReadFile(m_Directory.Write("random.cfg", bytes)));
        ASSERT_TRUE(again.ReadFile(m_Directory.Write("again.cfg", Written(config))));
        ASSERT_EQ(again.m_Resources.GetSize(), config.m_Resources.GetSize());
        ASSERT_EQ(again.m_Segments.GetSize(), config.m_Segments.GetSize());
    }
}

TEST_F(VignelConfig, AddsToWhatItHoldsAndKeepsListsThatAFileDoesNotCount) {
    CVignelConfig config;
    config.ReadFile(m_Directory.Write("1.cfg", File("Title = one\r\nA = 1\r\n", "K = v\r\n",
                                                    "Resource Number = 2\r\na=1=\r\nb=2=\r\n",
                                                    "Segment Number = 0\r\n")));
    config.ReadFile(m_Directory.Write(
        "2.cfg", File("Title = two\r\n", "L = w\r\n", "Resource Number = 0\r\n", "Segment Number = 0\r\n")));
    EXPECT_EQ(Content(config), "[D][Title][two] [D][A][1] [P][K][v] [P][L][w] [R][a][1][] [R][b][2][] ");
    config.ReadFile(m_Directory.Write("3.cfg", File("", "", "Resource Number = 1\r\nc=3=\r\n", "")));
    EXPECT_EQ(config.GetResourceCount(), 1);
    EXPECT_FALSE(config.ReadFile(m_Directory.Path("missing.cfg")));
    EXPECT_FALSE(config.ReadFile(m_Directory.Path()));
    EXPECT_EQ(config.GetTitle(), "two");
}

TEST_F(VignelConfig, FindsResourcesByIndexAndByName) {
    CVignelConfig config;
    for (const char* pName : {"a", "A", "a"})
        config.AddResource({pName, ToText(config.GetResourceCount()), "w/"});
    EXPECT_EQ(config.GetResourceName(1), "A");
    EXPECT_EQ(config.GetResourceWebPath(-1), "");
    EXPECT_EQ(config.GetResourceLocalPath(3), "");
    EXPECT_EQ(config.GetResourceLocalPathByName("a"), "0");
    EXPECT_EQ(config.GetResourceWebPathByName("b"), "");
    EXPECT_TRUE(config.SetResourceLocalPath("\\x\\"));
    EXPECT_EQ(config.GetResourceLocalPath(2), "\\x\\");
}

TEST_F(VignelConfig, WritesAsManyRecordsAsItsCountCanSayOrNothing) {
    CVignelConfig config, again;
    config.m_Resources.SetSize(70'000);
    Written(config);
    ASSERT_TRUE(again.ReadFile(m_Directory.Path("written.cfg")));
    EXPECT_EQ(again.m_Resources.GetSize(), 65'535);
    for (const CString& path : {m_Directory.Path("no\\such.cfg"), m_Directory.Path(), CString("\\dev\\full")})
        EXPECT_TRUE(config.WriteFile(path)) << path;
}

TEST(Paths, EndAtTheirLastBackslash) {
    const struct {
        int m_nCodePage;
        const char* m_pPath;
        const char* m_pDirectory;
        const char* m_pName;
    } cases[] = {
        {65001, "\\home\\ann\\page.cfg", "\\home\\ann", "page.cfg"},
        {65001, "page.cfg", "", "page.cfg"},
        {65001, "\\page.cfg", "", "page.cfg"},
        {65001, "c:\\a/b", "c:", "a/b"},
        {65001, "a\\", "a", ""},
        {936, "a\\\x95\\", "a", "\x95\\"},
    };
    for (const auto& [nCodePage, pPath, pDirectory, pName] : cases) {
        const CCodePageInForce page(nCodePage);
        EXPECT_EQ(DirectoryOfPath(pPath), pDirectory) << pPath;
        EXPECT_EQ(FileNameOfPath(pPath), pName) << pPath;
    }
}

} // namespace orrelix
