#include "driver/ui_calls.h"

#include <memory>

#include "driver/waiting.h"
#include "win32/text/system_text.h"

namespace pelorin::driver {

namespace {

constexpr wchar_t className[] = L"PelorinUiCalls";
constexpr UINT callMessage = WM_APP;
constexpr UINT postMessage = WM_APP + 1;

struct Call {
  const std::function<void()>* work;
  std::exception_ptr error;
};

LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  if (message == callMessage) {
    Call& call = *reinterpret_cast<Call*>(lParam);
    try {
      (*call.work)();
    } catch (...) {
      call.error = std::current_exception();
    }
    return 0;
  }
  if (message == postMessage) {
    const std::unique_ptr<std::function<void()>> work(
        reinterpret_cast<std::function<void()>*>(lParam));
    (*work)();
    return 0;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

HWND makeWindow() {
  WNDCLASSW description{};
  description.lpfnWndProc = procedure;
  description.hInstance = GetModuleHandleW(nullptr);
  description.lpszClassName = className;
  RegisterClassW(&description);
  return CreateWindowExW(0, className, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                         GetModuleHandleW(nullptr), nullptr);
}

}  // namespace

UiCalls::UiCalls() : window_(makeWindow()) {
  if (window_ == nullptr) throw DriverError("no window for calls: " + systemText(GetLastError()));
}

UiCalls::~UiCalls() {
  DestroyWindow(window_);
}

void UiCalls::send(const std::function<void()>& work) const {
  Call call{&work, nullptr};
  SendMessageW(window_, callMessage, 0, reinterpret_cast<LPARAM>(&call));
  if (call.error) std::rethrow_exception(call.error);
}

void UiCalls::post(std::function<void()> work) const {
  auto owned = std::make_unique<std::function<void()>>(std::move(work));
  // The window's procedure takes over what could be posted.
  std::function<void()>* const address = owned.release();
  if (PostMessageW(window_, postMessage, 0, reinterpret_cast<LPARAM>(address)) == 0) delete address;
  // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): it is in the message now.
}

}  // namespace pelorin::driver
