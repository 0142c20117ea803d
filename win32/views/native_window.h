// A window of ours: its messages pass through here before the system's own procedure sees them.
#pragma once

#include <string>

#include "win32/views/ui_thread.h"
#include "win32/views/windows_api.h"

namespace pelorin {

class NativeWindow {
 public:
  explicit NativeWindow(UiThread& ui) noexcept : ui_(ui) {}
  NativeWindow(const NativeWindow&) = delete;
  NativeWindow& operator=(const NativeWindow&) = delete;
  virtual ~NativeWindow();

  // Null before it is made and after it is destroyed, by whomever.
  HWND hwnd() const noexcept { return hwnd_; }
  // Null when the window is none of this module's.
  static NativeWindow* of(HWND window) noexcept;

 protected:
  UiThread& ui() const noexcept { return ui_; }
  // Null is a window that the system refused to make: throws its error.
  void attach(HWND window);
  void destroy() noexcept;
  // Answered to the message WM_GETCONTROLNAME.
  virtual std::string designName() const = 0;
  virtual LRESULT onMessage(UINT message, WPARAM w, LPARAM l) { return native(message, w, l); }
  // What the system's own procedure makes of the message.
  LRESULT native(UINT message, WPARAM w, LPARAM l) const noexcept;

 private:
  static const wchar_t* objectProperty() noexcept;
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR id,
                                    DWORD_PTR self) noexcept;
  LRESULT dispatch(UINT message, WPARAM w, LPARAM l);
  LRESULT answerName(std::size_t capacity, wchar_t* buffer) const;
  void detach() noexcept;

  UiThread& ui_;
  HWND hwnd_ = nullptr;
};

}  // namespace pelorin
