// Keeps widths in proportion to the client area.
#pragma once

#include <cstdint>

#include "controls/place.h"

namespace pelorin {

class MhStretch {
 public:
  explicit MhStretch(Size design) : design_(design), extents_(design) {}

  // The client area as it is now.
  void setExtents(Size client) noexcept { extents_ = client; }
  Size extents() const noexcept { return extents_; }

  // In design mode everything keeps its design width, so that nothing moves under the hand of an
  // operator who edits captions.
  void setDesignMode(bool on) noexcept { designMode_ = on; }

  int width(int designWidth) const noexcept {
    if (designMode_) return designWidth;
    return static_cast<int>(std::int64_t{designWidth} * extents_.width / design_.width);
  }

 private:
  Size design_;
  Size extents_;
  bool designMode_ = false;
};

}  // namespace pelorin
