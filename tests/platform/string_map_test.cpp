#include "platform/string_map.h"

#include <gtest/gtest.h>
#include <string>

namespace orrelix {

namespace {

std::string Keys(const CMapStringToString& map) {
    std::string keys;
    map.ForEach([&](std::string_view key, std::string_view) { (keys += key) += " "; });
    return keys;
}

} // namespace

TEST(StringMap, WalksItsBucketsAndInEachTheLatestKeyFirst) {
    CMapStringToString map;
    for (const char* pKey :
         {"PreviewPath", "Description", "ProgID", "BitmapFileName", "Title", "LastUpdateTime"})
        map.SetAt(pKey, "");
    EXPECT_EQ(Keys(map), "Title ProgID LastUpdateTime BitmapFileName PreviewPath Description ");
    // Assigning leaves a key where it is; adding in another order turns the pair of one bucket round.
    map.SetAt("PreviewPath", "x");
    EXPECT_EQ(Keys(map), "Title ProgID LastUpdateTime BitmapFileName PreviewPath Description ");
    map.RemoveAll();
    EXPECT_EQ(Keys(map), "");
    map.SetAt("BitmapFileName", "");
    map.SetAt("PreviewPath", "");
    EXPECT_EQ(Keys(map), "PreviewPath BitmapFileName ");
}

TEST(StringMap, TakesTheBytesOfAKeyAsSigned) {
    // As signed bytes "\xFF" hashes to -1, which is 2^32 - 1 and so 0 modulo 17; "\x01" hashes to 1.
    CMapStringToString map;
    map.SetAt("\x01", "");
    map.SetAt("\xFF", "");
    EXPECT_EQ(Keys(map), "\xFF \x01 ");
}

TEST(StringMap, FindsEveryKeyOfManyAndNoOther) {
    CMapStringToString map;
    EXPECT_FALSE(map.Find("Key0"));
    for (const char* pMark : {"a", "b", "c", "d"}) { // each replaces the values before it
        for (int nKey = 0; nKey < 5000; ++nKey)
            map.SetAt("Key" + std::to_string(nKey), std::to_string(nKey) + std::string(200, *pMark));
    }
    map.SetAt("copy", *map.Find("Key7"));
    CMapStringToString other = map;
    map.RemoveAll();
    EXPECT_FALSE(map.Find("Key0"));
    map.SetAt("Key0", "anew");
    for (int nKey = 0; nKey < 5000; ++nKey)
        ASSERT_EQ(other.Find("Key" + std::to_string(nKey)), std::to_string(nKey) + std::string(200, 'd'));
    EXPECT_EQ(other.Find("copy"), "7" + std::string(200, 'd'));
    EXPECT_FALSE(other.Find("Key5000"));
    EXPECT_FALSE(other.Find("key0"));
    EXPECT_EQ(other.GetCount(), 5001u);
}

} // namespace orrelix
