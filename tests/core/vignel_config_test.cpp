#include "core/vignel_config.h"
#include "platform/paths.h"
#include "tests/support/code_page_in_force.h"
#include "tests/support/failing_files.h"
#include "tests/support/session.h"
#include "tests/support/temporary_directory.h"

#include <gtest/gtest.h>
#include <tuple>

namespace orrelix {

namespace {

// A file's text from a short form, in which "|" ends a line and the lines that begin and end a part or end a segment are
// "<D" and "D>" (description), "<P" and "P>" (parameters), "<R" and "R>" (resources), "<H" and "H>" (HTML) and "S>".
std::string FileOf(CString text) {
    const char* const words[][2] = {{"\\t", "\t"},
                                    {"\\v", "\v"},
                                    {"\\f", "\f"},
                                    {"\\r", "\r"},
                                    {"\\n", "\n"},
                                    {"|", "\r\n"},
                                    {"S>", "===== Segment End ====="}};
    for (const auto& [pShort, pLong] : words)
        text.Replace(pShort, pLong);
    for (const CString part : {"Description", "Parameter", "Resource", "HTML"}) {
        text.Replace("<" + part.Left(1), "========== " + part + " Part Begin ==========");
        text.Replace(part.Left(1) + ">", "========== " + part + " Part End ==========");
    }
    return std::string(text.View());
}

// What a store holds, in one text that tells all of it.
std::string Content(const CVignelConfig& config) {
    CString content;
    const auto add = [&](const char* pWhat, std::initializer_list<CString> texts) {
        content += pWhat;
        for (const CString& text : texts)
            content += " [" + text + "]";
        content += '\n';
    };
    config.m_DescriptionMap.ForEach([&](CString key, CString value) { add("D", {key, value}); });
    config.m_ParameterMap.ForEach([&](CString key, CString value) { add("P", {key, value}); });
    for (const auto& [name, localPath, webPath] : config.m_Resources)
        add("R", {name, localPath, webPath});
    for (const auto& [position, body] : config.m_Segments)
        add("S", {position, body});
    content.Replace("\r\n", "|");
    content.Replace("\r", "\\r");
    return std::string(content.View());
}

class VignelConfig : public testing::Test {
protected:
    // What a new store holds after reading these files, one after the other.
    std::string ContentOf(std::initializer_list<std::string_view> files) {
        CVignelConfig config;
        for (std::string_view bytes : files)
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
    const std::string bytes = FileOf("<D|Title = t1|LastUpdateTime = 37622.750000000|Description = |D>||"
                                     "<P|AnimateTextPara = 1,2|P>||"
                                     "<R|Resource Number = 1|a.js=\\a=b\\=scripts/|R>||"
                                     "<H|Segment Number = 2|Segment Position = script|<b>|  x ||S>|"
                                     "Segment Position = cursor|S>|H>||");
    EXPECT_EQ(Written(config), bytes);
    EXPECT_EQ(ContentOf({bytes}), Content(config));
    CVignelConfig again;
    again.ReadFile(m_Directory.Path("written.cfg"));
    EXPECT_EQ(Written(again), bytes);
    EXPECT_EQ(again.GetLastUpdateTime(), 37622.75);
}

TEST_F(VignelConfig, WritesLineBreaksOfOneLineTextsAsTags) {
    CVignelConfig config;
    config.SetTitle("a\rb\nc\r\n\r\n");
    config.SetParameter("Key", "\n1\r\n2\n\r");
    config.AddResource({"a\nb", "\\c\r\\", "d\r\ne/"});
    const std::string bytes =
        FileOf("<D|Title = a<br>b<br>c<br><br>|D>||<P|Key = <br>1<br>2<br><br>|P>||"
               "<R|Resource Number = 1|a<br>b=\\c<br>\\=d<br>e/|R>||<H|Segment Number = 0|H>||");
    EXPECT_EQ(Written(config), bytes);
    EXPECT_EQ(config.GetTitle(), "a\rb\nc\r\n\r\n") << "what it holds stays";
}

TEST_F(VignelConfig, AskingForAPropertyCreatesItAndForAParameterDoesNot) {
    CVignelConfig config;
    EXPECT_EQ(config.GetPreviewPath(), "");
    EXPECT_EQ(config.GetParameter("Key", "default"), "default");
    EXPECT_EQ(Written(config), FileOf("<D|PreviewPath = |D>||<P|P>||<R|Resource Number = 0|R>||"
                                      "<H|Segment Number = 0|H>||"));
}

TEST_F(VignelConfig, ReadsFilesAsTheSessionSays) {
    EXPECT_TRUE(
        GoesAsItStands(ORRELIX_SOURCE_DIR "/tests/core/vignel_config.txt", [this](const std::string& files) {
            const std::string both = files + "&&";
            const size_t nAnd = both.find("&&");
            return ContentOf({FileOf(both.substr(0, nAnd)), FileOf(both.substr(nAnd + 2))});
        }));
}

TEST_F(VignelConfig, ReadsTheTimeFromTheNumberInFrontWhateverTheLocale) {
    const std::pair<const char*, double> cases[] = {
        {" +15.5x", 15.5}, {"-2,5", -2.0}, {".5", 0.5},   {"1e2", 100.0}, {"0x10", 0.0},
        {"inf", 0.0},      {"+-5", 0.0},   {"-nan", 0.0}, {"-", 0.0},     {"", 0.0}};
    for (const auto& [pText, time] : cases) {
        CVignelConfig config;
        config.m_DescriptionMap.SetAt("LastUpdateTime", pText);
        EXPECT_EQ(config.GetLastUpdateTime(), time) << pText;
    }
}

TEST_F(VignelConfig, GivesAFileThatReadsTheSameWhereverTheOneBeforeWasCut) {
    const std::string whole = FileOf("<D|Title = t|D>||<P|K = v|P>||<R|Resource Number = 2|a=b=c|d=e=f|R>||"
                                     "<H|Segment Number = 2|Segment Position = script|one|S>|"
                                     "Segment Position = cursor|two|three|S>|H>||");
    for (size_t nLength = 0; nLength <= whole.size(); nLength += 7) {
        CVignelConfig config;
        ASSERT_TRUE(
            config.ReadFile(m_Directory.Write("cut.cfg", std::string_view(whole).substr(0, nLength))));
        ASSERT_EQ(ContentOf({Written(config)}), Content(config)) << "cut at " << nLength;
    }
}

TEST_F(VignelConfig, StaysAsItWasWhereTheDiskFailsInTheMidstOfAFile) {
    const CString path =
        m_Directory.Write("long.cfg", FileOf("<D|Title = new|D>||<P|K = v|") + std::string(600'000, 'x'));
    CVignelConfig config;
    config.SetTitle("old");
    bool bFailed = true;
    for (int nCall = 1; bFailed; ++nCall) {
        const CFailingFiles files(nCall, std::make_error_code(std::errc::io_error));
        EXPECT_EQ(config.GetTitle(), "old") << "before " << nCall;
        const bool bRead = config.ReadFile(path);
        bFailed = !files.GetFailed().empty();
        EXPECT_EQ(bRead, !bFailed) << files.GetFailed();
    }
    EXPECT_EQ(config.GetTitle(), "new");
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
    for (const CString& path : {m_Directory.Path("missing.cfg"), m_Directory.Path()})
        EXPECT_FALSE(again.ReadFile(path)) << path;
    EXPECT_EQ(again.m_Resources.GetSize(), 65'535);
}

TEST(Paths, EndAtTheirLastBackslash) {
    const std::tuple<int, const char*, const char*, const char*> cases[] = {
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
