// Pages in front of each other. A page's controls name the tab control as container and their page.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "controls/control.h"

namespace pelorin {

class TabControl : public Control {
 public:
  TabControl(std::string name, Place place, std::vector<std::string> captions);

  const std::vector<std::string>& captions() const noexcept { return captions_; }
  int tab() const noexcept { return tab_; }
  void setTab(int tab);
  // The operator brings a page to the front.
  void userSelect(int tab);

 private:
  std::vector<std::string> captions_;
  int tab_ = 0;
};

}  // namespace pelorin
