// What the system says about one of its error codes, in the user's language.
#pragma once

#include <windows.h>

#include <string>

namespace pelorin {

// On one line without an end; empty when the system has no text for the code.
std::string systemText(DWORD code);

}  // namespace pelorin
