// Pages in front of each other, each a parent for its controls.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "controls/control.h"

namespace pelorin {

class TabControl : public Control {
 public:
  TabControl(Parent parent, std::string name, const DesignPlace& design,
             std::vector<std::string> captions);

  const std::vector<std::string>& captions() const noexcept { return captions_; }
  // For controls on the page; pages are numbered from 0.
  Parent page(int index) noexcept { return {*this, index}; }
  using Control::page;
  int tab() const noexcept { return tab_; }
  void setTab(int tab);
  // The operator brings a page to the front.
  void userSelect(int tab);

 private:
  std::vector<std::string> captions_;
  int tab_ = 0;
};

}  // namespace pelorin
