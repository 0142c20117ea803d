#include "controls/tab_control.h"

#include <utility>

#include "base/run_time_error.h"

namespace pelorin {

TabControl::TabControl(Parent parent, std::string name, const DesignPlace& design,
                       std::vector<std::string> captions)
    : Control(parent, ControlKind::TabControl, std::move(name), design),
      captions_(std::move(captions)) {}

void TabControl::setTab(int tab) {
  if (tab < 0 || tab >= static_cast<int>(captions_.size())) {
    throw RunTimeError(error_number::invalidPropertyValue, "Invalid property value");
  }
  if (tab == tab_) return;
  tab_ = tab;
  notify(Aspect::Selection);
}

void TabControl::userSelect(int tab) {
  if (reachable()) setTab(tab);
}

}  // namespace pelorin
