// Calender and Cool Calender: where each field stands, and what reading and writing keep of it.
#include "core/orrelix.h"
#include "tests/support/expected_text.h"
#include "tests/support/temporary_directory.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

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
    COrrelix orrelix;
    const struct {
        const char* m_pType;
        CDhtmlGadget& m_Gadget;
        const char* m_pExpected;
    } gadgets[] = {{"3", orrelix.m_Calander, "calander_fields.cfg"},
                   {"8", orrelix.m_TodayCa, "today_ca_fields.cfg"}};
    for (const auto& gadget : gadgets) {
        CNamer namer;
        gadget.m_Gadget.ExchangeParameters(namer);
        orrelix.m_Type = gadget.m_pType;
        orrelix.m_pGadget = &gadget.m_Gadget;
        ASSERT_TRUE(orrelix.WriteConfigFile(m_Directory.Path("fields.cfg")));
        EXPECT_TRUE(EqualsExpected(fs::path(ORRELIX_SOURCE_DIR) / "tests/expected" / gadget.m_pExpected,
                                   FileContent(m_Directory.File("fields.cfg"))));
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

    CVignelConfig empty;
    read.ReadParameters(empty, "");
    EXPECT_EQ(read.m_Titles, (CStringArray{"", "", "", "", "", "", ""}));
    EXPECT_EQ(read.m_TodayText, "Hello");
}

TEST_F(Calendars, ThePagesSpellingOfTheScriptLiesBesideItsOwn) {
    CCalander calander;
    CTodayCa todayCa;
    const struct {
        CDhtmlGadget& m_Gadget;
        const char* m_pScript;
        const char* m_pPageName;
        const char* m_pResource;
    } gadgets[] = {{calander, "Calander2.js", "calander2.js", "Calander2.js"},
                   {todayCa, "Todayca.js", "todayca.js", "todayca.js"}};
    for (const auto& gadget : gadgets) {
        const CTemporaryDirectory module, page;
        module.Write(gadget.m_pScript, gadget.m_pScript);
        SetModuleDirectory(module.Path());
        gadget.m_Gadget.CopyResources(page.Path() + "\\", 0);
        EXPECT_EQ(FileContent(page.File(gadget.m_pScript)), gadget.m_pScript);
        EXPECT_EQ(FileContent(page.File(gadget.m_pPageName)), gadget.m_pScript);
        EXPECT_EQ(gadget.m_Gadget.RegisterResources(m_Store), 1);
        EXPECT_EQ(m_Store.GetResourceName(0), gadget.m_pResource);
    }
}
