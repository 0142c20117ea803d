// What a control stands on: a form, a frame, or a page of a tab control. It is the first thing a
// control is told; the control registers itself with the form, so that the order in which a form's
// members are declared is its tab order. A parent outlives what stands on it.
#pragma once

namespace pelorin {

class Control;
class Form;
class Frame;
class TabControl;

class Parent {
 public:
  constexpr Parent() noexcept = default;
  Parent(Form& form) noexcept : form_(&form) {}
  Parent(Frame& frame) noexcept;

  Form* form() const noexcept { return form_; }
  // Null for the form itself.
  Control* container() const noexcept { return container_; }
  int page() const noexcept { return page_; }

 private:
  friend class TabControl;
  Parent(Control& container, int page) noexcept;

  Form* form_ = nullptr;
  Control* container_ = nullptr;
  int page_ = 0;
};

// Of a control that stands by itself, on no form.
inline constexpr Parent noParent{};

}  // namespace pelorin
