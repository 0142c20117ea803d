// The way into the component for calls of the host. It belongs to one thread at a time: the one
// whose windows are open or whose call is in progress.
#pragma once

#include "component/component.h"

namespace pelorin {

class Entrance {
 public:
  virtual ~Entrance() = default;

  // The component, for a call that lasts until leave(). Throws when it belongs to another thread
  // than the calling one, which becomes its owner otherwise.
  virtual Component& enter() = 0;
  virtual void leave() noexcept = 0;
  // Tells somebody who could not be let in; none of the component's windows takes part.
  virtual void tell(const BoxRequest& box) noexcept = 0;
};

// One call of the host.
class Visit {
 public:
  explicit Visit(Entrance& entrance) : entrance_(entrance), component_(entrance.enter()) {}
  Visit(const Visit&) = delete;
  Visit& operator=(const Visit&) = delete;
  ~Visit() { entrance_.leave(); }

  Component& component() const noexcept { return component_; }

 private:
  Entrance& entrance_;
  Component& component_;
};

}  // namespace pelorin
