// A person's steps lead to the same file through real windows as without any.
#include "core/orrelix.h"
#include "tests/qt/qt_person.h"
#include "tests/support/scripted_person.h"
#include "tests/support/temporary_directory.h"
#include "tests/support/user_settings.h"

#include <gtest/gtest.h>

namespace orrelix {

namespace {

void MakeSlideText(CPersonScript& person) {
    person.In("Select a DHTML Scripts").DoubleClicks("DHTML Scripts", "Slide Text");
    person.In("Slide Text")
        .Types("Table / Width:", "700")
        .Turns("Table / Height:", 3)
        .Types("Text Title:", "Spring & summer")
        .Types("Slide Text:", "First line\r\nGr\xc3\xbc\xc3\x9f"
                              "e")
        .Moves("Slide Speed", 310)
        .OpensColours("Text Title Area / Color:")
        .PicksColour("Sea green")
        .Types("Text Area / Color:", "00fF7f")
        .Clicks("Text Font...");
    person.In("Font Properties")
        .Picks("Font Weight:", "bold")
        .Types("Font Style:", "italic")
        .Types("Font Size:", "14")
        .Turns("Font Size:", -2)
        .Types("Specify the Font Face:", "Arial")
        .Clicks("OK");
    person.In("Slide Text").Clicks("Title Font...");
    person.In("Font Properties").Picks("Font Weight:", "light").Clicks("Cancel");
    person.In("Slide Text").Types("Table / Border:", "1").PressesEnter();
}

void MakeAnimateText(CPersonScript& person) {
    person.In("Select a DHTML Scripts").SelectsRow("DHTML Scripts", 0).Clicks("OK");
    person.In("Animate Text")
        .SelectsRow("Messages", 1)
        .Clicks("Move Down")
        .Types("Message", "two\r\nlines")
        .Clicks("Add")
        .Moves("Circulate Interval Time", 40)
        .OpensColours("Background Color:")
        .PressesInPopup({PopupKey::Up, PopupKey::Up, PopupKey::Left, PopupKey::Return})
        .Clicks("OK");
}

std::string FileMadeBy(CPersonScript& person, void (*make)(CPersonScript&)) {
    CUserSettings settings;
    CTemporaryDirectory directory;
    COrrelix orrelix;
    orrelix.SetTitle("page");
    make(person);
    EXPECT_TRUE(orrelix.Config());
    EXPECT_TRUE(orrelix.WriteConfigFile(directory.Path("page.cfg")));
    return FileContent(directory.File("page.cfg"));
}

class SameRoad : public testing::TestWithParam<void (*)(CPersonScript&)> {};

} // namespace

TEST_P(SameRoad, LeadsToTheSameFile) {
    std::string withoutWindows;
    {
        CScriptedPerson person;
        withoutWindows = FileMadeBy(person, GetParam());
    }
    CQtPerson person;
    EXPECT_EQ(FileMadeBy(person, GetParam()), withoutWindows);
    EXPECT_NE(withoutWindows, "");
}

INSTANTIATE_TEST_SUITE_P(Effects, SameRoad, testing::Values(MakeSlideText, MakeAnimateText));

} // namespace orrelix
