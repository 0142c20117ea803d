// Wine's emulation of 32-bit Windows gives programs no device contexts: nothing can be drawn there,
// combo boxes cannot be made, and edit boxes with text end the program.
#pragma once

#include <windows.h>

namespace pelorin::test {

inline bool deviceContextsWork() {
  const HDC screen = GetDC(nullptr);
  const HGDIOBJ before = SelectObject(screen, GetStockObject(DEFAULT_GUI_FONT));
  ReleaseDC(nullptr, screen);
  return before != nullptr;
}

}  // namespace pelorin::test
