// Calender and Cool Calender: where each field stands, and what reading and writing keep of it.
#include "core/orrelix.h"
#include "tests/support/expected_text.h"
#include "tests/support/temporary_directory.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

// Gives each field its own name as its text, and a list's items their numbers behind it.
class CNamer : public CParameterExchange {
public:
    void Fields(const char*, std::initializer_list<CParameterField> fields) override {
        for (const CParameterField& field : fields)
            *field.m_pText = field.m_pName;
    }
    void Text(const char*, CParameterField field) override { *field.m_pText = field.m_pName; }

protected:
    void DoItems(const char*, const CParameterColumn& column) override {
        int nItem = 0;
        for (CString* pItem : column.m_Items)
            *pItem = column.m_pName + ToText(nItem++);
    }
};

class Calendars : public testing::Test {
protected:
    Calendars() : m_OldModule(GetModuleDirectory()) { SetModuleDirectory("\\usr\\lib\\orrelix"); }
    ~Calendars() override { SetModuleDirectory(m_OldModule); }

    CTemporaryDirectory m_Directory;
    CVignelConfig m_Store;

private:
    CString m_OldModule;
};

} // namespace

TEST_F(Calendars, EveryFieldStandsInItsPlaces) {
    const struct {
        const char* m_pType;
        const char* m_pExpected;
    } gadgets[] = {{"3", "calander_fields.cfg"}, {"8", "today_ca_fields.cfg"}};
    for (const auto& gadget : gadgets) {
        COrrelix orrelix;
        const CString path = m_Directory.Write("fields.cfg", CString("========== Description Part Begin ==========\n"
                                                                     "ProgID = VignelServer.Orrelix\n"
                                                                     "========== Description Part End ==========\n"
                                                                     "========== Parameter Part Begin ==========\n"
                                                                     "DhtmlType = ") +
                                                                 gadget.m_pType + "\n");
        ASSERT_TRUE(orrelix.ReadConfigFile(path));
        CNamer namer;
        orrelix.m_pGadget->ExchangeParameters(namer);
        ASSERT_TRUE(orrelix.WriteConfigFile(path));
        const std::filesystem::path expected = std::filesystem::path(ORRELIX_SOURCE_DIR) / "tests/expected";
        EXPECT_TRUE(EqualsExpected(expected / gadget.m_pExpected, FileContent(m_Directory.File("fields.cfg"))));
    }
}

TEST_F(Calendars, AClearedFieldComesBackAsItWasUnlessItsKeyIsItsOwn) {
    CCalander calander;
    calander.m_BoxWidth.Empty();
    calander.m_GreetText.Empty();
    calander.m_TitleFontFamily = "Arial, serif";
    calander.WriteParameters(m_Store);

    CCalander read;
    read.m_BoxWidth = "99";
    EXPECT_TRUE(read.ReadParameters(m_Store, ""));
    EXPECT_EQ(read.m_BoxWidth, "99");
    EXPECT_EQ(read.m_GreetText, "");
    EXPECT_EQ(read.m_TitleFontFamily, "Arial, serif");
}

TEST_F(Calendars, CommasAreKeptInTitlesAndFontsAlone) {
    CTodayCa calendar;
    calendar.m_Titles = {"M,o", "", "W"};
    calendar.m_SatCell.m_FontFamily = "Arial,serif";
    calendar.m_TodayText = "Hello, world";
    calendar.WriteParameters(m_Store);
    EXPECT_EQ(m_Store.GetParameter("TodaycaTitlePara", ""), "M~@^`o,,W,,,,,");

    CTodayCa read;
    read.ReadParameters(m_Store, "");
    EXPECT_EQ(read.m_Titles, (CStringArray{"M,o", "", "W", "", "", "", ""}));
    EXPECT_EQ(read.m_SatCell.m_FontFamily, "Arial,serif");
    EXPECT_EQ(read.m_TodayText, "Hello");

    // Titles alone don't survive a store without them.
    read.m_Titles.RemoveAll();
    EXPECT_NE(read.GetHTMLBody(m_Store, 0, 0).Find(";\"></th>"), -1);
    read.ReadParameters(m_Config, "");
}
