// Finds the component's windows and controls by their design names, as test tools of the platform
// do, and the message boxes that are open.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "win32/text/windows_api.h"

namespace pelorin::driver {

// Empty for a window that has no design name.
std::string designName(HWND window);

// The visible top-level window of this process with that design name; null when there is none.
HWND findForm(const std::string& name);
// DriverError when a message box opens instead, with its text.
HWND waitForForm(const std::string& name);
void waitUntilClosed(HWND form);

// A control of the form, shown or not, such as "cmdAddEdit(1)". DriverError when there is none.
HWND control(HWND form, const std::string& name);

// Class and text.
std::wstring classOf(HWND window);
std::string textOf(HWND window);
bool isShown(HWND window);

struct OpenBox {
  HWND window = nullptr;
  std::string title;
  std::string text;
};

// A message box of this process.
std::optional<OpenBox> findBox();
// The first one that opens, now or soon; closed by the button with that number.
OpenBox waitForBox();
OpenBox answerBox(int button = IDOK);

}  // namespace pelorin::driver
