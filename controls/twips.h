// Between twips (1/1440 inch) and pixels of some resolution. A size beyond any screen gives the
// widest that a window message can carry, never a wrong sign.
#pragma once

#include <algorithm>
#include <cstdint>

namespace pelorin {

inline constexpr int twipsPerInch = 1440;

namespace twips_detail {

// Rounded to the nearest, halves away from zero.
constexpr std::int64_t scaled(std::int64_t value, std::int64_t by, std::int64_t per) noexcept {
  const std::int64_t product = value * by;
  return (product + (product < 0 ? -per : per) / 2) / per;
}

}  // namespace twips_detail

constexpr int twipsToPixels(std::int64_t twips, int dpi) noexcept {
  constexpr std::int64_t farthest = 32767;
  return static_cast<int>(
      std::clamp(twips_detail::scaled(twips, dpi, twipsPerInch), -farthest, farthest));
}

constexpr int pixelsToTwips(std::int64_t pixels, int dpi) noexcept {
  constexpr std::int64_t farthest = 0x3FFFFFFF;
  return static_cast<int>(
      std::clamp(twips_detail::scaled(pixels, twipsPerInch, dpi), -farthest, farthest));
}

}  // namespace pelorin
