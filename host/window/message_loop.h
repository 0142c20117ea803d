// The host's message loop, which also drives the component's windows.
#pragma once

#include "win32/text/windows_api.h"

namespace pelorin::host {

// Ends with the number that was given to PostQuitMessage.
int messageLoop(HWND mainWindow);

}  // namespace pelorin::host
