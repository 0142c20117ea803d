#include "controls/place.h"

#include <algorithm>

namespace pelorin {

namespace {

void follow(int& start, int& extent, bool near, bool far, int grown) noexcept {
  if (!far) return;
  if (near) {
    extent = std::max(0, extent + grown);
  } else {
    start += grown;
  }
}

}  // namespace

Place anchoredPlace(const DesignPlace& design, Size designed, Size now) noexcept {
  Place place = design.place();
  follow(place.left, place.width, holds(design.anchors, Anchor::Left),
         holds(design.anchors, Anchor::Right), now.width - designed.width);
  follow(place.top, place.height, holds(design.anchors, Anchor::Top),
         holds(design.anchors, Anchor::Bottom), now.height - designed.height);
  return place;
}

}  // namespace pelorin
