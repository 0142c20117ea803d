#include "host/window/single_instance.h"

#include "host/window/main_window.h"

namespace pelorin::host {

SingleInstance::SingleInstance()
    : mark_(CreateMutexW(nullptr, FALSE, L"Local\\PelorinHost")),
      first_(GetLastError() != ERROR_ALREADY_EXISTS) {}

SingleInstance::~SingleInstance() {
  if (mark_ != nullptr) CloseHandle(mark_);
}

void SingleInstance::showFirst() {
  const HWND window = FindWindowW(MainWindow::className, nullptr);
  if (window == nullptr) return;
  if (IsIconic(window)) ShowWindowAsync(window, SW_RESTORE);
  SetForegroundWindow(window);
}

}  // namespace pelorin::host
