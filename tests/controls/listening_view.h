// A view that writes down what it is told.
#pragma once

#include <vector>

#include "controls/control.h"

namespace pelorin::test {

class ListeningView : public ControlView {
 public:
  explicit ListeningView(Control& control) : control_(control) { control.setView(this); }
  ListeningView(const ListeningView&) = delete;
  ListeningView& operator=(const ListeningView&) = delete;
  virtual ~ListeningView() { control_.setView(nullptr); }

  void modelChanged(const Change& change) override { changes.push_back(change); }
  bool heard(Aspect aspect, int index = -1) const {
    for (const Change& change : changes) {
      if (change.aspect == aspect && change.index == index) return true;
    }
    return false;
  }

  std::vector<Change> changes;

 private:
  Control& control_;
};

}  // namespace pelorin::test
