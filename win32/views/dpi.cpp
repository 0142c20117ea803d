#include "win32/views/dpi.h"

#include "win32/views/handles.h"

namespace pelorin {

namespace {

// Functions that the oldest supported Windows lacks.
template <class Function>
Function userFunction(const char* name) noexcept {
  const FARPROC found = GetProcAddress(GetModuleHandleW(L"user32.dll"), name);
  return reinterpret_cast<Function>(reinterpret_cast<void*>(found));
}

using GetDpiForWindowFunction = UINT(WINAPI*)(HWND);
using AdjustForDpiFunction = BOOL(WINAPI*)(LPRECT, DWORD, BOOL, DWORD, UINT);
using ParametersForDpiFunction = BOOL(WINAPI*)(UINT, UINT, PVOID, UINT, UINT);

using DialogScalingFunction = BOOL(WINAPI*)(HWND, int, int);

int systemDpi() noexcept {
  const WindowDc screen(nullptr);
  return GetDeviceCaps(screen.get(), LOGPIXELSX);
}

}  // namespace

int dpiOf(HWND window) noexcept {
  const auto ask = userFunction<GetDpiForWindowFunction>("GetDpiForWindow");
  const UINT dpi = ask == nullptr ? 0 : ask(window);
  return dpi != 0 ? static_cast<int>(dpi) : systemDpi();
}

RECT outerRect(RECT client, DWORD style, DWORD extendedStyle, int dpi) noexcept {
  const auto adjust = userFunction<AdjustForDpiFunction>("AdjustWindowRectExForDpi");
  if (adjust != nullptr) {
    adjust(&client, style, FALSE, extendedStyle, static_cast<UINT>(dpi));
  } else {
    AdjustWindowRectEx(&client, style, FALSE, extendedStyle);
  }
  return client;
}

bool nonClientMetrics(NONCLIENTMETRICSW& metrics, int dpi) noexcept {
  metrics = {};
  metrics.cbSize = sizeof metrics;
  const auto ask = userFunction<ParametersForDpiFunction>("SystemParametersInfoForDpi");
  if (ask != nullptr &&
      ask(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, static_cast<UINT>(dpi)) != 0) {
    return true;
  }
  if (SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0) == 0) {
    return false;
  }
  metrics.lfMessageFont.lfHeight = MulDiv(metrics.lfMessageFont.lfHeight, dpi, systemDpi());
  return true;
}

void keepFromScaling(HWND dialog) noexcept {
  constexpr int disableAll = 7;
  const auto choose = userFunction<DialogScalingFunction>("SetDialogDpiChangeBehavior");
  if (choose != nullptr) choose(dialog, disableAll, disableAll);
}

}  // namespace pelorin
