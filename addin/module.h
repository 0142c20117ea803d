// The DLL as a module of the host's process: its handle, its file, and what keeps it loaded.
#pragma once

#include <windows.h>

#include <string>

namespace pelorin {

// The module this code lies in.
HMODULE ownModule() noexcept;
// Full path of the module's file.
std::wstring ownPath();

// Keeps the module loaded until the process ends. The runtime linked into it gives up a
// thread-local slot with each unloading, so that a host that loads and unloads at every use would
// run out of them.
void pinOwnModule() noexcept;

// Counts objects, factories and locks, each of which lives as long as its ModuleUse.
class ModuleUse {
 public:
  ModuleUse() noexcept;
  ModuleUse(const ModuleUse&) = delete;
  ModuleUse& operator=(const ModuleUse&) = delete;
  ~ModuleUse();

  static bool any() noexcept;
};

// IClassFactory::LockServer.
void lockModule(bool lock) noexcept;

}  // namespace pelorin
