#include "host/window/window.h"

#include "base/current_error.h"
#include "win32/com/com_error.h"
#include "win32/text/utf16.h"

namespace pelorin::host {

namespace {

constexpr int standardDpi = 96;

int screenDpi() {
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return dpi;
}

HFONT makeControlFont() {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  return CreateFontIndirectW(&metrics.lfMessageFont);
}

[[noreturn]] void failWithLastError() {
  throw comError(HRESULT_FROM_WIN32(GetLastError()));
}

}  // namespace

int scaled(int length) {
  static const int dpi = screenDpi();
  return MulDiv(length, dpi, standardDpi);
}

HFONT controlFont() {
  static const HFONT font = makeControlFont();
  return font;
}

HWND makeControl(HWND parent, const wchar_t* className, const wchar_t* text, DWORD style,
                 int command) {
  const HWND control = CreateWindowExW(
      0, className, text, style | WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, parent,
      reinterpret_cast<HMENU>(static_cast<INT_PTR>(command)), GetModuleHandleW(nullptr), nullptr);
  if (control == nullptr) failWithLastError();
  SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(controlFont()), FALSE);
  return control;
}

Window::~Window() {
  if (window_ != nullptr) DestroyWindow(window_);
}

void Window::registerClass(const wchar_t* name) {
  WNDCLASSEXW description{};
  description.cbSize = sizeof description;
  description.lpfnWndProc = &Window::procedure;
  description.hInstance = GetModuleHandleW(nullptr);
  description.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
  description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  description.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  description.lpszClassName = name;
  if (RegisterClassExW(&description) == 0 && GetLastError() != ERROR_CLASS_ALREADY_EXISTS) {
    failWithLastError();
  }
}

void Window::create(const Look& look, HWND owner, HMENU menu) {
  registerClass(look.className);
  CreateWindowExW(0, look.className, look.title, look.style, CW_USEDEFAULT, CW_USEDEFAULT,
                  scaled(look.size.cx), scaled(look.size.cy), owner, menu,
                  GetModuleHandleW(nullptr), this);
  if (window_ == nullptr) failWithLastError();
}

LRESULT Window::unhandled(UINT message, WPARAM wParam, LPARAM lParam) const {
  return DefWindowProcW(window_, message, wParam, lParam);
}

LRESULT CALLBACK Window::procedure(HWND window, UINT message, WPARAM wParam,
                                   LPARAM lParam) noexcept {
  if (message == WM_NCCREATE) {
    auto* self = static_cast<Window*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
    self->window_ = window;
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
  }
  auto* self = reinterpret_cast<Window*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(window, message, wParam, lParam);
  if (message == WM_NCDESTROY) {
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    self->window_ = nullptr;
    return DefWindowProcW(window, message, wParam, lParam);
  }
  try {
    return self->message(message, wParam, lParam);
  } catch (...) {
    const std::wstring text = toWide(currentError().what());
    MessageBoxW(window, text.c_str(), programTitle, MB_OK | MB_ICONERROR);
    return 0;
  }
}

}  // namespace pelorin::host
