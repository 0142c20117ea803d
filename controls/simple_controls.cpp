#include "controls/simple_controls.h"

#include <utility>

namespace pelorin {

Label::Label(Parent parent, std::string name, const DesignPlace& design, std::string caption)
    : Control(parent, ControlKind::Label, std::move(name), design, std::move(caption)) {}

void Label::userClick() const {
  if (reachable() && onClick) onClick();
}

Frame::Frame(Parent parent, std::string name, const DesignPlace& design, std::string caption)
    : Control(parent, ControlKind::Frame, std::move(name), design, std::move(caption)) {}

Parent::Parent(Frame& frame) noexcept : Parent(frame, 0) {}

Button::Button(Parent parent, std::string name, const DesignPlace& design, std::string caption)
    : Control(parent, ControlKind::Button, std::move(name), design, std::move(caption)) {}

void Button::userClick() const {
  if (reachable() && onClick) onClick();
}

CheckBox::CheckBox(Parent parent, std::string name, const DesignPlace& design, std::string caption)
    : Control(parent, ControlKind::CheckBox, std::move(name), design, std::move(caption)) {}

void CheckBox::setChecked(bool checked) {
  if (checked == checked_) return;
  checked_ = checked;
  notify(Aspect::Checks);
  if (onClick) onClick();
}

void CheckBox::userToggle() {
  if (reachable()) setChecked(!checked_);
}

TextBox::TextBox(Parent parent, std::string name, const DesignPlace& design, std::string text)
    : Control(parent, ControlKind::TextBox, std::move(name), design, std::move(text)) {}

bool TextBox::userKey(char32_t key) const {
  if (!reachable()) return false;
  if (onKeyPress) onKeyPress(key);
  return key != 0;
}

void TextBox::userText(const std::string& text) {
  storeText(text);
}

void TextBox::userLeave() const {
  if (enabled() && onValidate) onValidate();
}

}  // namespace pelorin
