// Keeps every other process (and thread) of this machine from changing the same file meanwhile, as
// long as it asks in the same way.
#pragma once

#include <string>

#include "addin/handle.h"

namespace pelorin {

class PathLock {
 public:
  // Waits while somebody else holds the lock, but not for longer than an operator would.
  explicit PathLock(const std::string& path);
  PathLock(const PathLock&) = delete;
  PathLock& operator=(const PathLock&) = delete;
  ~PathLock();

  // False when the lock could not be had.
  explicit operator bool() const noexcept { return held_; }

 private:
  Handle mutex_;
  bool held_;
};

}  // namespace pelorin
