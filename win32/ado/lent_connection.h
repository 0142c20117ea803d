// A lent ADO connection, and whether it can still be used after an error.
#pragma once

#include <utility>

#include "base/run_time_error.h"
#include "win32/com/late_bound.h"

namespace pelorin {

class LentConnection {
 public:
  explicit LentConnection(ComPtr<IDispatch> connection) : object_(std::move(connection)) {}

  LateBound& object() noexcept { return object_; }

  // Runs `work`; its error says whether the connection is lost.
  template <class Work>
  auto watched(Work&& work) {
    try {
      return std::forward<Work>(work)();
    } catch (RunTimeError& error) {
      if (isLost()) error.setConnectionLost();
      throw;
    }
  }

 private:
  // It is no longer open, or the first of its errors is of the class "connection exception". A
  // connection that tells neither counts as usable.
  bool isLost() noexcept;

  LateBound object_;
};

}  // namespace pelorin
