#include "controls/control.h"

#include <utility>

#include "controls/form.h"
#include "controls/tab_control.h"

namespace pelorin {

Parent::Parent(Control& container, int page) noexcept
    : form_(container.form()), container_(&container), page_(page) {}

Control::Control(Parent parent, ControlKind kind, std::string name, const DesignPlace& design,
                 std::string text)
    : parent_(parent),
      kind_(kind),
      name_(std::move(name)),
      text_(std::move(text)),
      design_(design),
      place_(design.place()) {
  if (form() != nullptr) form()->registerControl(*this);
}

Control::~Control() {
  if (form() != nullptr) form()->forgetControl(*this);
}

void Control::notify(Aspect aspect, int index) const {
  if (view_ != nullptr) view_->modelChanged(Change{aspect, index});
}

void Control::setText(const std::string& text) {
  if (text == text_) return;
  text_ = text;
  notify(Aspect::Text);
}

void Control::setVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  notify(Aspect::Visible);
}

void Control::setEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  notify(Aspect::Enabled);
}

void Control::setCovered(bool covered) {
  if (covered == covered_) return;
  covered_ = covered;
  notify(Aspect::Enabled);
}

void Control::setPlace(const Place& place) {
  if (place == place_) return;
  place_ = place;
  notify(Aspect::Place);
}

void Control::setBold(bool bold) {
  if (bold == bold_) return;
  bold_ = bold;
  notify(Aspect::Bold);
}

bool Control::reachable() const noexcept {
  if (!visible_ || !enabled_ || covered_) return false;
  if (container() == nullptr) return true;
  if (container()->kind() == ControlKind::TabControl &&
      static_cast<const TabControl*>(container())->tab() != page()) {
    return false;
  }
  return container()->reachable();
}

}  // namespace pelorin
