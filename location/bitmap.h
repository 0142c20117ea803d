// Reads Windows bitmap files, as far as they are not compressed.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace pelorin {

struct Bitmap {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;  // 0xAARRGGBB, top row first

  std::uint32_t at(int x, int y) const {
    return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                  static_cast<std::size_t>(x)];
  }
};

// Reads an uncompressed bitmap file of 1, 4, 8, 24 or 32 bits, in either direction. Where a 32-bit
// file uses its fourth byte it is alpha, everything else is opaque. Error 481 for anything else and
// for a file that is damaged or cut short.
Bitmap readBitmap(std::string_view content);

}  // namespace pelorin
