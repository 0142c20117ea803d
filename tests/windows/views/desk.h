// A host with a message loop, a window of its own and the native screen, for tests on real windows.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "driver/find_window.h"
#include "win32/views/native_screen.h"

namespace pelorin::test {

using driver::classOf;
using driver::isShown;
using driver::textOf;

class Desk : public ::testing::Test {
 protected:
  Desk();
  ~Desk() override;

  NativeScreen& screen() { return *screen_; }
  HWND host() const { return host_; }
  WindowHandle hostHandle() const { return reinterpret_cast<WindowHandle>(host_); }
  void destroyHost();

  // Handles messages until none is left.
  void pump();
  // Handles messages until the condition holds; false when it does not in a few seconds.
  bool pumpUntil(const std::function<bool()>& condition);

  void open(Form& form);
  HWND windowOf(const Form& form) const;
  // The window of the control, found by the name that it answers.
  HWND find(const Form& form, const std::string& controlName) const;

  // As typed and clicked by an operator: through the input queue.
  void press(WORD key, const std::vector<WORD>& held = {});
  void type(const std::wstring& text);
  void click(HWND window, POINT at);
  void clickMiddle(HWND window);
  HWND focus() const { return GetFocus(); }
  std::string focusName() const;

 private:
  std::unique_ptr<NativeScreen> screen_;
  HWND host_ = nullptr;
};

// Of the calling thread, seen or not.
std::vector<HWND> topLevelWindows();
// Fonts, bitmaps, regions and the like that this process holds.
int gdiObjects();

}  // namespace pelorin::test
