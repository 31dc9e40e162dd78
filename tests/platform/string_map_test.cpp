#include "platform/string_map.h"

#include <gtest/gtest.h>
#include <string>

namespace orrelix {

namespace {

std::string Keys(const CMapStringToString& map) {
    std::string keys;
    map.ForEach([&](const CString& key, const CString&) { keys += std::string(key.View()) + " "; });
    return keys;
}

} // namespace

TEST(StringMap, WalksItsBucketsAndInEachTheLatestKeyFirst) {
    CMapStringToString map;
    for (const char* pKey :
         {"PreviewPath", "Description", "ProgID", "BitmapFileName", "Title", "LastUpdateTime"})
        map[pKey];
    EXPECT_EQ(Keys(map), "Title ProgID LastUpdateTime BitmapFileName PreviewPath Description ");
    // Assigning leaves a key where it is; adding in another order turns the pair of one bucket round.
    map["PreviewPath"] = "x";
    EXPECT_EQ(Keys(map), "Title ProgID LastUpdateTime BitmapFileName PreviewPath Description ");
    map.RemoveAll();
    EXPECT_EQ(Keys(map), "");
    map["BitmapFileName"];
    map["PreviewPath"];
    EXPECT_EQ(Keys(map), "PreviewPath BitmapFileName ");
}

TEST(StringMap, TakesTheBytesOfAKeyAsSigned) {
    // As signed bytes "\xFF" hashes to -1, which is 2^32 - 1 and so 0 modulo 17; "\x01" hashes to 1.
    CMapStringToString map;
    map["\x01"];
    map["\xFF"];
    EXPECT_EQ(Keys(map), "\xFF \x01 ");
}

TEST(StringMap, FindsEveryKeyOfManyAndNoOther) {
    CMapStringToString map;
    EXPECT_EQ(map.Find("Key0"), nullptr);
    for (int nKey = 0; nKey < 5000; ++nKey)
        map["Key" + std::to_string(nKey)] = std::to_string(nKey);
    for (int nKey = 0; nKey < 5000; ++nKey) {
        const CString* pValue = map.Find("Key" + std::to_string(nKey));
        ASSERT_NE(pValue, nullptr) << nKey;
        EXPECT_EQ(*pValue, std::to_string(nKey));
    }
    EXPECT_EQ(map.Find("Key5000"), nullptr);
    EXPECT_EQ(map.Find("key0"), nullptr);
    EXPECT_EQ(map.GetCount(), 5000u);
}

} // namespace orrelix
