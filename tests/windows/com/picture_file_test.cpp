// Bitmap files of every kind, as the platform reads them.
#include "addin/picture_file.h"

#include <gmock/gmock.h>
#include <windows.h>

#include <array>

#include "addin/files.h"
#include "base/run_time_error.h"
#include "tests/fakes/bitmap_builder.h"
#include "tests/windows/support/device_contexts.h"
#include "win32/text/utf16.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;

constexpr std::uint32_t red = 0xFFFF0000U;
constexpr std::uint32_t green = 0xFF00FF00U;
constexpr std::uint32_t blue = 0xFF0000FFU;
constexpr std::uint32_t white = 0xFFFFFFFFU;

std::string bytesOf(std::initializer_list<int> values) {
  std::string text;
  for (const int value : values) text += static_cast<char>(value);
  return text;
}

class PictureFile : public ::testing::Test {
 protected:
  PictureFile() {
    std::array<wchar_t, MAX_PATH> temporary{};
    GetTempPathW(MAX_PATH, temporary.data());
    path = toUtf8(temporary.data()) + "pelorin picture " + std::to_string(GetCurrentProcessId());
  }
  void SetUp() override {
    if (!deviceContextsWork()) GTEST_SKIP() << "this system gives the program no device contexts";
  }
  ~PictureFile() override { DeleteFileW(toWide(path).c_str()); }

  Picture read(const std::string& content) {
    files::replace(path, content);
    return readPictureFile(path);
  }
  std::vector<std::uint32_t> pixels(const BitmapFile& file) { return read(fileOf(file)).pixels; }
  void expectRefused(const std::string& content) {
    try {
      read(content);
      ADD_FAILURE() << "was read";
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.number(), 481);
      EXPECT_EQ(error.description(), "Invalid picture: " + path);
    }
  }

  std::string path;
};

const BitmapFile twoByTwo{.rows = bytesOf({0, 0, 255, 0, 255, 0, 0, 0,         // bottom: red green
                                           255, 0, 0, 255, 255, 255, 0, 0})};  // top: blue white

TEST_F(PictureFile, TwentyFourBits) {
  const Picture picture = read(fileOf(twoByTwo));
  EXPECT_EQ(picture.width, 2);
  EXPECT_EQ(picture.height, 2);
  EXPECT_THAT(picture.pixels, ElementsAre(blue, white, red, green));
}

TEST_F(PictureFile, OneFourAndEightBits) {
  EXPECT_THAT(pixels({.width = 3,
                      .height = 1,
                      .bits = 1,
                      .palette = {0xFF0000, 0x00FF00},
                      .rows = bytesOf({0b01000000, 0, 0, 0})}),
              ElementsAre(red, green, red));
  EXPECT_THAT(pixels({.width = 3,
                      .height = 1,
                      .bits = 4,
                      .coloursUsed = 3,
                      .palette = {0xFF0000, 0x00FF00, 0x0000FF},
                      .rows = bytesOf({0x01, 0x20, 0, 0})}),
              ElementsAre(red, green, blue));
  EXPECT_THAT(pixels({.width = 2,
                      .height = 1,
                      .bits = 8,
                      .coloursUsed = 2,
                      .palette = {0xFF0000, 0x00FF00},
                      .rows = bytesOf({1, 0, 0, 0})}),
              ElementsAre(green, red));
}

TEST_F(PictureFile, SixteenBitsWithAndWithoutMasks) {
  EXPECT_THAT(pixels({.width = 2,
                      .height = 1,
                      .bits = 16,
                      .rows = littleEndian(0x7C00, 2) + littleEndian(0x03E0, 2)}),
              ElementsAre(red, green));
  EXPECT_THAT(pixels({.width = 2,
                      .height = 1,
                      .bits = 16,
                      .compression = BI_BITFIELDS,
                      .palette = {0xF800, 0x07E0, 0x001F},
                      .rows = littleEndian(0xF800, 2) + littleEndian(0x07E0, 2)}),
              ElementsAre(red, green));
}

TEST_F(PictureFile, ThirtyTwoBitsWithMasks) {
  EXPECT_THAT(pixels({.width = 2,
                      .height = 1,
                      .bits = 32,
                      .compression = BI_BITFIELDS,
                      .palette = {0x0000FF, 0x00FF00, 0xFF0000},
                      .rows = littleEndian(0x0000FF, 4) + littleEndian(0xFF0000, 4)}),
              ElementsAre(red, blue));
}

TEST_F(PictureFile, ThirtyTwoBitsKeepTheirAlphaWhereTheyUseIt) {
  EXPECT_THAT(
      pixels({.width = 2, .height = 1, .bits = 32, .rows = bytesOf({0, 0, 255, 0, 0, 255, 0, 0})}),
      ElementsAre(red, green));
  EXPECT_THAT(
      pixels(
          {.width = 2, .height = 1, .bits = 32, .rows = bytesOf({0, 0, 255, 128, 0, 255, 0, 0})}),
      ElementsAre(0x80FF0000U, 0x0000FF00U));
}

TEST_F(PictureFile, RunLengths) {
  const std::string rows = bytesOf({2, 1, 0, 0, 1, 0, 1, 1, 0, 1});
  BitmapFile file{.width = 2, .height = 2, .bits = 8, .compression = BI_RLE8};
  file.coloursUsed = 2;
  file.palette = {0xFF0000, 0x00FF00};
  file.rows = rows;
  file.compressedSize = static_cast<std::uint32_t>(rows.size());
  EXPECT_THAT(pixels(file), ElementsAre(red, green, green, green));
}

TEST_F(PictureFile, CutShortAnywhereIsRefused) {
  const std::string whole = fileOf(twoByTwo);
  for (std::size_t length = 0; length < whole.size(); ++length) {
    SCOPED_TRACE(length);
    expectRefused(whole.substr(0, length));
  }
}

TEST_F(PictureFile, WhatIsNoPictureIsRefused) {
  expectRefused("no bitmap at all, but long enough to hold every header there is in one, and more");
  BitmapFile odd = twoByTwo;
  odd.bits = 31;
  expectRefused(fileOf(odd));
}

TEST_F(PictureFile, MissingFileIsNamed) {
  try {
    readPictureFile(path);
    ADD_FAILURE() << "was read";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), 53);
    EXPECT_EQ(error.description(), "File not found: " + path);
  }
}

}  // namespace
}  // namespace pelorin::test
