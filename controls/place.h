// Where a control stands, in twips (1/1440 inch), and how it follows the size of its container.
#pragma once

#include <cstdint>

namespace pelorin {

struct Size {
  int width = 0;
  int height = 0;
  bool operator==(const Size&) const = default;
};

// Relative to the container's client area.
struct Place {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool operator==(const Place&) const = default;
};
constexpr std::int64_t rightOf(const Place& place) noexcept {
  return std::int64_t{place.left} + place.width;
}
constexpr std::int64_t bottomOf(const Place& place) noexcept {
  return std::int64_t{place.top} + place.height;
}

constexpr Size sizeOf(const Place& place) noexcept {
  return {place.width, place.height};
}

// The sides of its container that a control keeps its distance from. Anchored to two opposite
// sides it grows and shrinks, anchored to the right or bottom alone it moves.
enum class Anchor : unsigned { Left = 1, Top = 2, Right = 4, Bottom = 8 };

constexpr Anchor operator|(Anchor one, Anchor other) noexcept {
  return static_cast<Anchor>(static_cast<unsigned>(one) | static_cast<unsigned>(other));
}
constexpr bool holds(Anchor anchors, Anchor side) noexcept {
  return (static_cast<unsigned>(anchors) & static_cast<unsigned>(side)) != 0;
}

// A place in the design, while the container has its design size.
struct DesignPlace {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  Anchor anchors = Anchor::Left | Anchor::Top;

  constexpr Place place() const noexcept { return {left, top, width, height}; }
  constexpr bool follows() const noexcept { return holds(anchors, Anchor::Right | Anchor::Bottom); }
};

// The place in a container that was `designed` large and is `now` large. No size is negative.
Place anchoredPlace(const DesignPlace& design, Size designed, Size now) noexcept;

}  // namespace pelorin
