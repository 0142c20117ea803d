// One owner per kind of Windows handle; nothing is released by hand.
#pragma once

#include <utility>

#include "win32/views/windows_api.h"

namespace pelorin {

// `Close` is a type with a static close(Handle).
template <class Handle, class Close>
class OwnedHandle {
 public:
  OwnedHandle() noexcept = default;
  explicit OwnedHandle(Handle handle) noexcept : handle_(handle) {}
  OwnedHandle(OwnedHandle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  OwnedHandle& operator=(OwnedHandle&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  OwnedHandle(const OwnedHandle&) = delete;
  OwnedHandle& operator=(const OwnedHandle&) = delete;
  ~OwnedHandle() { reset(); }

  Handle get() const noexcept { return handle_; }
  explicit operator bool() const noexcept { return handle_ != nullptr; }
  void reset() noexcept {
    if (handle_ != nullptr) Close::close(std::exchange(handle_, nullptr));
  }

 private:
  Handle handle_ = nullptr;
};

struct CloseGdi {
  static void close(HGDIOBJ object) noexcept { DeleteObject(object); }
};
struct CloseImageList {
  static void close(HIMAGELIST list) noexcept { ImageList_Destroy(list); }
};
struct CloseHook {
  static void close(HHOOK hook) noexcept { UnhookWindowsHookEx(hook); }
};
struct CloseMenu {
  static void close(HMENU menu) noexcept { DestroyMenu(menu); }
};

using Font = OwnedHandle<HFONT, CloseGdi>;
using Bitmap = OwnedHandle<HBITMAP, CloseGdi>;
using ImageList = OwnedHandle<HIMAGELIST, CloseImageList>;
using Hook = OwnedHandle<HHOOK, CloseHook>;
using Menu = OwnedHandle<HMENU, CloseMenu>;

// The device context of a window, or of the screen for null.
class WindowDc {
 public:
  explicit WindowDc(HWND window) noexcept : window_(window), dc_(GetDC(window)) {}
  WindowDc(const WindowDc&) = delete;
  WindowDc& operator=(const WindowDc&) = delete;
  ~WindowDc() { ReleaseDC(window_, dc_); }
  HDC get() const noexcept { return dc_; }

 private:
  HWND window_;
  HDC dc_;
};

// An object selected into a device context for as long as this lives.
class Selected {
 public:
  Selected(HDC dc, HGDIOBJ object) noexcept : dc_(dc), before_(SelectObject(dc, object)) {}
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;
  ~Selected() { SelectObject(dc_, before_); }

 private:
  HDC dc_;
  HGDIOBJ before_;
};

}  // namespace pelorin
