// Messages that the component's windows send themselves. WM_USER belongs to the dialog class.
#pragma once

#include "win32/views/windows_api.h"

namespace pelorin {

inline constexpr UINT wakeMessage = WM_APP + 1;
inline constexpr UINT keyMessage = WM_APP + 2;
inline constexpr UINT choiceMessage = WM_APP + 3;

}  // namespace pelorin
