// What all objects of the class in one process share: the windows, the settings of the machine, and
// the references that the host handed over.
#pragma once

#include "component/entrance.h"

namespace pelorin::process {

// Of every object in the process. The references of the host are let go when the last object is
// gone and no window is open.
Entrance& entrance();

// Whether a window of the component is open. May be asked from any thread.
bool hasOpenWindows() noexcept;

// Counts an object of the class for as long as it lives.
class ObjectUse {
 public:
  ObjectUse() noexcept;
  ObjectUse(const ObjectUse&) = delete;
  ObjectUse& operator=(const ObjectUse&) = delete;
  ~ObjectUse();
};

}  // namespace pelorin::process
