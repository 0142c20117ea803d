// What an object that the host hands over is.
#pragma once

#include <windows.h>

#include "win32/com/com_ptr.h"

namespace pelorin {

// The top-level window of a window object: one that answers IOleWindow or has a property hWnd, with
// a live window of this process. Null for any other object. The object is not kept: holding a form
// would keep it alive after it was closed.
HWND windowOf(IUnknown* object);

// True for an ADO connection of any version, and for an object that can stand in for one.
bool isAdoConnection(IUnknown* object);

// `window`, or null when it is gone.
HWND liveWindow(HWND window);

}  // namespace pelorin
