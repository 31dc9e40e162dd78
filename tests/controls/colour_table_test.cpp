#include "controls/colour_table.h"
#include "controls/hex_colour.h"
#include "platform/profile.h"
#include "tests/support/colour_settings.h"

#include <gtest/gtest.h>

namespace orrelix {

namespace {

class ColourTable : public testing::Test {
protected:
    static CString Row(size_t nRow) {
        const CTableColour& row = GetColourTable()[nRow];
        return row.m_Name + "|" + HexText(row.m_Colour);
    }
    static CString Stored(const CString& section, int nRow) {
        return GetProfileString(section, "Name" + ToText(nRow), "-") + "|" +
               GetProfileString(section, "Value" + ToText(nRow), "-");
    }

    CColourSettings m_Settings;
};

} // namespace

TEST_F(ColourTable, TwoMixedColoursStandInTheLastRows) {
    EXPECT_FALSE(LoadColourTable("ANIBK"));
    RememberColour("ANIBK", MakeColour(0x12, 0x34, 0xab));
    EXPECT_EQ(Row(39), "1234ab|1234ab");
    const CString section = "Specify Color ANIBK";
    EXPECT_EQ(Stored(section, 0), "Black|000000");
    EXPECT_EQ(Stored(section, 2), "Dark Olive Green|004040");
    EXPECT_EQ(Stored(section, 35), "Pale green |98fb98");
    EXPECT_EQ(Stored(section, 39), "1234ab|1234ab");
    EXPECT_EQ(Stored(section, 40), "-|-");

    EXPECT_TRUE(LoadColourTable("ANIBK"));
    RememberColour("ANIBK", MakeColour(0, 0, 1));
    EXPECT_EQ(Row(38), "Lavender|e6e6fa") << "the table catches up when it is loaded";
    EXPECT_TRUE(LoadColourTable("ANIBK"));
    EXPECT_EQ(Row(1), "White|ffffff");
    EXPECT_EQ(Row(2), "Dark Green|005500") << "the oldest after black and white is gone";
    EXPECT_EQ(Row(38), "1234ab|1234ab");
    EXPECT_EQ(Row(39), "000001|000001");
}

TEST_F(ColourTable, EachSectionHasItsOwnAndAnUnusedOneShowsWhatIsLoaded) {
    RememberColour("", MakeColour(1, 1, 1));
    RememberColour("TextShow", MakeColour(2, 2, 2));
    EXPECT_EQ(Stored("Specify Color", 39), "010101|010101");
    EXPECT_EQ(Stored("Specify Color TextShow", 39), "020202|020202");
    EXPECT_TRUE(LoadColourTable(""));
    EXPECT_EQ(Row(39), "010101|010101");
    EXPECT_TRUE(LoadColourTable("TextShow"));
    EXPECT_FALSE(LoadColourTable("DanceText"));
    EXPECT_EQ(Row(39), "020202|020202");
}

// Whoever mixed the first one: the table in memory doesn't have it.
TEST_F(ColourTable, AColourThatWasStoredSinceLoadingStays) {
    EXPECT_FALSE(LoadColourTable("CALBK"));
    RememberColour("CALBK", MakeColour(1, 1, 1));
    RememberColour("CALBK", MakeColour(2, 2, 2));
    EXPECT_EQ(Stored("Specify Color CALBK", 38), "010101|010101");
    EXPECT_EQ(Stored("Specify Color CALBK", 39), "020202|020202");
}

TEST_F(ColourTable, DamagedRowsKeepWhatTheTableHolds) {
    ChangeProfileSection("Specify Color", [](CProfileSection& section) {
        section.WriteString("Name39", "x");
        section.WriteString("Value39", "00000g");
        section.WriteString("Value5", "ABCDEF");
        section.WriteString("Name6", "no value");
        section.WriteString("Value7", "0000001");
        section.WriteString("Value8", "080808");
        section.WriteString("Name8", std::string(300, 'n'));
    });
    EXPECT_TRUE(LoadColourTable(""));
    EXPECT_EQ(Row(39), "Brown|a52a00");
    EXPECT_EQ(Row(5), "ABCDEF|abcdef");
    EXPECT_EQ(Row(6), "Indigo|4b0082");
    EXPECT_EQ(Row(7), "Dark grey|282828");
    EXPECT_EQ(Row(8), std::string(255, 'n') + "|080808");
    setenv("XDG_CONFIG_HOME", "/dev/null/settings", 1);
    RememberColour("", MakeColour(9, 9, 9));
    EXPECT_EQ(Row(39), "090909|090909") << "for this process, where nothing can be stored";
}

} // namespace orrelix
