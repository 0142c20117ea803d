// An act is what the operator or the host does at once, with all that it causes: a click, a key, a
// call. What happens inside an act, such as a call of the host while a box is open, belongs to it.
#pragma once

#include <functional>

namespace pelorin {

class Acts {
 public:
  // Called when the outermost act has ended; what it does is an act of its own. Lets no error out.
  std::function<void()> onEnded;

 private:
  friend class Act;
  int depth_ = 0;
};

// Stands at each entrance of the component while it is in use.
class Act {
 public:
  explicit Act(Acts& acts) noexcept : acts_(acts) { ++acts_.depth_; }
  Act(const Act&) = delete;
  Act& operator=(const Act&) = delete;
  ~Act() {
    if (--acts_.depth_ == 0 && acts_.onEnded) acts_.onEnded();
  }

 private:
  Acts& acts_;
};

}  // namespace pelorin
