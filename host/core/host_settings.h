// What the operator of the reference host can switch while the component is open.
#pragma once

#include <cstdint>

namespace pelorin::host {

struct HostSettings {
  bool permitted = true;               // the right "Pelorin - Use"
  bool newerHardware = true;           // ZornIsVn8HardwareSupportEnabled
  bool customisedDescriptions = true;  // EnableCustomize
  std::int32_t operatorId = 1;
  std::int32_t workStationId = 1;
};

}  // namespace pelorin::host
