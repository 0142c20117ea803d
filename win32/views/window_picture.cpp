#include "win32/views/window_picture.h"

#include <fstream>
#include <vector>

#include "win32/views/handles.h"

namespace pelorin {

namespace {

// What a window shows with its frame and its children, also where another window covers it.
class WholeWindowDc {
 public:
  explicit WholeWindowDc(HWND window) noexcept
      : window_(window), dc_(GetDCEx(window, nullptr, DCX_WINDOW | DCX_CACHE)) {}
  WholeWindowDc(const WholeWindowDc&) = delete;
  WholeWindowDc& operator=(const WholeWindowDc&) = delete;
  ~WholeWindowDc() { ReleaseDC(window_, dc_); }
  HDC get() const noexcept { return dc_; }

 private:
  HWND window_;
  HDC dc_;
};

BITMAPINFO describe(LONG width, LONG height) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 24;
  info.bmiHeader.biCompression = BI_RGB;
  return info;
}

std::vector<char> pixelsOf(HDC dc, HBITMAP bitmap, BITMAPINFO& info) {
  const LONG stride = (info.bmiHeader.biWidth * 3 + 3) / 4 * 4;
  std::vector<char> pixels(static_cast<std::size_t>(stride * info.bmiHeader.biHeight));
  info.bmiHeader.biSizeImage = static_cast<DWORD>(pixels.size());
  const int rows = GetDIBits(dc, bitmap, 0, static_cast<UINT>(info.bmiHeader.biHeight),
                             pixels.data(), &info, DIB_RGB_COLORS);
  if (rows != info.bmiHeader.biHeight) pixels.clear();
  return pixels;
}

bool write(const std::filesystem::path& file, const BITMAPINFO& info,
           const std::vector<char>& pixels) {
  BITMAPFILEHEADER header{};
  header.bfType = 0x4D42;
  header.bfOffBits = sizeof header + sizeof info.bmiHeader;
  header.bfSize = header.bfOffBits + static_cast<DWORD>(pixels.size());
  std::ofstream out(file, std::ios::binary);
  out.write(reinterpret_cast<const char*>(&header), sizeof header);
  out.write(reinterpret_cast<const char*>(&info.bmiHeader), sizeof info.bmiHeader);
  out.write(pixels.data(), static_cast<std::streamsize>(pixels.size()));
  return out.good();
}

}  // namespace

bool saveWindowPicture(HWND window, const std::filesystem::path& file) {
  RECT bounds{};
  if (GetWindowRect(window, &bounds) == 0 || IsRectEmpty(&bounds)) return false;
  BITMAPINFO info = describe(bounds.right - bounds.left, bounds.bottom - bounds.top);
  // Asking the controls to print themselves leaves out those that do not know how.
  RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  const WholeWindowDc shown(window);
  const LONG width = info.bmiHeader.biWidth;
  const LONG height = info.bmiHeader.biHeight;
  const MemoryDc memory(CreateCompatibleDC(shown.get()));
  const Bitmap bitmap(CreateCompatibleBitmap(shown.get(), width, height));
  {
    const Selected selected(memory.get(), bitmap.get());
    if (BitBlt(memory.get(), 0, 0, width, height, shown.get(), 0, 0, SRCCOPY) == 0) return false;
  }
  const std::vector<char> pixels = pixelsOf(memory.get(), bitmap.get(), info);
  return !pixels.empty() && write(file, info, pixels);
}

}  // namespace pelorin
