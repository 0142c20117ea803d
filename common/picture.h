// A picture in memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace pelorin {

struct Picture {
  int width = 0;
  int height = 0;
  // 0xAARRGGBB with straight alpha, top row first; all opaque in a picture without alpha.
  std::vector<std::uint32_t> pixels;

  std::uint32_t at(int x, int y) const {
    return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                  static_cast<std::size_t>(x)];
  }
};

}  // namespace pelorin
