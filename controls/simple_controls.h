// The controls that hold one value: label, frame, button, check box and text box.
#pragma once

#include <functional>
#include <string>

#include "controls/control.h"

namespace pelorin {

class Label : public Control {
 public:
  Label(Parent parent, std::string name, const DesignPlace& design, std::string caption);

  // False shows "&" as it stands (a label that carries data, not a caption).
  bool useMnemonic() const noexcept { return useMnemonic_; }
  void setUseMnemonic(bool use) noexcept { useMnemonic_ = use; }

  std::function<void()> onClick;
  void userClick() const;

 private:
  bool useMnemonic_ = true;
};

class Frame : public Control {
 public:
  Frame(Parent parent, std::string name, const DesignPlace& design, std::string caption);
};

class Button : public Control {
 public:
  Button(Parent parent, std::string name, const DesignPlace& design, std::string caption);

  std::function<void()> onClick;
  // Does nothing on a button that cannot be reached.
  void userClick() const;
};

class CheckBox : public Control {
 public:
  CheckBox(Parent parent, std::string name, const DesignPlace& design, std::string caption);

  bool checked() const noexcept { return checked_; }
  // Raises the click when the state really changes.
  void setChecked(bool checked);

  std::function<void()> onClick;
  void userToggle();

 private:
  bool checked_ = false;
};

class TextBox : public Control {
 public:
  TextBox(Parent parent, std::string name, const DesignPlace& design, std::string text = {});

  // Key code of a typed character (Unicode); the handler sets it to 0 to discard the key.
  std::function<void(char32_t& key)> onKeyPress;
  // Focus leaves the box, unless it is disabled, for another control of the form.
  std::function<void()> onValidate;

  // The operator's acts. userKey tells whether the key is kept; the caller then applies it.
  bool userKey(char32_t key) const;
  // The view reports what the box holds now; nothing is echoed back to the view.
  void userText(const std::string& text);
  void userLeave() const;
};

}  // namespace pelorin
