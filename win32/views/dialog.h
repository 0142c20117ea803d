// Frames and tab pages are real dialogs: the system's dialog procedure then keeps the default
// button, mnemonics and the focus across activation in order.
#pragma once

#include "win32/views/ui_thread.h"
#include "win32/views/windows_api.h"

namespace pelorin {

// Hidden and without controls; null when the system refuses, which then tells why.
HWND makeDialog(const UiThread& ui, HWND ownerOrParent, DWORD style, DWORD extendedStyle);

}  // namespace pelorin
