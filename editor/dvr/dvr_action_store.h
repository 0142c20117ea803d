// Writes the action rows of DVR triggers.
#pragma once

#include <cstdint>

#include "common/module1.h"
#include "editor/panel/arguments.h"

namespace pelorin {

class DvrActionStore {
 public:
  explicit DvrActionStore(Module1& module) noexcept : module_(module) {}

  // Both are false after a failure, which has then been reported. A new row whose ID is below 1 is
  // one: its trigger could never find it.
  bool AddDVRAction(const Arguments& values, std::int32_t& newActionId);
  bool UpdateDVRAction(std::int32_t actionId, const Arguments& values);

 private:
  Module1& module_;
};

}  // namespace pelorin
