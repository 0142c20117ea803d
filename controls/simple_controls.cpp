#include "controls/simple_controls.h"

#include <utility>

namespace pelorin {

Label::Label(std::string name, Place place, std::string caption)
    : Control(ControlKind::Label, std::move(name), place, std::move(caption)) {}

void Label::userClick() const {
  if (reachable() && onClick) onClick();
}

Frame::Frame(std::string name, Place place, std::string caption)
    : Control(ControlKind::Frame, std::move(name), place, std::move(caption)) {}

Button::Button(std::string name, Place place, std::string caption)
    : Control(ControlKind::Button, std::move(name), place, std::move(caption)) {}

void Button::userClick() const {
  if (reachable() && onClick) onClick();
}

CheckBox::CheckBox(std::string name, Place place, std::string caption)
    : Control(ControlKind::CheckBox, std::move(name), place, std::move(caption)) {}

void CheckBox::setChecked(bool checked) {
  if (checked == checked_) return;
  checked_ = checked;
  notify(Aspect::Checks);
  if (onClick) onClick();
}

void CheckBox::userToggle() {
  if (reachable()) setChecked(!checked_);
}

TextBox::TextBox(std::string name, Place place, std::string text)
    : Control(ControlKind::TextBox, std::move(name), place, std::move(text)) {}

bool TextBox::userKey(char32_t key) const {
  if (!reachable()) return false;
  if (onKeyPress) onKeyPress(key);
  return key != 0;
}

void TextBox::userText(const std::string& text) {
  storeText(text);
}

void TextBox::userType(const std::string& ascii) {
  for (char c : ascii) {
    if (userKey(static_cast<unsigned char>(c))) setText(text() + c);
  }
}

void TextBox::userLeave() const {
  if (enabled() && onValidate) onValidate();
}

}  // namespace pelorin
