// The component as it is on one thread: its windows belong to that thread.
#pragma once

#include "addin/module.h"
#include "addin/windows_environment.h"
#include "component/component.h"
#include "win32/views/native_screen.h"

namespace pelorin {

class Tenant {
 public:
  // On the calling thread. Throws when the system has no room for another window.
  Tenant() = default;
  Tenant(const Tenant&) = delete;
  Tenant& operator=(const Tenant&) = delete;
  ~Tenant() = default;

  Component& component() noexcept { return component_; }
  NativeScreen& screen() noexcept { return screen_; }
  Module1& module() noexcept { return component_.module(); }

 private:
  WindowsEnvironment environment_;
  NativeScreen screen_{ownModule()};
  Component component_{screen_, environment_};
};

}  // namespace pelorin
