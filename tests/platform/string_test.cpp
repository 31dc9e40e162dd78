#include "platform/string.h"
#include "tests/support/code_page_in_force.h"

#include <gtest/gtest.h>
#include <tuple>

namespace orrelix {

// In page 936 "\x95\x5C" is one character whose second byte looks like a backslash, "\x91\x7C" one whose
// second looks like a bar, "\x81\x41" one whose second looks like an A. In page 949, 0x5C follows no lead
// byte.
TEST(String, SearchesPassOverTrailBytes) {
    // The last place is that of the wanted text's first byte, -2 where it isn't asked for.
    const std::tuple<int, const char*, const char*, CString::Position, CString::Position> cases[] = {
        {65001, "a\\b\\c", "\\", 1, 3},
        {65001, "a\x95\\c", "\\", 2, 2},
        {936, "a\x95\\c", "\\", -1, -1},
        {936, "\x95\\\\c", "\\", 2, 2},
        {936, "\\\x95\\", "\\", 0, 0},
        {932, "\x83\\\\\x83\\", "\\", 2, 2},
        {950, "\xA5\\x\\", "\\", 3, 3},
        {949, "\xA5\\x", "\\", 1, 1},
        {1252, "\xA5\\x", "\\", 1, 1},
        {936, "\x91|_#`|_#`", "|_#`", 5, -2},
        {936, "\x91\x91|", "|", 2, 2},
        {936, "\x91,b", ",", 1, 1}, // no comma is a trail byte, so a stray lead byte hides none
        {936, "\x91", "\x91", 0, 0},
        {936, "", "x", -1, -1},
        {65001, "aXbX", "X", 1, 3},
    };
    for (const auto& [nCodePage, pText, pWanted, nFirst, nLast] : cases) {
        const CCodePageInForce page(nCodePage);
        const CString text = pText;
        EXPECT_EQ(text.Find(pWanted), nFirst) << nCodePage << ": " << testing::PrintToString(pText);
        if (nLast != -2) {
            EXPECT_EQ(text.ReverseFind(*pWanted), nLast)
                << nCodePage << ": " << testing::PrintToString(pText);
        }
    }
    EXPECT_EQ(CString("aXbX").Find('X', 2), 3);
    EXPECT_EQ(CString("abc").Find('a', 4), -1);
    EXPECT_EQ(CString("abc").Find('a', -1), -1);
}

TEST(String, ReplacingGoesLeftToRightAndNotOverWhatItPutIn) {
    const std::tuple<int, const char*, const char*, const char*, const char*, int> cases[] = {
        {65001, "aaa", "aa", "a", "aa", 1},
        {65001, "a,b,c", ",", ",,", "a,,b,,c", 2},
        {65001, "abc", "", "x", "abc", 0},
        {65001, "abcABC", "b", "", "acABC", 1},
        {65001, "\r\n\r\n", "\r\n", "<br>", "<br><br>", 2},
        {936, "\x95\\\\", "\\", "/", "\x95\\/", 1},
        {936, "\x91~@^`~@^`", "~@^`", ",", "\x91~@^`,", 1},
    };
    for (const auto& [nCodePage, pText, pFrom, pTo, pResult, nReplaced] : cases) {
        const CCodePageInForce page(nCodePage);
        CString text = pText;
        EXPECT_EQ(text.Replace(pFrom, pTo), nReplaced) << testing::PrintToString(pText);
        EXPECT_EQ(text, pResult) << testing::PrintToString(pText);
    }
}

TEST(String, LowerCasingTouchesAToZAndNoTrailByte) {
    EXPECT_EQ(CString("AZ\xC3\x84@[").MakeLower(), "az\xC3\x84@[");
    const CCodePageInForce page(936);
    EXPECT_EQ(CString("A\x81\x41\x81\x5A Z").MakeLower(), "a\x81\x41\x81\x5A z");
}

TEST(String, PartsAreCutToTheText) {
    const CString text = "abcdef";
    EXPECT_EQ(text.Left(-1), "");
    EXPECT_EQ(text.Left(2), "ab");
    EXPECT_EQ(text.Left(99), "abcdef");
    EXPECT_EQ(text.Right(2), "ef");
    EXPECT_EQ(text.Right(99), "abcdef");
    EXPECT_EQ(text.Mid(4), "ef");
    EXPECT_EQ(text.Mid(99), "");
    EXPECT_EQ(text.Mid(1, 3), "bcd");
    EXPECT_EQ(text.Mid(-3, -1), "");
    EXPECT_EQ(Trim(" \t\r\n\v\fa b\v "), "a b");
    EXPECT_EQ(Trim(" \t "), "");
}

TEST(String, NumbersReadAsTheirLeadingDigits) {
    const std::pair<const char*, int> cases[] = {
        {"", 0},
        {"  42px", 42},
        {"-7", -7},
        {"+7", 7},
        {"- 7", 0},
        {"abc", 0},
        {"2147483647", 2147483647},
        {"4294967298", 2},
        {"65538", 65538},
        {"\t\v\f12.5", 12},
        {"99999999999999999999", 1661992959},
    };
    for (const auto& [pText, nNumber] : cases)
        EXPECT_EQ(ToInteger(pText), nNumber) << pText;
}

} // namespace orrelix
