// COrrelix::Config: which dialogs come up, and what is left when they are cancelled.
#include "core/orrelix.h"
#include "tests/support/scripted_person.h"

#include <gtest/gtest.h>

namespace orrelix {

namespace {

const CString kSelect = "Select a DHTML Scripts";

} // namespace

TEST(Config, TheChosenEffectIsEditedAndChosenOnlyOnce) {
    COrrelix orrelix;
    CScriptedPerson person;
    person.In(kSelect).DoubleClicks("DHTML Scripts", "Slide Text");
    person.In("Slide Text").Types("Slide Text:", "Hello").Clicks("OK");
    EXPECT_TRUE(orrelix.Config());
    EXPECT_EQ(orrelix.m_Type, "2");
    EXPECT_EQ(orrelix.m_pGadget, &orrelix.m_TextShow);
    EXPECT_GE(orrelix.GetHTMLBody(0, 0).Find("Hello"), 0);
    person.In("Slide Text").Shows("Slide Text:", "Hello").Clicks("Cancel");
    EXPECT_FALSE(orrelix.Config());
}

TEST(Config, ACancelledChoiceIsAskedAgainAndACancelledEffectStays) {
    COrrelix orrelix;
    CScriptedPerson person;
    person.In(kSelect).Clicks("Cancel");
    EXPECT_FALSE(orrelix.Config());
    EXPECT_EQ(orrelix.m_Type, "0");
    person.In(kSelect).SelectsRow("DHTML Scripts", 0).Clicks("OK");
    person.In("Animate Text").PressesEscape();
    EXPECT_FALSE(orrelix.Config());
    EXPECT_EQ(orrelix.m_Type, "1");
    person.In("Animate Text").Clicks("OK");
    EXPECT_TRUE(orrelix.Config());
}

TEST(Config, AnOkHasTheResourcesRegisteredAfresh) {
    COrrelix orrelix;
    orrelix.m_Type = "1";
    CScriptedPerson person;
    person.In("Animate Text").Clicks("OK");
    EXPECT_TRUE(orrelix.Config());
    orrelix.SetResourceLocalPath("\\elsewhere\\");
    person.In("Animate Text").Clicks("Cancel");
    EXPECT_FALSE(orrelix.Config());
    EXPECT_EQ(orrelix.GetResourceLocalPath(0), "\\elsewhere\\");
    person.In("Animate Text").Clicks("OK");
    EXPECT_TRUE(orrelix.Config());
    EXPECT_NE(orrelix.GetResourceLocalPath(0), "\\elsewhere\\");
}

TEST(Config, WhatIsThrownInADialogDoesNotReachTheHost) {
    COrrelix orrelix;
    CScriptedPerson person;
    person.In(kSelect).Then([](CDialog&) { throw std::bad_alloc(); });
    EXPECT_FALSE(orrelix.Config());
    EXPECT_EQ(orrelix.m_Type, "0");
}

TEST(Config, WhereNobodyIsItIsCancelledAndATypeThatIsNoneOfOursAsksNothing) {
    SetDesktop(nullptr);
    COrrelix orrelix;
    EXPECT_FALSE(orrelix.Config());
    for (const char* pType : {"", "10", "x"}) {
        orrelix.m_Type = pType;
        EXPECT_TRUE(orrelix.Config()) << pType;
    }
}

} // namespace orrelix
