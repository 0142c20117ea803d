#include "location/bitmap.h"

#include <gmock/gmock.h>

#include "controls/run_time_error.h"
#include "tests/location/bitmap_builder.h"

namespace pelorin::test {
namespace {

using testing::ElementsAre;

constexpr std::uint32_t red = 0xFFFF0000U;
constexpr std::uint32_t green = 0xFF00FF00U;
constexpr std::uint32_t blue = 0xFF0000FFU;
constexpr std::uint32_t black = 0xFF000000U;
constexpr std::uint32_t white = 0xFFFFFFFFU;

std::string bytes(std::initializer_list<int> values) {
  std::string text;
  for (int value : values) text += static_cast<char>(value);
  return text;
}

void expectRefused(const std::string& file) {
  try {
    readBitmap(file);
    ADD_FAILURE() << "was read";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), 481);
    EXPECT_EQ(error.description(), "Invalid picture");
  }
}

const BitmapFile twoByTwo{.rows = bytes({0, 0, 255, 0, 255, 0, 0, 0,         // bottom: red green
                                         255, 0, 0, 255, 255, 255, 0, 0})};  // top: blue white

TEST(Bitmap, TwentyFourBitsBottomUpWithPaddedRows) {
  const Bitmap bitmap = readBitmap(fileOf(twoByTwo));
  EXPECT_EQ(bitmap.width, 2);
  EXPECT_EQ(bitmap.height, 2);
  EXPECT_THAT(bitmap.pixels, ElementsAre(blue, white, red, green));
}

TEST(Bitmap, TopDown) {
  BitmapFile file = twoByTwo;
  file.height = -2;
  EXPECT_THAT(readBitmap(fileOf(file)).pixels, ElementsAre(red, green, blue, white));
}

TEST(Bitmap, OneBit) {
  const BitmapFile file{.width = 10,
                        .height = 1,
                        .bits = 1,
                        .palette = {0xFF0000, 0x00FF00},
                        .rows = bytes({0b01000001, 0b10000000, 0, 0})};
  EXPECT_THAT(readBitmap(fileOf(file)).pixels,
              ElementsAre(red, green, red, red, red, red, red, green, green, red));
}

TEST(Bitmap, FourBits) {
  const BitmapFile file{.width = 3,
                        .height = 1,
                        .bits = 4,
                        .coloursUsed = 3,
                        .palette = {0xFF0000, 0x00FF00, 0x0000FF},
                        .rows = bytes({0x01, 0x20, 0, 0})};
  EXPECT_THAT(readBitmap(fileOf(file)).pixels, ElementsAre(red, green, blue));
}

TEST(Bitmap, EightBitsAndAnIndexBeyondTheColoursUsedIsBlack) {
  const BitmapFile file{.width = 3,
                        .height = 1,
                        .bits = 8,
                        .coloursUsed = 2,
                        .palette = {0xFF0000, 0x00FF00},
                        .rows = bytes({1, 0, 200, 0})};
  EXPECT_THAT(readBitmap(fileOf(file)).pixels, ElementsAre(green, red, black));
}

TEST(Bitmap, FullPaletteWhenTheNumberOfColoursIsNotGiven) {
  BitmapFile file{.width = 1, .height = 1, .bits = 8, .rows = bytes({255, 0, 0, 0})};
  file.palette.assign(256, 0xFF0000);
  file.palette[255] = 0x0000FF;
  EXPECT_THAT(readBitmap(fileOf(file)).pixels, ElementsAre(blue));
}

TEST(Bitmap, ThirtyTwoBitsWithoutAlphaAreOpaque) {
  const BitmapFile file{
      .width = 2, .height = 1, .bits = 32, .rows = bytes({0, 0, 255, 0, 0, 255, 0, 0})};
  EXPECT_THAT(readBitmap(fileOf(file)).pixels, ElementsAre(red, green));
}

TEST(Bitmap, ThirtyTwoBitsKeepTheirAlpha) {
  const BitmapFile file{
      .width = 2, .height = 1, .bits = 32, .rows = bytes({0, 0, 255, 128, 0, 255, 0, 0})};
  EXPECT_THAT(readBitmap(fileOf(file)).pixels, ElementsAre(0x80FF0000U, 0x0000FF00U));
}

TEST(Bitmap, OldHeaderOfTwelveBytes) {
  const std::string file = "BM" + littleEndian(0, 4) + littleEndian(0, 4) +
                           littleEndian(14 + 12 + 6, 4) + littleEndian(12, 4) + littleEndian(2, 2) +
                           littleEndian(1, 2) + littleEndian(1, 2) + littleEndian(1, 2) +
                           bytes({0, 0, 255, 0, 255, 0}) + bytes({0b01000000, 0, 0, 0});
  EXPECT_THAT(readBitmap(file).pixels, ElementsAre(red, green));
}

TEST(Bitmap, DamagedFilesAreRefused) {
  expectRefused("");
  expectRefused("B");
  expectRefused("no bitmap at all, but long enough to hold every header there is in one");
  BitmapFile compressed = twoByTwo;
  compressed.compression = 1;
  expectRefused(fileOf(compressed));
  for (int bits : {0, 2, 16, 31, 64}) {
    BitmapFile odd = twoByTwo;
    odd.bits = static_cast<std::uint16_t>(bits);
    expectRefused(fileOf(odd));
  }
}

TEST(Bitmap, AbsurdSizesAreRefused) {
  for (std::int32_t side : {0, -1, 1 << 20, 0x7FFFFFFF}) {
    BitmapFile file = twoByTwo;
    file.width = side;
    expectRefused(fileOf(file));
  }
  for (std::int32_t side : {0, 1 << 20, 0x7FFFFFFF, -0x7FFFFFFF - 1}) {
    BitmapFile file = twoByTwo;
    file.height = side;
    expectRefused(fileOf(file));
  }
}

TEST(Bitmap, CutShortAnywhereIsRefused) {
  const std::string whole = fileOf(twoByTwo);
  for (std::size_t length = 0; length < whole.size(); ++length) {
    SCOPED_TRACE(length);
    expectRefused(whole.substr(0, length));
  }
}

}  // namespace
}  // namespace pelorin::test
