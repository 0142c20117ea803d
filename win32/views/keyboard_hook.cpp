#include "win32/views/keyboard_hook.h"

#include "win32/views/firewall.h"
#include "win32/views/form_window.h"

namespace pelorin {

namespace {

// An open menu, or a window being dragged, has the keyboard to itself.
bool keyboardIsTaken() {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  constexpr DWORD taken = GUI_INMENUMODE | GUI_POPUPMENUMODE | GUI_INMOVESIZE;
  return GetGUIThreadInfo(GetCurrentThreadId(), &info) != 0 && (info.flags & taken) != 0;
}

void exchange(MSG& message) {
  if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST) return;
  FormWindow* window = FormWindow::around(message.hwnd);
  if (window == nullptr || window->form() == nullptr || keyboardIsTaken()) return;
  message = window->takeKey(message);
}

// Menu loops look at a message before they take it: only the taking counts.
LRESULT CALLBACK messageTaken(int code, WPARAM w, LPARAM l) noexcept {
  if (code == HC_ACTION && (w & PM_REMOVE) != 0) {
    shielded(0, [l] {
      exchange(*reinterpret_cast<MSG*>(l));
      return 0;
    });
  }
  return CallNextHookEx(nullptr, code, w, l);
}

}  // namespace

KeyboardHook::KeyboardHook() noexcept
    : hook_(SetWindowsHookExW(WH_GETMESSAGE, &messageTaken, nullptr, GetCurrentThreadId())) {}

}  // namespace pelorin
