// Places are given in twips and drawn in pixels of the window's own resolution.
#pragma once

#include "controls/twips.h"
#include "win32/views/windows_api.h"

namespace pelorin {

inline constexpr int standardDpi = 96;

// As the process sees it: a host that knows nothing of resolutions sees 96.
int dpiOf(HWND window) noexcept;

// The outer rectangle of a window with that client rectangle and these styles.
RECT outerRect(RECT client, DWORD style, DWORD extendedStyle, int dpi) noexcept;

// False when the system does not tell.
bool nonClientMetrics(NONCLIENTMETRICSW& metrics, int dpi) noexcept;

// The dialog is laid out by us alone when its resolution changes.
void keepFromScaling(HWND dialog) noexcept;

}  // namespace pelorin
