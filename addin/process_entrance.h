// The entrance of one process. Calls of the host may come from any of its threads; the component
// works on the one that owns its windows, and moves on to another thread only when no window is
// open, no call is in progress, or the owner has ended. Nobody waits: who comes at the wrong time
// is told so.
#pragma once

#include <windows.h>

#include <atomic>
#include <memory>
#include <vector>

#include "addin/tenant.h"
#include "component/entrance.h"

namespace pelorin {

class ProcessEntrance final : public Entrance {
 public:
  Component& enter() override;
  void leave() noexcept override;
  void tell(const BoxRequest& box) noexcept override;

  bool hasOpenWindows() const noexcept;
  void objectMade() noexcept { ++objects_; }
  void objectGone() noexcept;

 private:
  bool callerOwns() const noexcept;
  bool inUse() const noexcept { return calls_ > 0 || windowsOpen_; }
  bool enterAsOwner() noexcept;
  void takeOver();
  std::unique_ptr<Tenant> tenantOfCaller();
  void replaceTenant(std::unique_ptr<Tenant> next, bool abandoned);
  void forgetEndedThreads();
  void rest() noexcept;

  // Lives as long as the owner's thread, whose number the system may give away again.
  std::atomic<HWND> ownersWindow_{nullptr};
  std::atomic<int> calls_{0};
  std::atomic<bool> windowsOpen_{false};
  std::atomic<int> objects_{0};
  std::atomic_flag moving_;
  // For the owner, or for the thread that is taking over.
  std::unique_ptr<Tenant> tenant_;
  // Of threads that own nothing any more, until they come again or end.
  std::vector<std::unique_ptr<Tenant>> former_;
};

}  // namespace pelorin
