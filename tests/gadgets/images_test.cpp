// The images of effects that have some.
#include "gadgets/cool_link.h"
#include "gadgets/fade_select.h"
#include "gadgets/tool_tip.h"
#include "tests/support/temporary_directory.h"

#include <gtest/gtest.h>

namespace orrelix {

namespace {

std::span<CString> ImagesOf(CToolTip& tip) {
    return {&tip.m_Image, 1};
}
template <class TList>
std::span<CString> ImagesOf(TList& list) {
    return list.m_Images;
}

template <class TGadget>
class Images : public testing::Test {};
using Gadgets = testing::Types<CFadeSelect, CCoolLink, CToolTip>;
TYPED_TEST_SUITE(Images, Gadgets);

} // namespace

TYPED_TEST(Images, AreRegisteredAsTheDiskSpellsThemCopiedAndFoundAgainUnlessTheyAreLost) {
    constexpr bool kTip = std::is_same_v<TypeParam, CToolTip>;
    const CTemporaryDirectory directory;
    for (const char* pName : {"from", "to"})
        std::filesystem::create_directory(directory.File(pName));
    directory.Write("from/Photo.GIF", "bytes");
    TypeParam gadget, again;
    CVignelConfig config;
    const std::span<CString> images = ImagesOf(gadget);
    images.back() = directory.Path("from\\gone.gif"); // of a list, as a tip has one image
    images.front() = directory.Path("from\\photo.gif");
    gadget.m_ImagePath = "images/";

    const short nLast = static_cast<short>(gadget.RegisterResources(config) - 1);
    EXPECT_EQ(config.GetResourceName(nLast), "Photo.GIF");
    EXPECT_EQ(config.GetResourceLocalPath(nLast), directory.Path("from") + "\\");
    EXPECT_EQ(config.GetResourceWebPath(nLast), "images/");
    EXPECT_EQ(images.front(), directory.Path("from\\photo.gif"));

    gadget.CopyResources(directory.Path("to") + "\\", 0);
    EXPECT_EQ(images.front(), directory.Path("to\\photo.gif"));
    EXPECT_EQ(FileContent(directory.File("to/photo.gif")), "bytes");
    EXPECT_TRUE(kTip || images.back().IsEmpty());

    gadget.WriteParameters(config);
    again.ReadParameters(config, "\\pages\\");
    EXPECT_EQ(ImagesOf(again).front(), "\\pages\\photo.gif");
    EXPECT_TRUE(kTip || ImagesOf(again).back().IsEmpty());

    // A list loses the image's path, and a tip the remote directory.
    EXPECT_EQ(again.RegisterResources(config), nLast);
    EXPECT_EQ(ImagesOf(again).front(), kTip ? "\\pages\\photo.gif" : "");
    EXPECT_EQ(again.m_ImagePath, kTip ? "" : "images/");
}

} // namespace orrelix
