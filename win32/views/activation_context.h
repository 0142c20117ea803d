// Visual styles inside a process that may have none: the component's own manifest (resource 2 of
// its module) is active while its windows are made and its window procedures run.
#pragma once

#include "win32/views/windows_api.h"

namespace pelorin {

class ActivationContext {
 public:
  // Without such a resource the process's own context stays in force.
  explicit ActivationContext(HINSTANCE module) noexcept;
  ActivationContext(const ActivationContext&) = delete;
  ActivationContext& operator=(const ActivationContext&) = delete;
  ~ActivationContext();

  class Scope {
   public:
    explicit Scope(const ActivationContext& context) noexcept;
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;
    ~Scope();

   private:
    ULONG_PTR cookie_ = 0;
    bool active_ = false;
  };

 private:
  HANDLE handle_;
};

}  // namespace pelorin
