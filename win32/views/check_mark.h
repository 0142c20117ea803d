// A check box drawn inside a row of a list, in the user's visual style where there is one.
#pragma once

#include "win32/views/windows_api.h"

namespace pelorin {

// Centred in `area`; a square of at most that size.
void drawCheckMark(HWND window, HDC dc, const RECT& area, bool checked, bool enabled);

}  // namespace pelorin
