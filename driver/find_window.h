// Finds the component's windows and controls by their design names, as test tools of the platform
// do, and the message boxes that are open.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "win32/text/windows_api.h"

namespace pelorin::driver {

// Empty for a window that has no design name. For windows of this process only: the name is written
// into the asking process.
std::string designName(HWND window);

// The first one that is wanted, from the front to the back; null when there is none.
using Wanted = std::function<bool(HWND)>;
HWND findTopLevel(const Wanted& wanted);
HWND findChild(HWND parent, const Wanted& wanted);

DWORD processOf(HWND window);
DWORD threadOf(HWND window);

// The visible top-level window of this process with that design name; null when there is none.
HWND findForm(const std::string& name);
// DriverError when a message box opens instead, with its text.
HWND waitForForm(const std::string& name);
void waitUntilClosed(HWND form);

// A control of the form, shown or not, such as "cmdAddEdit(1)"; null when there is none.
HWND findControl(HWND form, const std::string& name);
// DriverError when there is none.
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

// The message boxes of a process, from the front to the back; of every process when 0.
std::vector<OpenBox> findBoxes(DWORD process = GetCurrentProcessId());
// The one in front of this process.
std::optional<OpenBox> findBox();
// The first one that opens, now or soon; closed by the button with that number.
OpenBox waitForBox();
OpenBox answerBox(int button = IDOK);

}  // namespace pelorin::driver
