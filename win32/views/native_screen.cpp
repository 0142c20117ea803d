#include "win32/views/native_screen.h"

#include <algorithm>
#include <utility>

#include "win32/views/message_boxes.h"

namespace pelorin {

namespace {

HWND handleOf(WindowHandle window) {
  return reinterpret_cast<HWND>(window);
}

HWND liveOrNone(WindowHandle window) {
  return window != 0 && IsWindow(handleOf(window)) ? handleOf(window) : nullptr;
}

void loadCommonControls() {
  INITCOMMONCONTROLSEX request{};
  request.dwSize = sizeof request;
  request.dwICC =
      ICC_STANDARD_CLASSES | ICC_LISTVIEW_CLASSES | ICC_TREEVIEW_CLASSES | ICC_TAB_CLASSES;
  InitCommonControlsEx(&request);
}

}  // namespace

NativeScreen::NativeScreen(HINSTANCE module) : ui_(module, acts()) {
  ui_.onFlush = [this] { flush(); };
  ui_.onIdle = [this] { idle(); };
  const ActivationContext::Scope styles(ui_.styles());
  loadCommonControls();
}

NativeScreen::~NativeScreen() {
  unloadAll();
  ui_.onFlush = nullptr;
  ui_.onIdle = nullptr;
  ui_.onRest = nullptr;
}

FormWindow* NativeScreen::find(const Form& form) const {
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [&](const auto& window) { return window->form() == &form; });
  return found == windows_.end() ? nullptr : found->get();
}

void NativeScreen::unloadLost() {
  for (Form* form : std::vector<Form*>(openForms())) {
    // A form may go with its owner; one that is being opened has no window yet.
    const FormWindow* window = find(*form);
    if (window != nullptr && IsWindow(window->hwnd()) == FALSE) unload(*form);
  }
}

WindowHandle NativeScreen::windowOf(const Form& form) const {
  const FormWindow* window = find(form);
  return window == nullptr ? 0 : reinterpret_cast<WindowHandle>(window->hwnd());
}

void NativeScreen::createWindow(Form& form, WindowHandle owner) {
  auto window = std::make_unique<FormWindow>(ui_, form, liveOrNone(owner));
  window->onDestroyed = [this](Form& gone) { unload(gone); };
  if (keyboard_ == nullptr) keyboard_ = std::make_unique<KeyboardHook>();
  windows_.push_back(std::move(window));
}

// A form without a window could never be closed again.
void NativeScreen::presentWindow(Form& form) {
  FormWindow* window = find(form);
  if (window == nullptr || window->hwnd() == nullptr) {
    unload(form);
  } else {
    window->present();
  }
}

void NativeScreen::raiseWindow(Form& form) {
  if (FormWindow* window = find(form)) window->raise();
}

void NativeScreen::changeOwner(Form& form, WindowHandle owner) {
  if (FormWindow* window = find(form)) window->setOwner(liveOrNone(owner));
}

// Else the system would pick a window by its order, of another application perhaps.
void NativeScreen::passActivation(Form& form, WindowHandle owner) {
  const HWND next = liveOrNone(owner);
  const bool active = windowOf(form) != 0 && handleOf(windowOf(form)) == GetActiveWindow();
  if (!active || next == nullptr) return;
  if (IsWindowVisible(next) && IsWindowEnabled(next)) SetActiveWindow(next);
}

// Inside one of our window procedures the window is only hidden: its controls may still be at work.
void NativeScreen::destroyWindow(Form& form) {
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [&](const auto& window) { return window->form() == &form; });
  if (found == windows_.end()) return;
  retiredWindows_.push_back(std::move(*found));
  windows_.erase(found);
  FormWindow& window = *retiredWindows_.back();
  window.retire();
  if (!ui_.insideWindowProcedure()) window.destroyWindow();
  if (windows_.empty()) keyboard_.reset();
  ui_.requestIdle();
}

void NativeScreen::flush() {
  // Counted, because a window can be added or go while one is brought up to date.
  for (std::size_t i = windows_.size(); i-- > 0;) {
    if (i < windows_.size()) windows_[i]->flush();
  }
}

void NativeScreen::idle() {
  std::exchange(retiredWindows_, {}).clear();
  collect();
}

bool NativeScreen::belongsToUs(HWND window) const {
  for (; window != nullptr; window = GetWindow(window, GW_OWNER)) {
    if (const FormWindow* found = FormWindow::of(window)) return found->form() != nullptr;
  }
  return false;
}

// The active window, which may itself be a box, if it is ours; else the host's; else any of ours.
HWND NativeScreen::boxOwner() const {
  const HWND active = GetActiveWindow();
  if (active != nullptr && belongsToUs(active) && IsWindowVisible(active)) return active;
  const auto seen = std::find_if(windows_.rbegin(), windows_.rend(), [](const auto& window) {
    return IsWindowVisible(window->hwnd());
  });
  const HWND host = liveOrNone(host_);
  const bool away = active == nullptr && seen != windows_.rend();
  if (host != nullptr && !away) return host;
  return seen == windows_.rend() ? nullptr : GetLastActivePopup((*seen)->hwnd());
}

BoxAnswer NativeScreen::messageBox(const BoxRequest& request) {
  std::vector<HWND> ours;
  for (const auto& window : windows_) ours.push_back(window->hwnd());
  return showMessageBox(ui_, request, boxOwner(), ours);
}

}  // namespace pelorin
