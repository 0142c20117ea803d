#include "tests/windows/journey/box_look.h"

#include <cstdint>
#include <vector>

#include "driver/find_window.h"

namespace pelorin::test {

namespace {

using Pixels = std::vector<std::uint32_t>;

// Icons are compared as they are drawn: a box need not hold the handle that others get.
Pixels drawn(HICON icon) {
  constexpr int size = 32;
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader, size, size, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  const HDC canvas = CreateCompatibleDC(nullptr);
  const HGDIOBJ before = SelectObject(canvas, bitmap);
  DrawIconEx(canvas, 0, 0, icon, size, size, 0, nullptr, DI_NORMAL);
  GdiFlush();
  const auto* first = static_cast<const std::uint32_t*>(bits);
  Pixels pixels(first, first + std::size_t{size} * size);
  SelectObject(canvas, before);
  DeleteDC(canvas);
  DeleteObject(bitmap);
  return pixels;
}

HICON iconOf(HWND box) {
  for (HWND part = GetWindow(box, GW_CHILD); part != nullptr; part = GetWindow(part, GW_HWNDNEXT)) {
    const LONG kind = GetWindowLongW(part, GWL_STYLE) & SS_TYPEMASK;
    if (driver::classOf(part) != L"Static" || kind != SS_ICON) continue;
    return reinterpret_cast<HICON>(SendMessageW(part, STM_GETICON, 0, 0));
  }
  return nullptr;
}

struct KnownIcon {
  const char* name;
  LPWSTR id;
};

std::string iconName(HICON icon) {
  if (icon == nullptr) return "none";
  const KnownIcon known[] = {{"critical", IDI_HAND},
                             {"question", IDI_QUESTION},
                             {"warning", IDI_EXCLAMATION},
                             {"information", IDI_ASTERISK}};
  const Pixels shown = drawn(icon);
  for (const KnownIcon& one : known) {
    if (drawn(LoadIconW(nullptr, one.id)) == shown) return one.name;
  }
  return "unknown";
}

std::string buttonName(int id) {
  switch (id) {
    case IDOK:
      return "OK";
    case IDYES:
      return "Yes";
    case IDNO:
      return "No";
    default:
      return "button " + std::to_string(id);
  }
}

}  // namespace

std::string boxLook(HWND box) {
  std::string look = iconName(iconOf(box)) + ":";
  for (HWND part = GetWindow(box, GW_CHILD); part != nullptr; part = GetWindow(part, GW_HWNDNEXT)) {
    if (driver::classOf(part) != L"Button" || !IsWindowVisible(part)) continue;
    const bool isDefault = (GetWindowLongW(part, GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
    look += " " + buttonName(GetDlgCtrlID(part)) + (isDefault ? "*" : "");
  }
  return look;
}

}  // namespace pelorin::test
