// The tree's pictures, cut from one strip.
#include "location/picture_strip.h"

#include <gtest/gtest.h>

#include "tests/fakes/bitmap_builder.h"

namespace pelorin::test {
namespace {

TEST(PictureStrip, CellsAreSixteenPixelsCountedFromTheLeft) {
  const ImageStrip strip = cutIntoCells(stripPicture(3));
  EXPECT_EQ(strip.cells, 3);
  ASSERT_EQ(strip.pixels.size(), 3U * 16 * 16);
  for (std::size_t y = 0; y < 16; ++y) {
    EXPECT_EQ(strip.pixels[y * 48 + 16], 0xFF000002U);
    EXPECT_EQ(strip.pixels[y * 48 + 47], 0xFF000003U);
  }
}

TEST(PictureStrip, ARemainderAtTheRightIsDropped) {
  Picture picture{35, 16, std::vector<std::uint32_t>(35 * 16, 0xFF00FF00U)};
  const ImageStrip strip = cutIntoCells(picture);
  EXPECT_EQ(strip.cells, 2);
  EXPECT_EQ(strip.pixels.size(), 2U * 16 * 16);
}

TEST(PictureStrip, NarrowerThanACellHasNone) {
  const ImageStrip strip = cutIntoCells(Picture{15, 16, std::vector<std::uint32_t>(15 * 16, 1)});
  EXPECT_EQ(strip.cells, 0);
  EXPECT_TRUE(strip.pixels.empty());
}

TEST(PictureStrip, RowsBelowTheSixteenthAreDroppedAndMissingOnesTransparent) {
  const ImageStrip high =
      cutIntoCells(Picture{16, 20, std::vector<std::uint32_t>(16 * 20, 0x80123456U)});
  EXPECT_EQ(high.pixels.size(), 256U);
  EXPECT_EQ(high.pixels.back(), 0x80123456U);
  const ImageStrip low =
      cutIntoCells(Picture{16, 4, std::vector<std::uint32_t>(16 * 4, 0x80123456U)});
  EXPECT_EQ(low.pixels[63], 0x80123456U);
  EXPECT_EQ(low.pixels[64], 0U);
}

TEST(PictureStrip, ColourOfEveryCellsTopLeftPixelIsTransparentInAnOpaquePicture) {
  Picture picture{32, 16, std::vector<std::uint32_t>(512, 0xFFFF00FFU)};
  picture.pixels[33] = 0xFF102030U;
  const ImageStrip strip = cutIntoCells(picture);
  EXPECT_EQ(strip.pixels[0], 0U);
  EXPECT_EQ(strip.pixels[33], 0xFF102030U);
  EXPECT_EQ(strip.pixels[511], 0U);
}

TEST(PictureStrip, ColourThatIsNotInEveryCellsCornerIsDrawn) {
  Picture picture{48, 16, std::vector<std::uint32_t>(768, 0xFFFFFFFFU)};
  picture.pixels[32] = 0xFF102030U;
  const ImageStrip strip = cutIntoCells(picture);
  EXPECT_EQ(strip.pixels[0], 0xFFFFFFFFU);
  EXPECT_EQ(strip.pixels[767], 0xFFFFFFFFU);
}

TEST(PictureStrip, PictureWithAlphaKeepsEveryPixel) {
  Picture picture{16, 16, std::vector<std::uint32_t>(256, 0xFFFF00FFU)};
  picture.pixels[17] = 0x10102030U;
  const ImageStrip strip = cutIntoCells(picture);
  EXPECT_EQ(strip.pixels[0], 0xFFFF00FFU);
  EXPECT_EQ(strip.pixels[17], 0x10102030U);
}

}  // namespace
}  // namespace pelorin::test
