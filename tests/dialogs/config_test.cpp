// COrrelix::Config: which dialogs come up, and what is left when they are cancelled.
#include "core/orrelix.h"
#include "tests/support/person_test.h"
#include "tests/support/scripted_person.h"

namespace orrelix {

namespace {

const CString kSelect = "Select a DHTML Scripts";

class Config : public PersonTest {
protected:
    COrrelix m_Orrelix;
};

} // namespace

TEST_F(Config, TheChosenEffectIsEditedAndChosenOnlyOnce) {
    m_Person.In(kSelect).DoubleClicks("DHTML Scripts", "Slide Text");
    m_Person.In("Slide Text").Types("Slide Text:", "Hello").Clicks("OK");
    EXPECT_TRUE(m_Orrelix.Config());
    EXPECT_EQ(m_Orrelix.m_Type, "2");
    EXPECT_EQ(m_Orrelix.m_pGadget, &m_Orrelix.m_TextShow);
    EXPECT_GE(m_Orrelix.GetHTMLBody(0, 0).Find("Hello"), 0);
    m_Person.In("Slide Text").Shows("Slide Text:", "Hello").Clicks("Cancel");
    EXPECT_FALSE(m_Orrelix.Config());
}

TEST_F(Config, ACancelledChoiceIsAskedAgainAndACancelledEffectStays) {
    m_Person.In(kSelect).Clicks("Cancel");
    EXPECT_FALSE(m_Orrelix.Config());
    EXPECT_EQ(m_Orrelix.m_Type, "0");
    m_Person.In(kSelect).SelectsRow("DHTML Scripts", 0).Clicks("OK");
    m_Person.In("Animate Text").PressesEscape();
    EXPECT_FALSE(m_Orrelix.Config());
    EXPECT_EQ(m_Orrelix.m_Type, "1");
    m_Person.In("Animate Text").Clicks("OK");
    EXPECT_TRUE(m_Orrelix.Config());
}

TEST_F(Config, AnOkHasTheResourcesRegisteredAfresh) {
    m_Orrelix.m_Type = "1";
    m_Person.In("Animate Text").Clicks("OK");
    EXPECT_TRUE(m_Orrelix.Config());
    m_Orrelix.SetResourceLocalPath("\\elsewhere\\");
    m_Person.In("Animate Text").Clicks("Cancel");
    EXPECT_FALSE(m_Orrelix.Config());
    EXPECT_EQ(m_Orrelix.GetResourceLocalPath(0), "\\elsewhere\\");
    m_Person.In("Animate Text").Clicks("OK");
    EXPECT_TRUE(m_Orrelix.Config());
    EXPECT_NE(m_Orrelix.GetResourceLocalPath(0), "\\elsewhere\\");
}

TEST_F(Config, WhatIsThrownInADialogDoesNotReachTheHost) {
    CScriptedPerson person; // how real windows let it through is a test of theirs
    person.In(kSelect).Then([](CDialog&) { throw std::bad_alloc(); });
    EXPECT_FALSE(m_Orrelix.Config());
    EXPECT_EQ(m_Orrelix.m_Type, "0");
}

TEST_F(Config, WhereNobodyIsItIsCancelledAndATypeThatIsNoneOfOursAsksNothing) {
    SetDesktop(nullptr);
    EXPECT_FALSE(m_Orrelix.Config());
    for (const char* pType : {"", "10", "x"}) {
        m_Orrelix.m_Type = pType;
        EXPECT_TRUE(m_Orrelix.Config()) << pType;
    }
}

} // namespace orrelix
