#include "location/picture_strip.h"

#include <algorithm>
#include <optional>

namespace pelorin {

namespace {

constexpr int cellSize = ImageStrip::cellSize;
constexpr std::uint32_t alpha = 0xFF000000U;

bool isOpaque(const Picture& picture) {
  return std::all_of(picture.pixels.begin(), picture.pixels.end(),
                     [](std::uint32_t pixel) { return (pixel & alpha) == alpha; });
}

// A corner that only some cells share is part of their drawing.
std::optional<std::uint32_t> transparentColour(const Picture& picture, int cells) {
  if (cells == 0 || picture.height == 0 || !isOpaque(picture)) return std::nullopt;
  const std::uint32_t corner = picture.at(0, 0);
  for (int cell = 1; cell < cells; ++cell) {
    if (picture.at(cell * cellSize, 0) != corner) return std::nullopt;
  }
  return corner;
}

}  // namespace

ImageStrip cutIntoCells(const Picture& picture) {
  ImageStrip strip;
  strip.cells = picture.width / cellSize;
  const int width = strip.cells * cellSize;
  strip.pixels.assign(static_cast<std::size_t>(width) * cellSize, 0);
  const std::optional<std::uint32_t> mask = transparentColour(picture, strip.cells);
  auto pixel = strip.pixels.begin();
  for (int y = 0; y < std::min(cellSize, picture.height); ++y) {
    for (int x = 0; x < width; ++x, ++pixel) {
      const std::uint32_t colour = picture.at(x, y);
      *pixel = colour == mask ? 0 : colour;
    }
  }
  return strip;
}

}  // namespace pelorin
