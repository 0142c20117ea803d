// Controls report to their parent; whatever the parent is, the peer answers.
#pragma once

#include <optional>

#include "win32/views/windows_api.h"

namespace pelorin {

// The answer of the peer that sent the message to its parent, or nothing when it is none of them.
std::optional<LRESULT> reflect(UINT message, WPARAM w, LPARAM l);

}  // namespace pelorin
