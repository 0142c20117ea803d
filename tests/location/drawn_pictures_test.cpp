// The strip that tools/draw-picture-strip draws.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "location/node_images.h"
#include "location/picture_strip.h"
#include "test_paths.h"

namespace pelorin::test {
namespace {

std::uint32_t fileNumber(const std::string& file, std::size_t at) {
  std::uint32_t number = 0;
  for (std::size_t i = 4; i-- > 0;) {
    number = number << 8U | static_cast<unsigned char>(file.at(at + i));
  }
  return number;
}

// The script writes one kind of file: 32 bits with alpha, bottom row first.
Picture readDrawnFile(const std::string& file) {
  Picture picture{
      static_cast<int>(fileNumber(file, 18)), static_cast<int>(fileNumber(file, 22)), {}};
  const std::size_t row = static_cast<std::size_t>(picture.width) * 4;
  for (auto y = static_cast<std::size_t>(picture.height); y-- > 0;) {
    const std::size_t at = fileNumber(file, 10) + y * row;
    for (std::size_t x = 0; x < row; x += 4) picture.pixels.push_back(fileNumber(file, at + x));
  }
  return picture;
}

const ImageStrip& drawn() {
  static const ImageStrip strip = [] {
    std::ifstream file(PICTURE_STRIP, std::ios::binary);
    return cutIntoCells(readDrawnFile(std::string(std::istreambuf_iterator<char>(file), {})));
  }();
  return strip;
}

std::uint32_t pixelOf(int cell, int x, int y) {
  const int column = (cell - 1) * ImageStrip::cellSize + x;
  const int width = drawn().cells * ImageStrip::cellSize;
  return drawn().pixels[static_cast<std::size_t>(y * width + column)];
}

// As somebody sees it who sees no colours, on white.
double brightness(std::uint32_t pixel) {
  const double alpha = (pixel >> 24U) / 255.0;
  const double grey =
      0.3 * (pixel >> 16U & 0xFFU) + 0.59 * (pixel >> 8U & 0xFFU) + 0.11 * (pixel & 0xFFU);
  return alpha * grey + (1 - alpha) * 255;
}

int differentPixels(int one, int other) {
  int different = 0;
  for (int y = 0; y < ImageStrip::cellSize; ++y) {
    for (int x = 0; x < ImageStrip::cellSize; ++x) {
      if (std::abs(brightness(pixelOf(one, x, y)) - brightness(pixelOf(other, x, y))) > 40)
        ++different;
    }
  }
  return different;
}

const std::vector<int> kinds = {node_image::openFolder,
                                node_image::folder,
                                node_image::controller,
                                node_image::dialUpLocation,
                                node_image::door,
                                node_image::input,
                                node_image::relay,
                                node_image::multiplexer,
                                node_image::reader,
                                node_image::networkController,
                                node_image::port,
                                node_image::camera,
                                node_image::recorder,
                                node_image::receiver,
                                node_image::account,
                                node_image::area,
                                node_image::point,
                                35,
                                36,
                                37,
                                42};

TEST(DrawnPictures, HaveACellForEveryNode) {
  EXPECT_GE(drawn().cells, node_image::highest);
}

TEST(DrawnPictures, EveryKindOfNodeIsToldApartWithoutColours) {
  for (std::size_t one = 0; one < kinds.size(); ++one) {
    for (std::size_t other = one + 1; other < kinds.size(); ++other) {
      EXPECT_GE(differentPixels(kinds[one], kinds[other]), 10)
          << kinds[one] << " and " << kinds[other];
    }
  }
}

TEST(DrawnPictures, StandOnAnyBackground) {
  for (int cell : kinds) {
    int clear = 0;
    int opaque = 0;
    for (int y = 0; y < ImageStrip::cellSize; ++y) {
      for (int x = 0; x < ImageStrip::cellSize; ++x) {
        const std::uint32_t alpha = pixelOf(cell, x, y) >> 24U;
        clear += alpha == 0 ? 1 : 0;
        opaque += alpha == 255 ? 1 : 0;
      }
    }
    EXPECT_GE(clear, 20) << cell;
    EXPECT_GE(opaque, 20) << cell;
  }
}

}  // namespace
}  // namespace pelorin::test
