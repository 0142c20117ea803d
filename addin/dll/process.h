// What all objects of the class in one process share: the windows, the settings of the machine, and
// the references that the host handed over.
#pragma once

#include "addin/component.h"

namespace pelorin::process {

// Made at the first call and kept until the process ends: what the host lent is not given back at a
// time when the host's own modules may be gone.
Component& component();

// Message boxes belong to this window while no window of the component is active.
void setHostWindow(WindowHandle window);

// Whether a window of the component is open.
bool hasOpenWindows() noexcept;

}  // namespace pelorin::process
