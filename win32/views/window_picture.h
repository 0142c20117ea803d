// A window's picture as a file, for manuals and tests.
#pragma once

#include <filesystem>

#include "win32/views/windows_api.h"

namespace pelorin {

// Writes the window with its frame as a 24-bit BMP file. False when it cannot be drawn or written.
bool saveWindowPicture(HWND window, const std::filesystem::path& file);

}  // namespace pelorin
