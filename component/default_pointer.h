// Leaves the screen with its default mouse pointer, whatever happened.
#pragma once

#include "controls/screen.h"

namespace pelorin {

class DefaultPointerAtEnd {
 public:
  explicit DefaultPointerAtEnd(Screen& screen) : screen_(screen) {}
  DefaultPointerAtEnd(const DefaultPointerAtEnd&) = delete;
  DefaultPointerAtEnd& operator=(const DefaultPointerAtEnd&) = delete;
  ~DefaultPointerAtEnd() { screen_.setMousePointer(MousePointer::Default); }

 private:
  Screen& screen_;
};

}  // namespace pelorin
