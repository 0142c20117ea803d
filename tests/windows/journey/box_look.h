// How a message box presents itself: its icon and its buttons.
#pragma once

#include <string>

#include "win32/text/windows_api.h"

namespace pelorin::test {

// Such as "question: Yes* No", with a star at the default button; "none: OK*" without an icon.
std::string boxLook(HWND box);

}  // namespace pelorin::test
