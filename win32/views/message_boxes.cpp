#include "win32/views/message_boxes.h"

#include "win32/text/utf16.h"

namespace pelorin {

namespace {

UINT flagsOf(const BoxRequest& request, bool hasOwner) {
  UINT flags = request.buttons == BoxButtons::YesNo ? MB_YESNO : MB_OK;
  if (request.icon == BoxIcon::Information) flags |= MB_ICONINFORMATION;
  if (request.icon == BoxIcon::Question) flags |= MB_ICONQUESTION;
  if (request.icon == BoxIcon::Critical) flags |= MB_ICONERROR;
  // Nothing but an owner keeps a box in front of the host.
  return hasOwner ? flags : flags | MB_SETFOREGROUND | MB_TOPMOST;
}

BoxAnswer answerOf(int result) {
  if (result == IDYES) return BoxAnswer::Yes;
  return result == IDOK ? BoxAnswer::Ok : BoxAnswer::No;
}

int show(const BoxRequest& request, HWND owner) {
  return MessageBoxW(owner, toWide(request.text).c_str(), L"Pelorin",
                     flagsOf(request, owner != nullptr));
}

// Takes input from windows, and gives it back to those that had it, last taken first.
class InputHeld {
 public:
  InputHeld(const std::vector<HWND>& windows, HWND except) {
    // Room first: whatever is held back must be given free.
    held_.reserve(windows.size());
    for (HWND window : windows) {
      if (window == except || !IsWindowEnabled(window)) continue;
      EnableWindow(window, FALSE);
      held_.push_back(window);
    }
  }
  InputHeld(const InputHeld&) = delete;
  InputHeld& operator=(const InputHeld&) = delete;
  ~InputHeld() {
    // The last one held back is the first to take input again.
    while (!held_.empty()) {
      if (IsWindow(held_.back())) EnableWindow(held_.back(), TRUE);
      held_.pop_back();
    }
  }

 private:
  std::vector<HWND> held_;
};

}  // namespace

// The box itself holds its owner back, and gives it free before it closes.
BoxAnswer showMessageBox(UiThread& ui, const BoxRequest& request, HWND owner,
                         const std::vector<HWND>& ours) {
  const UiThread::ModalScope modal(ui);
  const InputHeld held(ours, owner);
  return answerOf(show(request, owner));
}

void showLoneBox(const BoxRequest& request) {
  show(request, nullptr);
}

}  // namespace pelorin
