// The whole road of each effect: a person works in its dialogs, down to the last one; the file is written and
// read, and the dialogs open again. Tells in tests/expected/roads which fields the work has changed, and shows
// that Cancel in the effect's dialog leaves all of them.
#include "core/orrelix.h"
#include "resources/addresses.h"
#include "tests/support/effect_fields.h"
#include "tests/support/expected_text.h"
#include "tests/support/person_test.h"
#include "tests/support/temporary_directory.h"

#include <map>

namespace orrelix {

namespace {

using CValues = std::map<std::string, CString>;

struct CRoad {
    const char* m_pName;
    const char* m_pType;
    const char* m_pTitle;
    // The work in the effect's dialog, but for its last button. `image` is a file.
    void (*m_pWork)(CPersonScript& person, const CString& image);
};

// Fills a font dialog, which begins with this size.
void FillFont(CPersonScript& person, const char* pShownSize, const char* pSize) {
    person.In("Font Properties").Shows("Font Size:", pShownSize).Types("Font Size:", pSize);
    person.Picks("Font Weight:", "bolder").Picks("Font Style:", "oblique");
    person.Types("Specify the Font Face:", "Arial, serif").Clicks("OK");
}

void FillUrl(CPersonScript& person, const char* pShownUrl, const char* pUrl) {
    person.In("Input an URL:").Shows("URL", pShownUrl).Types("URL", pUrl).Clicks("OK");
}

void FillPadding(CPersonScript& person) {
    person.In("Padding Style").Types("Left:", "2").Types("Right:", "3").Types("Top:", "4");
    person.Types("Bottom:", "5").Clicks("OK");
}

void EditFadeSelect(CPersonScript& person, const CString& image) {
    const CString url = "The informations of this URL:";
    // A new item's font and address are asked for from nothing each time.
    person.Clicks("Add...").In("Item Properties").Shows("Font Color:", "c0c0c0").Shows("Width:", "");
    person.Types("Item Text:", "News, old").Types("Item ToolTip:", "all, of it").Types("Border:", "1");
    person.Turns("Width:", 3).Types("Height:", "50%").Clicks("Choose an Image File").ChoosesFile(image);
    person.Shows("Item Text:", "News, old").Clicks("Font More...");
    FillFont(person, "", "12");
    person.In("Item Properties").Clicks("Font More...");
    FillFont(person, "", "13");
    person.In("Item Properties").Clicks(url);
    FillUrl(person, "", "http://first/");
    person.In("Item Properties").Clicks(url).In("Input an URL:").Shows("URL", "").Clicks("Cancel");
    person.In("Item Properties").Types("Font Color:", "0000ff").Clicks("OK").In("Fade Select Box");

    person.SelectsRow("Items", 4).Clicks("Modify...").In("Item Properties").Clicks("Font More...");
    FillFont(person, "13", "14");
    person.In("Item Properties").Clicks(url);
    FillUrl(person, "http://first/", "http://second/?a,b");
    person.In("Item Properties").Types("Item Text:", "News").Clicks("OK").In("Fade Select Box");
    person.Clicks("Move Up").SelectsRow("Items", 0).Clicks("Delete");

    person.Clicks("Selected Item...").In("Selected Item Style").Types("Width:", "4").Clicks("Font..");
    FillFont(person, "20", "21");
    person.In("Selected Item Style").Picks("Link Target:", "Parent Frame(_parent)").Clicks("OK");
    person.In("Fade Select Box").Clicks("Drop Table...").In("Drop Down Table Style");
    person.Picks("Border Style:", "groove").Clicks("Item Padding Style:");
    FillPadding(person);
    person.In("Drop Down Table Style").Clicks("OK").In("Fade Select Box").Clicks("Drop Button...");
    person.In("Drop Button Style").Types("Arrow Size:", "8").Clicks("OK");
    // What is cancelled below stays as it is, also when something below that was not.
    person.In("Fade Select Box").Clicks("Drop Table...").In("Drop Down Table Style");
    person.Types("Border Width:", "99").Clicks("Item Padding Style:");
    person.In("Padding Style").Shows("Top:", "4").Types("Left:", "99").Clicks("OK");
    person.In("Drop Down Table Style").Clicks("Cancel").In("Fade Select Box");
    person.Clicks("Modify...").Answers("Please select an item to modify!");
}

void EditCalander(CPersonScript& person, const CString&) {
    const CString borders[] = {"Calender Border...", "Date Cell Border..."};
    const CString fonts[] = {"Greet Text...", "Time Text..."},
                  alignedFonts[] = {"Title Text...", "Date Text..."};
    person.Types("Greet Text:", "Hi, all").Turns("Box Width:", 5).Types("Box Height:", "2em");
    person.Picks("Calender Align:", "right").Types("Specify calander2.js Remote Directory:", "scripts\\js");
    person.OpensColours("Time Text:").PicksColour("Gold").Types("Background:", "0A0B0C");
    for (const CString& font : fonts) {
        person.Clicks("Font Properties / " + font);
        FillFont(person, "9", font == "Time Text..." ? "12" : "11");
        person.In("Calender");
    }
    for (const CString& font : alignedFonts) {
        person.Clicks("Font Properties / " + font).In("Calender Font Style").Types("Text Align:", font);
        person.Clicks("OK").In("Calender");
    }
    for (const CString& border : borders) {
        person.Clicks(border)
            .In("Border Properties")
            .Types("Border Style:", border)
            .Turns("Border Width:", 2);
        person.Clicks("OK")
            .In("Calender")
            .Clicks(border)
            .In("Border Properties")
            .Shows("Border Style:", border);
        person.Types("Border Color", "00ff00").Clicks("Cancel").In("Calender");
    }
}

void EditDanceText(CPersonScript& person, const CString&) {
    person.Types("Text of the Url:", "Our <b>news</b>").Moves("Color Change Speed", 30).Clicks("Font...");
    FillFont(person, "30", "12pt");
    person.In("Color Link").Clicks("Font...").In("Font Properties"); // the file keeps no comma of this effect
    person.Types("Specify the Font Face:", "Verdana").Clicks("OK").In("Color Link").Clicks("Url...");
    FillUrl(person, kMakerHomePage, "http://www.example.com/a?b=c");
    person.In("Color Link").Picks("Link Target:", "Parent Frame(_parent)").Types("Text Decoration:", "blink");
    person.SelectsRow("Colors", 1).Clicks("Delete").Answers("Do you want to Delete?").Clicks("Add...");
    person.In("Color").Types("Color:", "12ab34").Clicks("OK").In("Color Link").Clicks("Move Up");
}

// The style of a clicked link's font is left alone: no file keeps it.
void EditScrollText(CPersonScript& person, const CString&) {
    person.Clicks("Add new text...")
        .In("Add a Text")
        .Types("Link Text:", "two\r\nlines, or more")
        .Clicks("...");
    FillUrl(person, "", "http://www.example.com/a,b");
    person.In("Add a Text").Clicks("OK").In("Scroll Text").SelectsRow("Texts", 4);
    person.Shows("Text", "two\r\nlines, or more").Clicks("Scroll Text / Move Up").SelectsRow("Urls", 0);
    person.Types("Url", "news.html")
        .Clicks("Text Url / Modify")
        .SelectsRow("Texts", 0)
        .Clicks("Delete a text");
    person.Answers(
        "If you delete the Text, you will delete the Url in the same position. Do you want to continue?");
    for (const char* pStyle : {"Mouse Over...", "Mouse Out...", "Mouse Click..."}) {
        person.Clicks(pStyle)
            .In("Link Style")
            .Types("Mouse Cursor:", pStyle)
            .Picks("Text Decoration:", "blink");
        person.OpensColours("Text Color:").PicksColour("Plum").Clicks("Font...").In("Font Properties");
        person.Types("Specify the Font Face:", pStyle)
            .Types("Font Size:", "1em")
            .Clicks("OK")
            .In("Link Style");
        person.Clicks("OK").In("Scroll Text").Clicks(pStyle).In("Link Style").Types("Text Color:", "000000");
        person.Clicks("Cancel").In("Scroll Text");
    }
    person.Turns("Delay Time:", -1).Types("Table Width:", "90%").Picks("Border Style:", "solid");
    person.Types("Specify scrolltext.js Remote Directory:", "js/");
}

void EditToolTip(CPersonScript& person, const CString& image) {
    person.Types("HTML Text:", "See, here").Types("ToolTip Text:", "a, b").Types("Show Time:", "9999");
    person.Clicks("Url.");
    FillUrl(person, kHostProductHomePage, "http://www.example.com/a,b");
    person.In("ToolTip").Clicks("...").In("Marquee Width").Turns("Marquee Width:", 20).Clicks("OK");
    person.In("ToolTip").Clicks("image...").In("Insert an image File").Types("Width:", "32").Clicks("...");
    person.ChoosesFile(image, "img\\small")
        .Shows("Width:", "32")
        .Clicks("OK")
        .In("ToolTip")
        .Clicks("Font...");
    FillFont(person, "20", "12");
    person.In("ToolTip").Picks("Border Style:", "solid").Types("Color:", "0a0b0c");
    person.Types("Specify tooltip.js Remote Directory:", "js");
    // What is cancelled stays, also the directory that the file dialog took.
    person.Clicks("image...").In("Insert an image File").Clicks("...").ChoosesFile(image, "lost");
    person.Clicks("Cancel").In("ToolTip");
}

void EditCoolLink(CPersonScript& person, const CString& image) {
    const CString url = "The informations of this URL:";
    person.Clicks("Add...").In("Item Properties").Shows("Width:", "0").Types("Item Text:", "News, old");
    person.Clicks("Choose an Image File").ChoosesFile(image);
    person.Shows("Item Text:", "News, old").Turns("Width:", 3).Types("Height:", "50%").Clicks(url);
    FillUrl(person, "", "http://first/");
    person.In("Item Properties").Clicks(url).In("Input an URL:").Shows("URL", "").Clicks("Cancel");
    person.In("Item Properties").Clicks("OK").In("Link Select Table").Clicks("Move Up").Clicks("Modify...");
    person.In("Item Properties").Shows("Height:", "50").Clicks(url);
    FillUrl(person, "http://first/", "http://second/?a,b");
    person.In("Item Properties").Types("Border:", "1").Clicks("OK").In("Link Select Table");
    person.SelectsRow("Items", 0).Clicks("Delete").Picks("Link Target:", "Whole Page(_top)");

    for (const char* pKind : {"Selected Item...", "Normal Item..."}) {
        const bool bSelected = *pKind == 'S';
        person.Clicks(pKind).In("Item Style").Types("Width:", bSelected ? "4" : "6").Clicks("Font..");
        FillFont(person, "20", bSelected ? "21" : "22");
        person.In("Item Style").Clicks("Padding..");
        FillPadding(person);
        person.In("Item Style").Types("Text Color:", bSelected ? "000004" : "000006").Clicks("OK");
        person.In("Link Select Table");
    }
    person.Clicks("Normal Item...").In("Item Style").Types("Width:", "99").Clicks("Padding..");
    person.In("Padding Style").Shows("Top:", "4").Types("Left:", "99").Clicks("OK");
    person.In("Item Style").Clicks("Cancel").In("Link Select Table");
    person.Clicks("Modify...").Answers("Please select an item to modify!");
}

void EditTodayCa(CPersonScript& person, const CString&) {
    const struct {
        const char* m_pButton;
        const char* m_pTitle;
        const char* m_pBox;
        const char* m_pFont;
        const char* m_pWeight; // that its font starts with
    } parts[] = {
        {"Click Button...", "Click Button Area Style", "Year Left:", "Font...", ""},
        {"Current Day...", "Current Day input Style", "Today Text:", "Font..", "normal"},
        {"Year/Month...", "Year/Month Input Box Style", "Input Area Size:", "Font...", "normal"},
        {"WeekDay Title...", "Calender Title Style", "Box Width:", "Font..", "normal"},
        {"Saturday Title...", "Calender Title Style", "Box Width:", "Font..", "normal"},
        {"Sunday Title...", "Calender Title Style", "Box Width:", "Font..", "normal"},
        {"WeekDay...", "Calender Date Style", "Box Color:", "Font..", "normal"},
        {"Saturday...", "Calender Date Style", "Box Color:", "Font..", "normal"},
        {"Sunday...", "Calender Date Style", "Box Color:", "Font..", "normal"},
    };
    int nText = 100;
    for (const auto& part : parts) {
        person.Clicks(part.m_pButton).In(part.m_pTitle).Types(part.m_pBox, ToText(++nText));
        person.Clicks(part.m_pFont).In("Font Properties").Shows("Font Weight:", part.m_pWeight);
        person.Types("Font Size:", ToText(nText)).Clicks("OK").In(part.m_pTitle).Clicks("OK");
        person.In("Cool Calender").Clicks(part.m_pButton).In(part.m_pTitle);
        person.Shows(part.m_pBox, ToText(nText)).Types(part.m_pBox, "999999").Clicks(part.m_pFont);
        person.In("Font Properties").Types("Font Size:", "99").Clicks("OK").In(part.m_pTitle);
        person.Clicks("Cancel").In("Cool Calender");
    }
    person.Picks("Title Style:", "\u4e00,\u4e8c,\u4e09...").Types("Border Width:", "2");
    person.Types("Specify todayca.js Remote Directory:", "scripts\\js");
}

const CRoad kRoads[] = {
    {"calander", "3", "Calender", EditCalander},
    {"dance_text", "9", "Color Link", EditDanceText},
    {"scroll_text", "5", "Scroll Text", EditScrollText},
    {"tool_tip", "7", "ToolTip", EditToolTip},
    {"cool_link", "4", "Link Select Table", EditCoolLink},
    {"fade_select", "6", "Fade Select Box", EditFadeSelect},
    {"today_ca", "8", "Cool Calender", EditTodayCa},
};

class Road : public PersonTest, public testing::WithParamInterface<CRoad> {
protected:
    void Work(const char* pLastButton) {
        m_Orrelix.SelectType(GetParam().m_pType);
        GetParam().m_pWork(m_Person.In(GetParam().m_pTitle), m_Images.Path("photo.gif"));
        m_Person.In(GetParam().m_pTitle).Clicks(pLastButton);
    }
    static CValues ValuesOf(COrrelix& orrelix) {
        CValues values;
        for (const CNamedText& field : FieldsOf(*orrelix.m_pGadget))
            values[field.m_Name] = *field.m_pText;
        return values;
    }

    COrrelix m_Orrelix;
    const CTemporaryDirectory m_Images, m_Site;
    const CString m_Image = m_Images.Write("photo.gif", "an image");
};

} // namespace

TEST_P(Road, CancelLeavesEveryField) {
    Work("Cancel");
    const CValues before = ValuesOf(m_Orrelix);
    EXPECT_FALSE(m_Orrelix.Config());
    EXPECT_EQ(ValuesOf(m_Orrelix), before);
}

TEST_P(Road, LeadsFromTheDialogsThroughTheFileAndBack) {
    Work("OK");
    const CValues before = ValuesOf(m_Orrelix);
    EXPECT_TRUE(m_Orrelix.Config());
    EXPECT_TRUE(m_Orrelix.WriteConfigFile(m_Site.Path("page.cfg")));
    const CValues stored = ValuesOf(m_Orrelix);
    std::string changed;
    for (auto [name, value] : stored) {
        value.Replace(m_Site.Path(), "SITE\\");
        if (const auto old = before.find(name); old == before.end() || old->second != value)
            changed += name + " = " + std::string(value.View()) + "\n";
    }
    const std::string file = std::string(GetParam().m_pName) + ".txt";
    EXPECT_TRUE(EqualsExpected(ORRELIX_SOURCE_DIR "/tests/expected/roads/" + file, changed));

    COrrelix later;
    EXPECT_TRUE(later.ReadConfigFile(m_Site.Path("page.cfg")));
    EXPECT_EQ(ValuesOf(later), stored);
    m_Person.Clicks("OK");
    EXPECT_TRUE(later.Config());
    EXPECT_EQ(ValuesOf(later), stored);
}

INSTANTIATE_TEST_SUITE_P(All, Road, testing::ValuesIn(kRoads),
                         [](const auto& road) { return road.param.m_pName; });

} // namespace orrelix
