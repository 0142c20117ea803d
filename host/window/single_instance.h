// One host at a time for each user.
#pragma once

#include "win32/text/windows_api.h"

namespace pelorin::host {

class SingleInstance {
 public:
  SingleInstance();
  SingleInstance(const SingleInstance&) = delete;
  SingleInstance& operator=(const SingleInstance&) = delete;
  ~SingleInstance();

  bool isFirst() const noexcept { return first_; }
  // Brings the window of the first one to the front.
  static void showFirst();

 private:
  HANDLE mark_;
  bool first_;
};

}  // namespace pelorin::host
