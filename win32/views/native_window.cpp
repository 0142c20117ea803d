#include "win32/views/native_window.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "base/run_time_error.h"
#include "win32/text/system_text.h"
#include "win32/text/utf16.h"
#include "win32/views/firewall.h"
#include "win32/views/windows_api.h"

namespace pelorin {

namespace {

constexpr UINT_PTR subclassId = 1;
constexpr std::int32_t outOfMemory = 7;

// Not every refusal comes with a reason.
RunTimeError refusedWindow(DWORD code) {
  const std::string text = code == ERROR_SUCCESS ? std::string() : systemText(code);
  if (text.empty()) return {outOfMemory, "Out of memory"};
  return {HRESULT_FROM_WIN32(code), text};
}

}  // namespace

NativeWindow::~NativeWindow() {
  detach();
}

// Leads from the window to its object. The procedure's address is this module's alone: a name
// without it would be shared with another copy of this code in the process and lead to that copy's
// object.
const wchar_t* NativeWindow::objectProperty() noexcept {
  struct Name {
    std::array<wchar_t, 48> text{};
    Name() noexcept {
      wsprintfW(text.data(), L"Pelorin.NativeWindow.%Ix", reinterpret_cast<UINT_PTR>(&procedure));
    }
  };
  static const Name name;
  return name.text.data();
}

NativeWindow* NativeWindow::of(HWND window) noexcept {
  return static_cast<NativeWindow*>(GetPropW(window, objectProperty()));
}

void NativeWindow::attach(HWND window) {
  if (window == nullptr) throw refusedWindow(GetLastError());
  hwnd_ = window;
  SetPropW(window, objectProperty(), this);
  SetWindowSubclass(window, &procedure, subclassId, reinterpret_cast<DWORD_PTR>(this));
}

void NativeWindow::detach() noexcept {
  const HWND window = std::exchange(hwnd_, nullptr);
  if (window == nullptr) return;
  RemovePropW(window, objectProperty());
  RemoveWindowSubclass(window, &procedure, subclassId);
}

void NativeWindow::destroy() noexcept {
  if (hwnd_ != nullptr) DestroyWindow(hwnd_);
}

LRESULT NativeWindow::native(UINT message, WPARAM w, LPARAM l) const noexcept {
  return hwnd_ == nullptr ? 0 : DefSubclassProc(hwnd_, message, w, l);
}

LRESULT NativeWindow::answerName(std::size_t capacity, wchar_t* buffer) const {
  if (buffer == nullptr || capacity == 0) return 0;
  const std::wstring name = toWide(designName());
  const std::size_t length = std::min(name.size(), capacity - 1);
  std::copy_n(name.begin(), length, buffer);
  buffer[length] = L'\0';
  return static_cast<LRESULT>(length + 1);
}

LRESULT NativeWindow::dispatch(UINT message, WPARAM w, LPARAM l) {
  if (message == ui_.controlNameMessage()) return answerName(w, reinterpret_cast<wchar_t*>(l));
  if (message == WM_SETCURSOR && ui_.showPointer()) return TRUE;
  return onMessage(message, w, l);
}

LRESULT CALLBACK NativeWindow::procedure(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR,
                                         DWORD_PTR selfAddress) noexcept {
  NativeWindow& self = *reinterpret_cast<NativeWindow*>(selfAddress);
  if (message == WM_NCDESTROY) {
    // Whoever destroyed the window: from here on there is none.
    self.detach();
    return DefSubclassProc(window, message, w, l);
  }
  return shielded(LRESULT{0}, [&] {
    const UiThread::Scope scope(self.ui_);
    return self.dispatch(message, w, l);
  });
}

}  // namespace pelorin
