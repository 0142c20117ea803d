// Pictures of windows, as they are seen on the screen.
#pragma once

#include <string>

#include "win32/text/windows_api.h"

namespace pelorin::driver {

// Brings the window to the front and saves what it shows as a PNG file. DriverError when the file
// cannot be written.
void savePicture(HWND window, const std::wstring& file);

}  // namespace pelorin::driver
