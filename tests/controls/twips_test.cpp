// Twips as pixels, whatever their size.
#include "controls/twips.h"

#include <gtest/gtest.h>

#include <limits>

namespace pelorin::test {
namespace {

constexpr int largest = std::numeric_limits<int>::max();

TEST(Twips, ArePixelsOfTheResolution) {
  EXPECT_EQ(twipsToPixels(1440, 96), 96);
  EXPECT_EQ(twipsToPixels(5145, 96), 343);
  EXPECT_EQ(twipsToPixels(5145, 144), 515);
  EXPECT_EQ(pixelsToTwips(343, 96), 5145);
}

TEST(Twips, AreRoundedToTheNearestPixelOnBothSidesOfZero) {
  EXPECT_EQ(twipsToPixels(7, 96), 0);
  EXPECT_EQ(twipsToPixels(8, 96), 1);
  EXPECT_EQ(twipsToPixels(-7, 96), 0);
  EXPECT_EQ(twipsToPixels(-8, 96), -1);
}

TEST(Twips, BeyondAnyScreenStayOnTheirSide) {
  const std::int64_t sum = std::int64_t{largest} + largest;
  EXPECT_EQ(twipsToPixels(largest, 192), 32767);
  EXPECT_EQ(twipsToPixels(sum, 192), 32767);
  EXPECT_EQ(twipsToPixels(-sum, 192), -32767);
  EXPECT_GT(pixelsToTwips(largest, 96), 32767 * 15);
  EXPECT_LT(pixelsToTwips(-largest, 96), -32767 * 15);
}

}  // namespace
}  // namespace pelorin::test
