#include "controls/screen.h"

#include <algorithm>
#include <utility>

#include "base/flag_while.h"

namespace pelorin {

namespace {

class Running {
 public:
  explicit Running(int& count) noexcept : count_(count) { ++count_; }
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;
  ~Running() { --count_; }

 private:
  int& count_;
};

}  // namespace

void Screen::show(Form& form, WindowHandle owner) {
  if (form.isOpen()) {
    raiseWindow(form);
    return;
  }
  load(form, owner);
}

void Screen::load(Form& form, WindowHandle owner) {
  const Running running(running_);
  form.screen_ = this;
  form.focused_ = nullptr;
  open_.push_back(&form);
  owners_.push_back(Owned{&form, owner});
  createWindow(form, owner);
  form.Form_Load();
  // A box shown while loading lets the host run; it may have closed the window meanwhile.
  if (form.isOpen()) presentWindow(form);
}

Screen::Owned* Screen::entryOf(const Form& form) {
  const auto found = std::find_if(owners_.begin(), owners_.end(),
                                  [&form](const Owned& owned) { return owned.form == &form; });
  return found == owners_.end() ? nullptr : &*found;
}

// A form that is just being unloaded does not count: its own turn has come.
Form* Screen::lastOwnedBy(const Form& form) const {
  const WindowHandle window = windowOf(form);
  if (window == 0) return nullptr;
  const auto owned = std::find_if(owners_.rbegin(), owners_.rend(), [window](const Owned& o) {
    return (o.owner == window || o.form->leader() == window) && !o.form->unloading_;
  });
  return owned == owners_.rend() ? nullptr : owned->form;
}

Form* Screen::innermostOwnedBy(const Form& form) const {
  Form* innermost = nullptr;
  for (Form* next = lastOwnedBy(form); next != nullptr; next = lastOwnedBy(*next)) {
    innermost = next;
  }
  return innermost;
}

void Screen::unload(Form& form) {
  if (form.screen_ != this || form.unloading_) return;
  const Running running(running_);
  {
    const FlagWhile unloading(form.unloading_);
    while (Form* owned = lastOwnedBy(form)) unload(*owned);
    // Form_Unload may give the owner back.
    const WindowHandle owner = entryOf(form)->owner;
    form.Form_Unload();
    passActivation(form, owner);
    std::erase(open_, &form);
    std::erase_if(owners_, [&form](const Owned& owned) { return owned.form == &form; });
    destroyWindow(form);
    form.screen_ = nullptr;
    form.view_ = nullptr;
  }
  const std::function<void()> unloaded = form.onUnloaded;
  if (unloaded) unloaded();
}

void Screen::unloadAll() {
  const std::vector<Form*> open = open_;
  for (Form* form : open) {
    if (std::find(open_.begin(), open_.end(), form) != open_.end()) unload(*form);
  }
}

WindowHandle Screen::setOwner(Form& form, WindowHandle owner) {
  Owned* entry = entryOf(form);
  if (entry == nullptr) return 0;
  const WindowHandle previous = std::exchange(entry->owner, owner);
  changeOwner(form, owner);
  return previous;
}

void Screen::collect() noexcept {
  if (running_ == 0) retired_.clear();
}

void Screen::retire(std::unique_ptr<Form> form) {
  retired_.push_back(std::move(form));
}

}  // namespace pelorin
