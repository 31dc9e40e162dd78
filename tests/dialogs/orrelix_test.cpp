// COrrelix, before a person: what a host reads, runs and writes.
#include "core/orrelix.h"
#include "tests/support/person_test.h"
#include "tests/support/scripted_person.h"

#include <tuple>

namespace orrelix {

namespace {

const CString kSelect = "Select a DHTML Scripts";

std::string FileOf(const std::string& progId, const std::string& parameters) {
    return "========== Description Part Begin ==========\r\nProgID = " + progId +
           "\r\n========== Description Part End ==========\r\n\r\n"
           "========== Parameter Part Begin ==========\r\n" +
           parameters +
           "\r\n========== Parameter Part End ==========\r\n\r\n"
           "========== Resource Part Begin ==========\r\nResource Number = 1\r\nfrom.file=\\x\\=\r\n"
           "========== Resource Part End ==========\r\n\r\n";
}

class Orrelix : public PersonTest {
protected:
    bool Read(const std::string& bytes) {
        return m_Orrelix.ReadConfigFile(m_Directory.Write("a.cfg", bytes));
    }
    CString ScriptPlace() { return m_Orrelix.GetResourceLocalPath(0); }

    const CTemporaryDirectory m_Directory;
    const CString m_Module = GetModuleDirectory() + "\\";
    COrrelix m_Orrelix;
};

} // namespace

TEST_F(Orrelix, IsNewWithNothingSelected) {
    EXPECT_EQ(m_Orrelix.GetHTMLBody(0, 0), "Not Select DHTML Script\r\n");
    EXPECT_EQ(m_Orrelix.GetHTMLSegmentNumber(), 1);
    EXPECT_EQ(m_Orrelix.GetResourceNumber(), 0);
    for (const short nPosition : {short(-2), short(0), short(1)})
        EXPECT_EQ(m_Orrelix.GetHTMLPosition(nPosition), nPosition == 0 ? "cursor" : "script");
}

TEST_F(Orrelix, SelectsAGadgetByTheTypeOfAFile) {
    const std::string ours = "VignelServer.Orrelix";
    const std::tuple<const char*, std::string, const char*> cases[] = {
        {"ours", FileOf(ours, "DhtmlType = 1"), "1"},
        {"a list, of which the first item counts", FileOf(ours, "DhtmlType = 1,2"), "1"},
        {"no type of ours", FileOf(ours, "DhtmlType = 17"), "17"},
        {"no type", FileOf(ours, ""), ""},
        {"another component's", FileOf("VignelServer.Other", "DhtmlType = 1"), "0"},
        {"another case", FileOf("vignelserver.orrelix", "DhtmlType = 1"), "0"},
        {"an empty file", "", "0"},
    };
    for (const auto& [pWhat, bytes, pType] : cases) {
        COrrelix orrelix;
        EXPECT_TRUE(orrelix.ReadConfigFile(m_Directory.Write("file.cfg", bytes))) << pWhat;
        EXPECT_EQ(orrelix.m_Type, pType) << pWhat;
        EXPECT_EQ(orrelix.m_pGadget == &orrelix.m_AnimateText, orrelix.m_Type == "1") << pWhat;
    }
    EXPECT_FALSE(m_Orrelix.ReadConfigFile(m_Directory.Path("missing.cfg")));
}

TEST_F(Orrelix, AsksTheGadgetForItsResourcesOnceAndAgainAfterAnOk) {
    ASSERT_TRUE(Read(FileOf("VignelServer.Orrelix", "DhtmlType = 1\r\nAnimateTextPara = ,,,,,,,,,s/")));
    EXPECT_EQ(m_Orrelix.GetResourceName(0), "Animate.js") << "in place of the file's own list";
    EXPECT_EQ(m_Orrelix.GetResourceWebPathByName("Animate.js"), "s/");
    EXPECT_TRUE(m_Orrelix.SetResourceLocalPath("\\elsewhere\\"));
    for (const bool bOk : {false, true}) {
        m_Person.In("Animate Text").Does(bOk ? "clicks OK" : "clicks Cancel");
        EXPECT_EQ(m_Orrelix.Config(), bOk);
        EXPECT_EQ(ScriptPlace(), bOk ? m_Module : CString("\\elsewhere\\"));
    }
    EXPECT_TRUE(m_Orrelix.SetResourceLocalPath("\\elsewhere\\"));
    m_Orrelix.m_bResourcesRegistered = false;
    EXPECT_EQ(ScriptPlace(), m_Module);
}

TEST_F(Orrelix, WritesTheFileAnewWithThePreviewForm) {
    const CString path = m_Directory.Path("page.cfg");
    ASSERT_TRUE(Read(FileOf("VignelServer.Orrelix", "DhtmlType = 1\r\nStale = 1")));
    m_Orrelix.SetPreviewPath("preview/");
    ASSERT_TRUE(m_Orrelix.WriteConfigFile(path));
    ASSERT_TRUE(m_Orrelix.WriteConfigFileEx(path, 1)) << "a second time adds nothing";
    EXPECT_TRUE(std::filesystem::exists(m_Directory.File("animate.js")));

    CVignelConfig config;
    ASSERT_TRUE(config.ReadFile(path));
    EXPECT_EQ(config.GetParameter("Stale", "gone"), "gone");
    EXPECT_EQ(config.GetParameter("DhtmlType", ""), "1");
    ASSERT_EQ(config.m_Segments.GetSize(), 1);
    EXPECT_EQ(config.m_Segments[0].m_Position, "cursor");
    EXPECT_EQ(config.m_Segments[0].m_Body, m_Orrelix.GetHTMLBody(0, 0));
    EXPECT_GT(config.m_Segments[0].m_Body.Find("src=\"preview/animate.js\""), 0);
    EXPECT_FALSE(m_Orrelix.WriteConfigFile(m_Directory.Path("no\\such.cfg")));
}

TEST_F(Orrelix, TheChosenEffectIsEditedAndChosenOnlyOnce) {
    m_Person.In(kSelect).Does("double-clicks DHTML Scripts = Slide Text");
    m_Person.In("Slide Text").Does({"types Slide Text = Hello", "clicks OK"});
    EXPECT_TRUE(m_Orrelix.Config());
    EXPECT_EQ(m_Orrelix.m_Type, "2");
    EXPECT_EQ(m_Orrelix.m_pGadget, &m_Orrelix.m_TextShow);
    EXPECT_GE(m_Orrelix.GetHTMLBody(0, 0).Find("Hello"), 0);
    m_Person.In("Slide Text").Shows("Slide Text:", "Hello").Does("clicks Cancel");
    EXPECT_FALSE(m_Orrelix.Config());
}

TEST_F(Orrelix, ACancelledChoiceIsAskedAgainAndACancelledEffectStays) {
    m_Person.In(kSelect).Does("clicks Cancel");
    EXPECT_FALSE(m_Orrelix.Config());
    EXPECT_EQ(m_Orrelix.m_Type, "0");
    m_Person.In(kSelect)
        .Does({"selects DHTML Scripts = 0", "clicks OK"})
        .In("Animate Text")
        .Does("presses Escape");
    EXPECT_FALSE(m_Orrelix.Config());
    EXPECT_EQ(m_Orrelix.m_Type, "1");
    m_Person.In("Animate Text").Does("clicks OK");
    EXPECT_TRUE(m_Orrelix.Config());
}

TEST_F(Orrelix, WhatIsThrownInADialogDoesNotReachTheHost) {
    CScriptedPerson person; // how real windows let it through is a test of theirs
    person.In(kSelect).Then([](CDialog&) { throw std::bad_alloc(); });
    EXPECT_FALSE(m_Orrelix.Config());
    EXPECT_EQ(m_Orrelix.m_Type, "0");
}

TEST_F(Orrelix, WhereNobodyIsItIsCancelledAndATypeThatIsNoneOfOursAsksNothing) {
    SetDesktop(nullptr);
    EXPECT_FALSE(m_Orrelix.Config());
    for (const char* pType : {"", "10", "x"}) {
        m_Orrelix.m_Type = pType;
        EXPECT_TRUE(m_Orrelix.Config()) << pType;
    }
}

} // namespace orrelix
