#include "core/parameters.h"
#include "core/vignel_config.h"
#include "tests/support/code_page_in_force.h"

#include <gtest/gtest.h>
#include <tuple>

namespace orrelix {

namespace {

struct CRecord {
    CString m_Width;
    CString m_Height;
};

// A gadget's fields in small, with every kind of place that a field can have.
struct CFields {
    CString m_Speed = "100";
    CString m_Font = "Arial";
    CString m_Title = "title";
    CStringArray m_Texts = {"one", "two"};
    CArray<CRecord> m_Sizes = {{"1", "2"}, {"3", "4"}};

    void Exchange(CParameterExchange&& exchange) {
        exchange.Fields("Para", {FIELD(m_Speed), Masked(FIELD(m_Font)), FIELD(m_Texts)});
        exchange.Text("Title", FIELD(m_Title));
        exchange.MaskedItems("Texts", FIELD(m_Texts));
        exchange.Column("Widths", "m_Width", m_Sizes, &CRecord::m_Width);
        exchange.Column("Heights", "m_Height", m_Sizes, &CRecord::m_Height);
    }
    void Read(CVignelConfig& config) { Exchange(CParameterReader(config)); }
    void Write(CVignelConfig& config) { Exchange(CParameterWriter(config)); }
};

} // namespace

TEST(ListItems, AreCountedByTheirCommasAndUnmasked) {
    const std::tuple<int, const char*, int, const char*> cases[] = {
        {65001, "", 0, ""},
        {65001, "", 3, ""},
        {65001, "a", 0, "a"},
        {65001, "a", 1, ""},
        {65001, "a", -1, ""},
        {65001, "a,,c", 1, ""},
        {65001, "a,,c", 2, "c"},
        {65001, "a,b,c,", 3, ""},
        {65001, "a,b~@^`c|_#`d,e", 1, "b,c\r\nd"},
        {65001, "~@^`~@^`", 0, ",,"},
        {65001, "~~@^`", 0, "~,"},
        {65001, "|_|_#`#`", 0, "|_\r\n#`"},
        {936, "\x91~@^`,b", 0, "\x91~@^`"},
        {936, "\x91|_#`,b", 0, "\x91|_#`"},
        {936, "\x91,b", 1, "b"},
    };
    for (const auto& [nCodePage, pText, nIndex, pItem] : cases) {
        const CCodePageInForce page(nCodePage);
        EXPECT_EQ(GetListItem(pText, nIndex), pItem) << pText << " item " << nIndex;
        CListItems items(pText);
        CString item;
        for (int nItem = 0; nItem <= nIndex; ++nItem)
            item = items.Next();
        EXPECT_EQ(item, pItem) << pText << " item " << nIndex << " in one pass";
    }
}

TEST(Parameters, ComeBackAsTheyWere) {
    CVignelConfig config;
    CFields fields;
    fields.m_Font = "Arial,Verdana";
    fields.m_Title = "a, b";
    fields.m_Texts = {"x,y", ""};
    fields.Write(config);
    EXPECT_EQ(config.GetParameter("Para", "?"), "100,Arial~@^`Verdana,2");
    EXPECT_EQ(config.GetParameter("Title", "?"), "a, b");
    EXPECT_EQ(config.GetParameter("Texts", "?"), "x~@^`y,,");
    EXPECT_EQ(config.GetParameter("Widths", "?"), "1,3,");
    CFields read;
    read.Read(config);
    EXPECT_EQ(read.m_Font, "Arial,Verdana");
    EXPECT_EQ(read.m_Title, "a, b");
    EXPECT_EQ(read.m_Texts, (CStringArray{"x,y", ""}));
    EXPECT_EQ(read.m_Sizes[1].m_Height, "4");

    fields.m_Texts.RemoveAll();
    fields.m_Sizes.RemoveAll();
    fields.Write(config);
    EXPECT_EQ(config.GetParameter("Texts", "?"), "");
    EXPECT_EQ(config.GetParameter("Para", "?"), "100,Arial~@^`Verdana,0");
}

TEST(Parameters, LeaveFieldsAloneWhereItemsAreEmptyOrMissing) {
    CVignelConfig config;
    config.SetParameter("Para", ",Times");
    CFields fields;
    fields.Read(config);
    EXPECT_EQ(fields.m_Speed, "100");
    EXPECT_EQ(fields.m_Font, "Times");
    EXPECT_EQ(fields.m_Title, "") << "a whole value that is missing empties its field";
    EXPECT_EQ(fields.m_Texts.GetSize(), 0);
    EXPECT_EQ(fields.m_Sizes.GetSize(), 0);
}

TEST(Parameters, BelieveACountUpToTheMostThatAListMayHold) {
    const std::tuple<const char*, int, int> cases[] = {{"3", 1, 3},
                                                       {"-3", 1, 0},
                                                       {"x", 1, 0},
                                                       {"", 1, 0},
                                                       {"65535", 1, 65535},
                                                       {"70000", 1, 65535},
                                                       {"4294967295", 1, 0},
                                                       {"70000", 69999, 69999},
                                                       {"70000", 70001, 70000}};
    for (const auto& [pCount, nThere, nItems] : cases) {
        CVignelConfig config;
        config.SetParameter("Para", CString("1,2,") + pCount);
        CString texts = "a,";
        for (int nText = 1; nText < nThere; ++nText)
            texts += "b,";
        config.SetParameter("Texts", texts);
        CFields fields;
        fields.Read(config);
        EXPECT_EQ(fields.m_Texts.GetSize(), nItems) << pCount;
        EXPECT_EQ(fields.m_Sizes.GetSize(), nItems) << pCount;
        if (nItems > 1) {
            EXPECT_EQ(fields.m_Texts[0], "a");
            EXPECT_EQ(fields.m_Texts[1], nThere > 1 ? "b" : "");
        }
    }
}

} // namespace orrelix
