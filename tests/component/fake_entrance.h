// The way into the component as a test decides it.
#pragma once

#include <string>
#include <vector>

#include "base/run_time_error.h"
#include "component/entrance.h"

namespace pelorin::test {

// Lets calls in, unless they come from another thread than the component's.
class FakeEntrance final : public Entrance {
 public:
  explicit FakeEntrance(Component& component) : component_(component) {}

  Component& enter() override {
    if (otherThread) throw RunTimeError(-2147417842, "wrong thread");
    ++inside;
    return component_;
  }
  void leave() noexcept override { --inside; }
  void tell(const BoxRequest& box) noexcept override { told.push_back(box.text); }

  bool otherThread = false;
  int inside = 0;
  std::vector<std::string> told;

 private:
  Component& component_;
};

}  // namespace pelorin::test
