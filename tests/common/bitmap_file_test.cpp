// Whether a bitmap's file is as long as its header says.
#include "common/bitmap_file.h"

#include <gtest/gtest.h>

#include "tests/fakes/bitmap_builder.h"

namespace pelorin::test {
namespace {

// A file is whole, and not without its last byte.
void expectNeedsEveryByte(const std::string& file) {
  EXPECT_TRUE(isWholeBitmapFile(file));
  EXPECT_FALSE(isWholeBitmapFile(std::string_view(file).substr(0, file.size() - 1)));
}

TEST(BitmapFile, RowsArePaddedToFourBytes) {
  for (const auto& [bits, rowSize] :
       std::vector<std::pair<std::uint16_t, std::size_t>>{{16, 8}, {24, 12}, {32, 12}}) {
    SCOPED_TRACE(bits);
    expectNeedsEveryByte(
        fileOf({.width = 3, .height = 5, .bits = bits, .rows = std::string(5 * rowSize, 'x')}));
  }
}

TEST(BitmapFile, TopDownRowsCountAsWell) {
  expectNeedsEveryByte(
      fileOf({.width = 3, .height = -5, .bits = 24, .rows = std::string(60, 'x')}));
}

TEST(BitmapFile, PaletteHasTheColoursUsedOrAll) {
  expectNeedsEveryByte(fileOf({.width = 9,
                               .height = 1,
                               .bits = 1,
                               .palette = std::vector<std::uint32_t>(2),
                               .rows = std::string(4, 'x')}));
  expectNeedsEveryByte(fileOf({.width = 9,
                               .height = 1,
                               .bits = 4,
                               .coloursUsed = 3,
                               .palette = std::vector<std::uint32_t>(3),
                               .rows = std::string(8, 'x')}));
  expectNeedsEveryByte(fileOf({.width = 9,
                               .height = 1,
                               .bits = 8,
                               .palette = std::vector<std::uint32_t>(256),
                               .rows = std::string(12, 'x')}));
}

TEST(BitmapFile, PaletteCutShortIsNotWholeThoughThePixelsAre) {
  BitmapFile file{.width = 1, .height = 1, .bits = 8, .rows = std::string(4, 'x')};
  file.palette.assign(200, 0);
  EXPECT_FALSE(isWholeBitmapFile(fileOf(file)));
}

TEST(BitmapFile, CompressedRowsHaveTheSizeThatTheHeaderGives) {
  BitmapFile file{.width = 8, .height = 8, .bits = 8, .compression = 1, .compressedSize = 10};
  file.palette.assign(256, 0);
  file.rows = std::string(10, 'x');
  expectNeedsEveryByte(fileOf(file));
  file.compressedSize = 0;
  EXPECT_FALSE(isWholeBitmapFile(fileOf(file)));
}

TEST(BitmapFile, MasksStandBetweenHeaderAndPixels) {
  expectNeedsEveryByte(fileOf({.width = 2,
                               .height = 2,
                               .bits = 16,
                               .compression = 3,
                               .palette = {0xF800, 0x07E0, 0x001F},
                               .rows = std::string(8, 'x')}));
}

TEST(BitmapFile, MasksCountWhereTheHeaderDoesNotSayWhereThePixelsAre) {
  std::string file = fileOf({.width = 2,
                             .height = 2,
                             .bits = 16,
                             .compression = 3,
                             .palette = {0xF800, 0x07E0, 0x001F},
                             .rows = std::string(8, 'x')});
  file.replace(10, 4, 4, '\0');
  expectNeedsEveryByte(file);
}

TEST(BitmapFile, OldHeaderOfTwelveBytes) {
  const std::string header = "BM" + littleEndian(0, 4) + littleEndian(0, 4) +
                             littleEndian(14 + 12 + 6, 4) + littleEndian(12, 4) +
                             littleEndian(2, 2) + littleEndian(1, 2) + littleEndian(1, 2) +
                             littleEndian(1, 2);
  expectNeedsEveryByte(header + std::string(6, 'c') + std::string(4, 'x'));
}

TEST(BitmapFile, OtherThingsAreNone) {
  EXPECT_FALSE(isWholeBitmapFile(""));
  EXPECT_FALSE(isWholeBitmapFile("BM"));
  EXPECT_FALSE(isWholeBitmapFile(
      "no bitmap at all, but long enough to hold every header there is in one, and more"));
  std::string odd = fileOf({.width = 1, .height = 1, .bits = 24, .rows = "xxxx"});
  odd[14] = 39;
  EXPECT_FALSE(isWholeBitmapFile(odd));
}

TEST(BitmapFile, CutShortAnywhereIsNotWhole) {
  const std::string whole =
      fileOf({.width = 2, .height = 2, .bits = 24, .rows = std::string(16, 'x')});
  for (std::size_t length = 0; length < whole.size(); ++length) {
    EXPECT_FALSE(isWholeBitmapFile(std::string_view(whole).substr(0, length))) << length;
  }
}

TEST(BitmapFile, AbsurdSidesAreRefused) {
  for (const std::int32_t side : {0, -1, 1 << 20, 0x7FFFFFFF}) {
    EXPECT_FALSE(isWholeBitmapFile(
        fileOf({.width = side, .height = 1, .bits = 24, .rows = std::string(64, 'x')})));
  }
  for (const std::int32_t side : {0, 1 << 20, 0x7FFFFFFF, -0x7FFFFFFF - 1}) {
    EXPECT_FALSE(isWholeBitmapFile(
        fileOf({.width = 1, .height = side, .bits = 24, .rows = std::string(64, 'x')})));
  }
}

}  // namespace
}  // namespace pelorin::test
