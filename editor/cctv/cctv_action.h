// What a CCTV trigger does, as its row says it.
#pragma once

#include <cstdint>

namespace pelorin::cctv_action {

inline constexpr std::int16_t callCamera = 1;
inline constexpr std::int16_t raiseAlarm = 2;
inline constexpr std::int16_t acknowledgeAlarm = 3;

}  // namespace pelorin::cctv_action
