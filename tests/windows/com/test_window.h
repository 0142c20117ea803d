// A plain window of this process, as a host would have one.
#pragma once

#include <windows.h>

namespace pelorin::test {

class TestWindow {
 public:
  TestWindow()
      : window_(CreateWindowW(L"STATIC", L"host", WS_OVERLAPPEDWINDOW, 0, 0, 200, 100, nullptr,
                              nullptr, nullptr, nullptr)) {}
  TestWindow(const TestWindow&) = delete;
  TestWindow& operator=(const TestWindow&) = delete;
  ~TestWindow() { destroy(); }

  HWND get() const noexcept { return window_; }
  HWND makeChild() const {
    return CreateWindowW(L"STATIC", L"child", WS_CHILD, 0, 0, 10, 10, window_, nullptr, nullptr,
                         nullptr);
  }
  void destroy() noexcept {
    if (window_ != nullptr) DestroyWindow(window_);
    window_ = nullptr;
  }

 private:
  HWND window_;
};

}  // namespace pelorin::test
