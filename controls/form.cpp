#include "controls/form.h"

#include <algorithm>
#include <utility>

#include "controls/screen.h"

namespace pelorin {

namespace {

// In twips, more than any screen has: laying controls out can add and scale without overflow.
constexpr int largestClient = 1000000;

}  // namespace

Form::Form(std::string name, std::string caption, Size client)
    : name_(std::move(name)), caption_(std::move(caption)), designed_(client), client_(client) {}

void Form::setCaption(const std::string& caption) {
  if (caption == caption_) return;
  caption_ = caption;
  if (view_ != nullptr) view_->captionChanged();
}

void Form::registerControl(Control& control) {
  controls_.push_back(&control);
}

void Form::forgetControl(const Control& control) noexcept {
  std::erase(controls_, &control);
  if (focused_ == &control) focused_ = nullptr;
  if (defaultButton_ == &control) defaultButton_ = nullptr;
  if (cancelButton_ == &control) cancelButton_ = nullptr;
}

void Form::setResizable(Size smallest, Size followed) {
  resizable_ = true;
  smallest_ = smallest;
  followed_ = followed;
}

// A container stands before what it contains, so that its new size is known by then.
void Form::placeAnchored() {
  const Size now{std::max(client_.width, followed_.width),
                 std::max(client_.height, followed_.height)};
  for (Control* control : controls_) {
    const DesignPlace& design = control->design();
    if (!design.follows()) continue;
    const Control* container = control->container();
    control->setPlace(container == nullptr
                          ? anchoredPlace(design, designed_, now)
                          : anchoredPlace(design, sizeOf(container->design().place()),
                                          sizeOf(container->place())));
  }
}

Control* Form::find(std::string_view controlName) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const Control* c) { return c->name() == controlName; });
  return found == controls_.end() ? nullptr : *found;
}

WindowHandle Form::hwnd() const {
  return screen_ == nullptr ? 0 : screen_->windowOf(*this);
}

void Form::unload() {
  if (screen_ != nullptr) screen_->unload(*this);
}

bool Form::Form_KeyDown(int) {
  return false;
}

void Form::userFocus(Control* control) {
  if (control == focused_) return;
  Control* left = std::exchange(focused_, control);
  if (left != nullptr && left->kind() == ControlKind::TextBox) {
    static_cast<TextBox*>(left)->userLeave();
  }
  if (view_ != nullptr) view_->focusMoved();
}

void Form::userPress(Button& button) {
  if (!button.reachable()) return;
  userFocus(&button);
  button.userClick();
}

void Form::userEnter() {
  if (focused_ != nullptr && focused_->kind() == ControlKind::Button) {
    static_cast<Button*>(focused_)->userClick();
  } else if (defaultButton_ != nullptr) {
    userPress(*defaultButton_);
  }
}

void Form::userKeyDown(int keyCode) {
  if (Form_KeyDown(keyCode)) return;
  if (keyCode == key_code::enter) {
    userEnter();
  } else if (keyCode == key_code::escape && cancelButton_ != nullptr) {
    cancelButton_->userClick();
  }
}

void Form::userClose() {
  if (closeIsCancel_ && cancelButton_ != nullptr) {
    cancelButton_->userClick();
  } else {
    unload();
  }
}

void Form::userResize(Size client) {
  const Size possible{std::clamp(client.width, 0, largestClient),
                      std::clamp(client.height, 0, largestClient)};
  if (possible == client_) return;
  client_ = possible;
  placeAnchored();
  Form_Resize();
}

}  // namespace pelorin
