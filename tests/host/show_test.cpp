#include "tests/host/program_test.h"

#include <nlohmann/json.hpp>

namespace orrelix {

using Json = nlohmann::ordered_json;

namespace {

class Show : public ProgramTest {};

// The lines of a file's part that have a "=", cut there.
std::vector<std::pair<std::string, std::string>> KeyLines(const std::string& content,
                                                          const std::string& part) {
    std::vector<std::pair<std::string, std::string>> lines;
    std::istringstream text(content.substr(content.find(part + " Begin"),
                                           content.find(part + " End") - content.find(part + " Begin")));
    for (std::string line; std::getline(text, line);) {
        const size_t nEquals = line.find(" = ");
        if (nEquals != std::string::npos)
            lines.emplace_back(line.substr(0, nEquals), line.substr(nEquals + 3, line.size() - nEquals - 4));
    }
    return lines;
}

std::vector<std::pair<std::string, std::string>> Members(const Json& object) {
    std::vector<std::pair<std::string, std::string>> members;
    for (const auto& [key, value] : object.items())
        members.emplace_back(key, value.get<std::string>());
    return members;
}

} // namespace

TEST_F(Show, JsonHasEverythingOfTheFileInItsOrder) {
    for (const auto& entry : std::filesystem::directory_iterator(Example(""))) {
        if (entry.path().extension() != ".cfg" || entry.path().stem() == "calander_rich")
            continue;
        SCOPED_TRACE(entry.path());
        const CProgramRun run = ExpectRun({"show", entry.path(), "--json"}, 0);
        const Json json = Json::parse(run.m_Output);
        const std::string content = FileContent(entry.path());
        EXPECT_EQ(Members(json["description"]), KeyLines(content, "Description Part"));
        EXPECT_EQ(Members(json["parameters"]), KeyLines(content, "Parameter Part"));
        EXPECT_EQ(json["damage"], Json::array());
        for (const Json& resource : json["resources"])
            EXPECT_NE(content.find("\r\n" + resource["name"].get<std::string>() + "=" +
                                   resource["localPath"].get<std::string>() + "=" +
                                   resource["webPath"].get<std::string>() + "\r\n"),
                      std::string::npos);
        std::string htmlPart;
        for (const Json& segment : json["segments"])
            htmlPart += "Segment Position = " + segment["position"].get<std::string>() + "\r\n" +
                        segment["body"].get<std::string>() + "===== Segment End =====\r\n";
        EXPECT_NE(content.find("\r\n" + htmlPart + "========== HTML Part End"), std::string::npos);
    }
}

TEST_F(Show, APersonReadsAlignedKeysAndIndentedBodies) {
    const CProgramRun run = ExpectRun({"show", Example("animate_text_rich.cfg")}, 0);
    EXPECT_TRUE(run.m_Output.starts_with("Animate Text\n")) << run.m_Output;
    for (const char* pLine :
         {"\n  Title           headlines\n", "\n  LastUpdateTime  37622.750000000 (2003-01-01 18:00)\n",
          "\n  DhtmlType            1\n", "\n  Animate.js  from \\usr\\lib\\orrelix\\  to scripts/\n",
          "\n  cursor\n      <script language"})
        EXPECT_NE(run.m_Output.find(pLine), std::string::npos) << pLine << run.m_Output;
}

TEST_F(Show, WhatIsNoWholeFileOfOursIsSaidPlainly) {
    const std::string whole = FileContent(Example("animate_text_rich.cfg"));
    const auto upTo = [&](const char* pText) { return whole.substr(0, whole.find(pText)); };
    const auto with = [&](const std::string& from, const std::string& to) {
        std::string text = whole;
        return text.replace(text.find(from), from.size(), to);
    };
    const struct {
        const char* m_pWhat;
        std::string m_Content;
        const char* m_pMessage;
        int m_nExitCode = 1;
    } cases[] = {
        {"empty", "", "is no configuration file"},
        {"binary", std::string("\x89PNG\r\n\0\0\x1A", 9), "is no configuration file"},
        {"cut in the parameters", upTo("DhtmlType"),
         "\"========== Parameter Part End ==========\" is missing"},
        {"cut in a segment", upTo("</div>"), "\"========== HTML Part End ==========\" is missing"},
        {"segment without end", with("===== Segment End =====", "====="),
         "promises 1 segment, and 0 can be found"},
        {"too many resources promised", with("Resource Number = 1", "Resource Number = 9"),
         "promises 9 resources"},
        {"another's", with("VignelServer.Orrelix", "VignelServer.Other"),
         "another component, VignelServer.Other"},
        {"no effect known", with("DhtmlType = 1", "DhtmlType = 12"), "no effect that is known"},
        {"nothing chosen", with("DhtmlType = 1", "DhtmlType = 0"), "no effect has been chosen", 0},
        {"a line in a body that looks like the end",
         with("</div>", "========== HTML Part End ==========\r\n</div>"), "", 0},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.m_pWhat);
        m_Folder.Write("x.cfg", row.m_Content);
        ExpectRun({"show", "x.cfg"}, row.m_nExitCode, row.m_pMessage);
        EXPECT_TRUE(
            Json::accept(ExpectRun({"show", "x.cfg", "--json"}, row.m_nExitCode, row.m_pMessage).m_Output));
    }
    ExpectRun({"show", "absent.cfg"}, 1, "absent.cfg: can't be read: No such file");
}

TEST_F(Show, TextsAreReadInTheGivenCodePage) {
    const std::string file = Example("calander_rich.cfg");
    const CProgramRun run = ExpectRun({"show", file, "--json", "--code-page", "936"}, 0);
    EXPECT_EQ(Json::parse(run.m_Output)["parameters"]["CalanderText"], "欢迎光临!");
    EXPECT_NE(ExpectRun({"show", file, "--json"}, 0, "--code-page").m_Output.find("\uFFFD"),
              std::string::npos);
}

TEST_F(Show, ControlCharactersStayOffTheTerminal) {
    WriteEffect("x.cfg", "a\x1B[2Jb", "text");
    const CProgramRun run = Run({"show", "x.cfg"});
    EXPECT_NE(run.m_Output.find("a\\x1B[2Jb"), std::string::npos) << run.m_Output;
    EXPECT_EQ(run.m_Output.find('\x1B'), std::string::npos);
}

TEST_F(Show, ExitCodesTellWrongUsageFromFailure) {
    WriteEffect("x.cfg", "x", "text");
    const struct {
        std::vector<std::string> m_Arguments;
        int m_nExitCode;
        const char* m_pMessage;
    } cases[] = {
        {{}, 2, "subcommand is required"},
        {{"show"}, 2, "FILE"},
        {{"sow", "x.cfg"}, 2, "subcommand is required"},
        {{"--help"}, 0, ""},
        {{"--version"}, 0, ""},
        {{"publish", "x.cfg"}, 2, "--page"},
        {{"show", "x.cfg", "--code-page", "12"}, 2, "12 is no code page"},
        {{"show", "x.cfg", "--code-page", "932"}, 0, ""},
        {{"show", "x.cfg", "--jsn"}, 2, "--jsn"},
        {{"show", "."}, 1, "can't be read"},
    };
    for (const auto& [arguments, nExitCode, pMessage] : cases)
        ExpectRun(arguments, nExitCode, pMessage);
}

} // namespace orrelix
