#include "addin/process.h"

#include "addin/process_entrance.h"

namespace pelorin::process {

namespace {

// Kept until the process ends, when the host's own modules may be gone already.
ProcessEntrance& shared() {
  static ProcessEntrance& entrance = *new ProcessEntrance;
  return entrance;
}

}  // namespace

Entrance& entrance() {
  return shared();
}

bool hasOpenWindows() noexcept {
  return shared().hasOpenWindows();
}

ObjectUse::ObjectUse() noexcept {
  shared().objectMade();
}

ObjectUse::~ObjectUse() {
  shared().objectGone();
}

}  // namespace pelorin::process
