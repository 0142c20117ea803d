#include "win32/views/image_strip.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "win32/views/dpi.h"

namespace pelorin {

namespace {

constexpr int cell = ImageStrip::cellSize;

// A 32-bit bitmap, top row first, whose pixels are filled by the caller.
Bitmap makeBitmap(int width, int height, std::uint32_t*& pixels) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  void* bits = nullptr;
  Bitmap bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  pixels = static_cast<std::uint32_t*>(bits);
  return bitmap;
}

// Part of a source pixel that a pixel of the scaled picture covers, along one axis. One source
// pixel is `size` units long, one scaled pixel `cell` units.
int overlap(int scaled, int source, int size) {
  const int begin = std::max(scaled * cell, source * size);
  const int end = std::min((scaled + 1) * cell, (source + 1) * size);
  return std::max(0, end - begin);
}

// Sums of the channels over an area, colours weighted with their opacity.
struct AreaSum {
  std::uint32_t weight = 0;
  std::uint32_t alpha = 0;
  std::array<std::uint32_t, 3> colours{};

  void add(std::uint32_t pixel, std::uint32_t area) {
    const std::uint32_t opacity = area * (pixel >> 24U);
    weight += area;
    alpha += opacity;
    for (unsigned i = 0; i < colours.size(); ++i) {
      colours[i] += opacity * ((pixel >> (8U * i)) & 0xFFU);
    }
  }

  std::uint32_t mean() const {
    if (alpha == 0) return 0;
    std::uint32_t pixel = (alpha / weight) << 24U;
    for (unsigned i = 0; i < colours.size(); ++i) {
      pixel |= ((colours[i] + alpha / 2) / alpha) << (8U * i);
    }
    return pixel;
  }
};

// Each scaled pixel is the mean of the area that it covers: sharp at whole multiples, even between.
std::uint32_t scaledPixel(const ImageStrip& strip, int index, int x, int y, int size) {
  AreaSum sum;
  for (int sourceY = y * cell / size; sourceY * size < (y + 1) * cell; ++sourceY) {
    for (int sourceX = x * cell / size; sourceX * size < (x + 1) * cell; ++sourceX) {
      const int from = (sourceY * strip.cells + index) * cell + sourceX;
      sum.add(strip.pixels[static_cast<std::size_t>(from)],
              static_cast<std::uint32_t>(overlap(x, sourceX, size) * overlap(y, sourceY, size)));
    }
  }
  return sum.mean();
}

void scaleCell(const ImageStrip& strip, int index, int size, std::uint32_t* to) {
  for (int y = 0; y < size; ++y) {
    for (int x = 0; x < size; ++x) *to++ = scaledPixel(strip, index, x, y, size);
  }
}

}  // namespace

int pictureSize(int dpi) noexcept {
  return MulDiv(cell, std::max(dpi, standardDpi), standardDpi);
}

ImageList makeImageList(const ImageStrip& strip, int dpi) {
  if (strip.cells == 0) return {};
  const int size = pictureSize(dpi);
  ImageList images(ImageList_Create(size, size, ILC_COLOR32, strip.cells, 0));
  for (int index = 0; index < strip.cells; ++index) {
    std::uint32_t* pixels = nullptr;
    const Bitmap bitmap = makeBitmap(size, size, pixels);
    if (!bitmap) break;
    scaleCell(strip, index, size, pixels);
    ImageList_Add(images.get(), bitmap.get(), nullptr);
  }
  return images;
}

}  // namespace pelorin
