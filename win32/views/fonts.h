// The message font of the user's settings at one resolution, and what texts measure in it.
#pragma once

#include <string>

#include "win32/views/handles.h"

namespace pelorin {

class FontSet {
 public:
  explicit FontSet(int dpi);

  HFONT font(bool bold) const noexcept { return bold ? bold_.get() : normal_.get(); }
  int lineHeight() const noexcept { return lineHeight_; }
  // Width in pixels on one line; & marks a mnemonic unless `prefix` is false.
  int textWidth(const std::wstring& text, bool bold, bool prefix) const;

 private:
  Font normal_;
  Font bold_;
  int lineHeight_ = 0;
};

}  // namespace pelorin
