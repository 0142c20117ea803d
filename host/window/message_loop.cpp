#include "host/window/message_loop.h"

#include "host/window/resource.h"

namespace pelorin::host {

int messageLoop(HWND mainWindow) {
  const HACCEL keys =
      LoadAcceleratorsW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDR_ACCELERATORS));
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    const bool ours = GetActiveWindow() == mainWindow;
    if (ours && TranslateAcceleratorW(mainWindow, keys, &message) != 0) continue;
    if (IsDialogMessageW(mainWindow, &message) != FALSE) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return static_cast<int>(message.wParam);
}

}  // namespace pelorin::host
