#include "driver/picture.h"

#include <gdiplus.h>

#include <cstdint>
#include <optional>
#include <vector>

#include "driver/find_window.h"
#include "driver/waiting.h"
#include "win32/text/utf16.h"
#include "win32/text/windows_api.h"

namespace pelorin::driver {

namespace {

constexpr CLSID pngEncoder = {
    0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

// Top row first, four bytes for each pixel.
struct Pixels {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> dots;

  bool operator==(const Pixels&) const = default;
};

class Drawing {
 public:
  Drawing() {
    const Gdiplus::GdiplusStartupInput input;
    if (Gdiplus::GdiplusStartup(&token_, &input, nullptr) != Gdiplus::Ok) {
      throw DriverError("pictures cannot be saved on this machine");
    }
  }
  Drawing(const Drawing&) = delete;
  Drawing& operator=(const Drawing&) = delete;
  ~Drawing() { Gdiplus::GdiplusShutdown(token_); }

 private:
  ULONG_PTR token_ = 0;
};

HBITMAP makeBitmap(HDC memory, int width, int height, void*& dots) {
  BITMAPINFO description{};
  description.bmiHeader.biSize = sizeof description.bmiHeader;
  description.bmiHeader.biWidth = width;
  description.bmiHeader.biHeight = -height;
  description.bmiHeader.biPlanes = 1;
  description.bmiHeader.biBitCount = 32;
  return CreateDIBSection(memory, &description, DIB_RGB_COLORS, &dots, nullptr, 0);
}

class ScreenCopy {
 public:
  ScreenCopy(int width, int height)
      : screen_(GetDC(nullptr)),
        memory_(CreateCompatibleDC(screen_)),
        bitmap_(makeBitmap(memory_, width, height, dots_)),
        previous_(SelectObject(memory_, bitmap_)) {}
  ScreenCopy(const ScreenCopy&) = delete;
  ScreenCopy& operator=(const ScreenCopy&) = delete;
  ~ScreenCopy() {
    SelectObject(memory_, previous_);
    DeleteObject(bitmap_);
    DeleteDC(memory_);
    ReleaseDC(nullptr, screen_);
  }

  std::vector<std::uint32_t> copy(const RECT& area) const {
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    BitBlt(memory_, 0, 0, width, height, screen_, area.left, area.top, SRCCOPY);
    GdiFlush();
    const auto* first = static_cast<const std::uint32_t*>(dots_);
    std::vector<std::uint32_t> dots(first, first + static_cast<std::ptrdiff_t>(width) * height);
    constexpr std::uint32_t opaque = 0xFF000000;
    for (std::uint32_t& dot : dots) dot |= opaque;
    return dots;
  }

 private:
  void* dots_ = nullptr;
  HDC screen_;
  HDC memory_;
  HBITMAP bitmap_;
  HGDIOBJ previous_;
};

Pixels pixelsOf(HWND window) {
  RECT area{};
  GetWindowRect(window, &area);
  Pixels pixels{.width = area.right - area.left, .height = area.bottom - area.top, .dots = {}};
  pixels.dots = ScreenCopy(pixels.width, pixels.height).copy(area);
  return pixels;
}

// A window that has just come up is drawn piece by piece: two looks in a row have to agree.
Pixels steadyPixels(HWND window) {
  constexpr DWORD betweenLooks = 80;
  Pixels before = pixelsOf(window);
  return *waitFor("steady picture", [&]() -> std::optional<Pixels> {
    Sleep(betweenLooks);
    Pixels now = pixelsOf(window);
    if (now == before) return now;
    before = std::move(now);
    return std::nullopt;
  });
}

}  // namespace

void savePicture(HWND window, const std::wstring& file) {
  SetForegroundWindow(window);
  SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  RedrawWindow(window, nullptr, nullptr,
               RDW_INVALIDATE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
  Pixels pixels = steadyPixels(window);
  const Drawing drawing;
  const int bytesPerRow = pixels.width * 4;
  Gdiplus::Bitmap bitmap(pixels.width, pixels.height, bytesPerRow, PixelFormat32bppARGB,
                         reinterpret_cast<BYTE*>(pixels.dots.data()));
  if (bitmap.Save(file.c_str(), &pngEncoder, nullptr) != Gdiplus::Ok) {
    throw DriverError("cannot write " + toUtf8(file));
  }
}

}  // namespace pelorin::driver
