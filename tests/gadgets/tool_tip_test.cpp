#include "core/vignel_config.h"
#include "gadgets/tool_tip.h"

#include <gtest/gtest.h>

namespace orrelix {

namespace {

CString LastLine(const CString& body) {
    const CString text = body.Left(body.GetLength() - 2);
    return text.Mid(text.ReverseFind('\n') + 1);
}

} // namespace

TEST(ToolTip, WhatIsLeftOutLeavesItsBlanks) {
    const struct {
        const char* m_pTag;
        const char* m_pTipTag;
        const char* m_pTipText;
        short m_nMode;
        const char* m_pLine;
    } cases[] = {
        {"div", "span", "", kPublish,
         R"(<div id="Tip1"  <img src='pictures/a.gif' border=1 height= width= align=absmiddle>   tooltipstyle="background:8b8b00; border:2 inset #ff6820;" > Text</div>)"},
        {"p", "", "some tip", kPublish, R"(<p id="Tip1"   some tip   > Text</p>)"},
        {"a", "", "", kPublish, R"(<a href="x.htm"  id="Tip1"      > Text</a>)"},
        {"A", "b", "tip", 2,
         R"(<A id="Tip1" tooltip=" <nobr><b  style='width:100; color:32cd32; font-family:@Fixedsys; font-weight:normal; font-style:normal; font-size:20;'> <img src='a.gif' border=1 height= width= align=absmiddle> tip </b>" tooltipstyle="background:8b8b00; border:2 inset #ff6820;" > Text</A>)"},
    };
    CVignelConfig config;
    config.SetTitle("Tip1");
    for (const auto& row : cases) {
        CToolTip gadget;
        gadget.m_Link = "x.htm";
        gadget.m_HtmlText = "Text";
        gadget.m_HtmlTag = row.m_pTag;
        gadget.m_TipTag = row.m_pTipTag;
        gadget.m_TipText = row.m_pTipText;
        gadget.m_Image = "\\somewhere\\a.gif";
        gadget.m_ImagePath = "pictures/";
        gadget.m_ImageSize.m_Border = "1";
        EXPECT_EQ(LastLine(gadget.GetHTMLBody(config, row.m_nMode, 0)), row.m_pLine);
    }
}

} // namespace orrelix
