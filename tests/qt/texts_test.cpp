#include "qt/text.h"
#include "tests/support/code_page_in_force.h"

#include <gtest/gtest.h>

namespace orrelix {

TEST(Texts, NoByteIsLostByBeingShown) {
    const std::string texts[] = {"",
                                 "plain",
                                 "Gr\xc3\xbc\xc3\x9f"
                                 "e \xf0\x9f\x8c\x8d",
                                 "\xd2\xbb,\xb6\xfe,\xc8\xfd...", // another code page's
                                 "cut \xe4\xb8",
                                 "\xff\xfe\x80",
                                 "\xed\xb2\x80 \xc0\xaf"};
    for (const std::string& text : texts)
        EXPECT_EQ(FromQt(ToQt(text)), text);
    EXPECT_EQ(ToQt("a\xff").size(), 2);
}

TEST(Texts, TheCodePageInForceDecides) {
    CCodePageInForce page(936);
    EXPECT_EQ(ToQt("\xd2\xbb"), QString::fromUtf8("\xe4\xb8\x80"));
    EXPECT_EQ(FromQt(QString::fromUtf8("\xe4\xb8\x80 \xf0\x9f\x8c\x8d")).Left(3), "\xd2\xbb ");
}

TEST(Texts, LinesAndPathsAndCaptions) {
    EXPECT_EQ(LinesToQt("a\r\nb"), "a\nb");
    EXPECT_EQ(LinesFromQt("a\nb"), "a\r\nb");
    EXPECT_EQ(PathToQt("\\home\\a.gif"), "/home/a.gif");
    EXPECT_EQ(PathFromQt("/home/a.gif"), "\\home\\a.gif");
    EXPECT_EQ(CaptionToQt("Move &Up", "Move Up"), "Move &Up");
    EXPECT_EQ(CaptionToQt("Move &Up", "Up & away"), "Up && away");
}

} // namespace orrelix
