// Base of the program's own windows: a window class, and a procedure that no exception leaves.
#pragma once

#include <string>

#include "win32/text/windows_api.h"

namespace pelorin::host {

class Window {
 public:
  Window() = default;
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;
  virtual ~Window();

  HWND handle() const noexcept { return window_; }

 protected:
  struct Look {
    const wchar_t* className;
    const wchar_t* title;
    DWORD style;
    SIZE size;  // at 96 dots per inch
  };

  // RunTimeError when the window cannot be made.
  void create(const Look& look, HWND owner, HMENU menu);
  virtual LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) = 0;
  LRESULT unhandled(UINT message, WPARAM wParam, LPARAM lParam) const;

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam,
                                    LPARAM lParam) noexcept;
  static void registerClass(const wchar_t* name);

  HWND window_ = nullptr;
};

// A length at 96 dots per inch as it is on this screen.
int scaled(int length);

// The font of messages and controls, made once.
HFONT controlFont();

// A control with that font. RunTimeError when it cannot be made.
HWND makeControl(HWND parent, const wchar_t* className, const wchar_t* text, DWORD style,
                 int command);

inline constexpr wchar_t programTitle[] = L"Pelorin Host";

}  // namespace pelorin::host
