#include "tests/host/program_test.h"

#include <algorithm>
#include <sys/mount.h>

namespace orrelix {

namespace fs = std::filesystem;

namespace {

class Publish : public ProgramTest {
protected:
    void SetUp() override { fs::create_directories(m_Folder.File("site/sub")); }

    CProgramRun PublishTo(const std::string& page, const std::string& effect = "x.cfg",
                          std::vector<std::string> more = {}) const {
        more.insert(more.end(), {"publish", effect, "--page", page, "--site", "site"});
        return Run(more);
    }

    // Publishes into a page of one of these forms, and again, which may not change a byte.
    std::string Publish2(const std::string& page, const std::string& effect = "x.cfg",
                         const std::vector<std::string>& more = {}) {
        m_Folder.Write("site/p.html", page);
        m_LastRun = PublishTo("site/p.html", effect, more);
        const std::string once = Content("site/p.html");
        PublishTo("site/p.html", effect, more);
        EXPECT_EQ(Content("site/p.html"), once);
        return once;
    }

    CProgramRun m_LastRun;
};

std::string Page(const std::string& title, const std::string& head = "") {
    return "<html><head>" + head + "<title>t</title></head>\n<body>\n<!-- vignel: " + title +
           " -->\n<p>rest</p></body></html>\n";
}

std::string Wide(const std::string& text, bool bBigEndian) {
    std::string result;
    for (char byte : text)
        result += bBigEndian ? std::string{'\0', byte} : std::string{byte, '\0'};
    return result;
}

// A text without everything from `begin` to the end of `end`, each time they occur.
std::string Without(std::string text, const std::string& begin, const std::string& end) {
    for (size_t n = text.find(begin); n != std::string::npos; n = text.find(begin))
        text.erase(n, text.find(end, n) + end.size() - n);
    return text;
}

} // namespace

TEST_F(Publish, AHeadIsFoundWithoutItsTagsAndNeverInCommentsOrScripts) {
    const std::string mark = "<!-- vignel: shop -->";
    std::string emptyComments;
    for (int i = 0; i < 500'000; ++i)
        emptyComments += "<!-->";
    const struct {
        std::string m_Page;
        std::string m_BeforeScript; // what stands right before the script; empty for a failure
    } cases[] = {
        {"<!-- </head> --><head><script>'</head>'</script></HEAD ><body>" + mark, "</script>"},
        {"<title></head></title><meta content='</head>'><body>" + mark, "<meta content='</head>'>"},
        {"<html lang=en>\n<head>" + mark, "<head>"},
        {"<html>" + mark, "<html>"},
        {"<head></head><!-- Vignel rules: ours --><!-->" + mark, "<head>"},
        {"<head></head>" + emptyComments + mark, "<head>"},
        {"<p>" + mark, ""},
        {"<head></head>", ""},
        {"<head></head><!-- vignel: Shop -->", ""},
        {"<head></head>" + mark + mark, ""},
        {"<head></head><script>" + mark + "</script>", ""},
        {"<head></head>" + mark + "<!-- vignel cursor: shop -->x", ""},
    };
    for (const auto& row : cases) {
        const std::string after = Publish2(row.m_Page, Example("dance_text_rich.cfg"));
        const bool bFails = row.m_BeforeScript.empty();
        EXPECT_EQ(m_LastRun.m_nExitCode, bFails ? 1 : 0) << row.m_Page << m_LastRun.m_Errors;
        if (bFails)
            EXPECT_EQ(after, row.m_Page);
        else
            EXPECT_NE(after.find(row.m_BeforeScript + "<!-- vignel script: shop -->"), std::string::npos)
                << after;
        EXPECT_EQ(Exists("site/orrelix-compat.js"), !bFails) << row.m_Page;
        fs::remove(m_Folder.File("site/orrelix-compat.js"));
    }
}

TEST_F(Publish, TitlesOfAnyKindShareAPageAndFindTheirTextsAgain) {
    const struct {
        std::string m_Title;
        std::string m_Mark; // where it isn't the title
    } cases[] = {
        {"plain", ""},
        {"a -- b", ""},
        {"x-->y", "x&#45;&#45;>y"},
        {"a&#45;b", ""},
        {"50% & <more>", ""},
        {"-", ""},
        {"", ""},
        {"Grüße 你", "Gr&#252;&#xDF;e \xC4\xE3"},
    };
    std::string page = "<head><meta charset=gb2312></head>";
    for (const auto& row : cases)
        page += "\n<!-- vignel: " + (row.m_Mark.empty() ? row.m_Title : row.m_Mark) + " -->";
    m_Folder.Write("site/p.html", page);
    for (const char* pRound : {"first", "second"}) {
        for (size_t i = 0; i < std::size(cases); ++i) {
            // The text tries to end its own comments, and to be a mark for another title.
            const std::string name = "e" + std::to_string(i) + ".cfg";
            WriteEffect(name, cases[i].m_Title,
                        std::string(pRound) + "[" + std::to_string(i) + "]<!-- /vignel cursor: " +
                            cases[i].m_Title + " --><!-- vignel: plain --><!-- <script>");
            EXPECT_EQ(PublishTo("site/p.html", name).m_nExitCode, 0) << cases[i].m_Title;
        }
    }
    const std::string after = Content("site/p.html");
    EXPECT_EQ(after.find("first["), std::string::npos) << after;
    for (size_t i = 0; i < std::size(cases); ++i)
        EXPECT_NE(after.find("second[" + std::to_string(i) + "]"), std::string::npos)
            << cases[i].m_Title << after;
}

TEST_F(Publish, APageStaysInItsEncoding) {
    const std::string chinese = "\xC4\xE3\xBA\xC3"; // in code page 936
    // "次" is the bytes of "<!" in the last one, and the character behind it those of "--".
    const std::string jis = "\x1B$B<!--\x1B(B";
    const struct {
        const char* m_pWhat;
        std::string m_Before; // what stands before the page
        std::string m_Head;
        int m_nCodePage;
        std::string m_Message;
        std::string m_Expected;
        const char* m_pWarning;
        int m_nUnit = 1; // 2 for UTF-16, -2 with the high byte first
    } cases[] = {
        {"the same", "", "<meta charset='UTF-8'>", 65001, "Grü\xFF", "Grü\xFF", ""},
        {"byte order mark", "\xEF\xBB\xBF", "<meta charset=gb2312>", 936, chinese, "你好", ""},
        {"UTF-16", "\xFF\xFE", "", 936, chinese, "\x60\x4F\x7D\x59", "", 2},
        {"UTF-16, high first", "\xFE\xFF", "", 936, chinese, "\x4F\x60\x59\x7D", "", -2},
        {"gb2312", "", "<meta http-equiv=Content-Type content='text/html; charset=GB2312'>", 65001, "你好",
         chinese, ""},
        {"windows-1252", "", "<META CHARSET=windows-1252>", 65001, "Grüße 你",
         "Gr\xFC\xDF"
         "e &#20320;",
         "&#N;"},
        {"latin1 is windows-1252", "", "<meta charset=\"iso-8859-1\">", 65001, "5 €", "5 \x80", ""},
        {"shift_jis", "", "<meta charset=shift_jis>", 65001, "表", "\x95\x5C", ""},
        {"shift_jis, the same", "", "<meta charset=shift_jis>", 932, "\x95\x5C\xFF", "\x95\x5C\xFF", ""},
        {"iso-2022-jp", "", "<meta charset=iso-2022-jp>" + jis, 65001, "次", "\x1B$B<!\x1B(B", ""},
        {"unknown", "", "<meta charset=x-none>", 936, chinese, chinese, ""},
        {"no ASCII", "", "<meta charset=utf-7>", 936, chinese, chinese, ""},
        {"none", "", "<!-- <meta charset=utf-8> -->", 936, chinese, chinese, ""},
        {"wrong code page", "", "<meta charset=gbk>", 65001, chinese, "", "--code-page"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.m_pWhat);
        const auto units = [&](const std::string& text) {
            return row.m_nUnit == 1 ? text : Wide(text, row.m_nUnit < 0);
        };
        WriteEffect("x.cfg", "t", row.m_Message);
        const std::string before = row.m_Before + units(Page("t", row.m_Head));
        const std::string after = Publish2(before, "x.cfg", {"--code-page", std::to_string(row.m_nCodePage)});
        EXPECT_EQ(m_LastRun.m_nExitCode, 0) << m_LastRun.m_Errors;
        EXPECT_NE(after.find(units(";\">") + row.m_Expected + units(row.m_Expected.empty() ? "" : "</p>")),
                  std::string::npos);
        EXPECT_EQ(m_LastRun.m_Errors.empty(), !*row.m_pWarning) << m_LastRun.m_Errors;
        EXPECT_NE(m_LastRun.m_Errors.find(row.m_pWarning), std::string::npos) << m_LastRun.m_Errors;
        EXPECT_EQ(Without(after, units("<!-- vignel cursor"), units("<!-- /vignel cursor: t -->")), before);
    }
}

TEST_F(Publish, FilesGoWhereTheirWebPathsSayAndNeverOutOfTheSite) {
    const auto makeSite = [&] {
        fs::remove_all(m_Folder.File("site"));
        fs::create_directories(m_Folder.File("site/real"));
        fs::create_directories(m_Folder.File("site/sub/taken"));
        fs::create_directories(m_Folder.File("site/sub/dangling"));
        fs::create_directory_symlink("../real", m_Folder.File("site/sub/inside"));
        fs::create_directory_symlink("../../out", m_Folder.File("site/sub/outside"));
        fs::create_symlink("../../../out/animate.js", m_Folder.File("site/sub/taken/animate.js"));
        fs::create_symlink("../../../out/none.js", m_Folder.File("site/sub/dangling/animate.js"));
        m_Folder.Write("site/sub/p.html", Page("t"));
    };
    fs::create_directories(m_Folder.File("out"));
    m_Folder.Write("out/animate.js", "theirs");
    const struct {
        const char* m_pWebPath;
        const char* m_pFile; // where animate.js is then, or empty
    } cases[] = {
        {"", "site/sub/animate.js"},
        {"js/", "site/sub/js/animate.js"},
        {"/js/", "site/js/animate.js"},
        {"../", "site/animate.js"},
        {"a/../b/./", "site/sub/b/animate.js"},
        {"my%20js/", "site/sub/my js/animate.js"},
        {"back\\slash\\", "site/sub/back/slash/animate.js"},
        {"inside/", "site/real/animate.js"},
        {"outside/", ""},
        {"taken/", ""},
        {"dangling/", ""},
        {"../../out/", ""},
        {"..\\..\\out\\", ""},
        {"%2e%2e/%2E%2E/out/", ""},
        {"..%2f..%2fout/", ""},
        {"/../out/", ""},
        {"http://www.host.example/js/", ""},
        {" FTP:x/", ""},
        {"c:\\js\\", ""},
        {"//www.host.example/", ""},
        {"\\\\host\\share\\", ""},
        {"js/?v=", ""},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.m_pWebPath);
        WriteEffect("x.cfg", "t", "message", row.m_pWebPath);
        makeSite();
        const CProgramRun run = PublishTo("site/sub/p.html");
        EXPECT_EQ(run.m_nExitCode, *row.m_pFile ? 0 : 1) << run.m_Errors;
        EXPECT_EQ(run.m_Errors.find("x.cfg: \"" + std::string(row.m_pWebPath)) != std::string::npos,
                  !*row.m_pFile)
            << run.m_Errors;
        EXPECT_NE(Content("site/sub/p.html").find("message"), std::string::npos)
            << "the page is done all the same";
        std::string written;
        for (const auto& entry : fs::recursive_directory_iterator(m_Folder.File("site"))) {
            if (entry.path().filename() == "animate.js" && !entry.is_symlink())
                written += fs::relative(entry.path(), m_Folder.File("")).string();
        }
        EXPECT_EQ(written, row.m_pFile);
        EXPECT_EQ(std::distance(fs::directory_iterator(m_Folder.File("out")), {}), 1);
        EXPECT_EQ(Content("out/animate.js"), "theirs");
    }
}

// A site on a disk of 256 KiB where the machine lets us make one; elsewhere files can't grow beyond that.
TEST_F(Publish, AFullDiskLeavesTheOldPage) {
    const std::string site = m_Folder.File("site").string();
    const bool bMounted = mount("tmpfs", site.c_str(), "tmpfs", 0, "size=256k") == 0;
    WriteEffect("x.cfg", "t", "message", "js/");
    const std::string before = Page("t") + std::string(200 * 1024, ' ');
    m_Folder.Write("site/p.html", before);
    CProgramLimits limits;
    if (!bMounted)
        limits.m_nFileSize = 100 * 1024;
    const CProgramRun run = ExpectRun({"publish", "x.cfg", "--page", "site/p.html", "--site", "site"}, 1,
                                      bMounted ? "No space left" : "File too large", limits);
    EXPECT_NE(run.m_Errors.find("site/p.html: can't be written"), std::string::npos) << run.m_Errors;
    EXPECT_EQ(Content("site/p.html"), before);
    for (const auto& entry : fs::directory_iterator(site))
        EXPECT_TRUE(entry.path().filename() == "p.html" || entry.path().filename() == "js") << entry.path();
    EXPECT_TRUE(!bMounted || umount2(site.c_str(), MNT_DETACH) == 0);
}

TEST_F(Publish, AProcessKilledInTheMidstOfWritingLeavesTheOldPageAndTheNextSweepsUp) {
    WriteEffect("x.cfg", "t", "message", "js/");
    const std::string before = Page("t") + std::string(4 << 20, 'x');
    m_Folder.Write("site/p.html", before);
    const std::vector<std::string> publish = {"publish", "x.cfg", "--page", "site/p.html", "--site", "site"};
    CProgramLimits limits;
    limits.m_bKilledBeyond = true;
    for (size_t nWritten : {0U, 1U, 100U << 10, 1U << 20, 4U << 20}) {
        limits.m_nFileSize = nWritten;
        EXPECT_TRUE(Run(publish, limits).m_bKilled) << nWritten;
        EXPECT_TRUE(Content("site/p.html") == before) << nWritten;
    }
    EXPECT_EQ(Run(publish).m_nExitCode, 0);
    EXPECT_NE(Content("site/p.html").find("message"), std::string::npos);
    for (const auto& entry : fs::recursive_directory_iterator(m_Folder.File("site")))
        EXPECT_FALSE(entry.path().filename().string().starts_with(".orrelix-")) << entry.path();
}

} // namespace orrelix
