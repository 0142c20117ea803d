#include "location/picture_strip.h"

#include <algorithm>

namespace pelorin {

namespace {

constexpr int cellSize = ImageStrip::cellSize;
constexpr std::uint32_t alpha = 0xFF000000U;

bool isOpaque(const Bitmap& bitmap) {
  return std::all_of(bitmap.pixels.begin(), bitmap.pixels.end(),
                     [](std::uint32_t pixel) { return (pixel & alpha) == alpha; });
}

}  // namespace

ImageStrip cutIntoCells(const Bitmap& bitmap) {
  ImageStrip strip;
  strip.cells = bitmap.width / cellSize;
  const int width = strip.cells * cellSize;
  strip.pixels.assign(static_cast<std::size_t>(width) * cellSize, 0);
  const bool masked = isOpaque(bitmap);
  const std::uint32_t mask = bitmap.at(0, 0);
  auto pixel = strip.pixels.begin();
  for (int y = 0; y < std::min(cellSize, bitmap.height); ++y) {
    for (int x = 0; x < width; ++x, ++pixel) {
      const std::uint32_t colour = bitmap.at(x, y);
      *pixel = masked && colour == mask ? 0 : colour;
    }
  }
  return strip;
}

}  // namespace pelorin
