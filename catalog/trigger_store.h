// Reads and deletes trigger actions. Errors are reported under the procedure's name; the result
// then is false, and an outer operation stops without a second report.
#pragma once

#include <cstdint>
#include <string>

#include "common/module1.h"

namespace pelorin {

// What a trigger action is tied to, and what performs it.
struct TriggerData {
  std::string address;
  std::int32_t eventId = 0;
  std::int32_t actionId = 0;  // of a CCTV trigger action: its own ID
  std::int32_t deviceClassId = 0;
};

bool DeleteCCTVTriggerAction(Module1& module, std::int32_t TA_ID);
// With the DVR action that belongs to it.
bool DeleteTriggerAction(Module1& module, std::int32_t TriggerID);

// Empty the address first; without a row the other fields keep what the caller had, and the result
// is true. False: an error on the way, the fields are not a trigger to be saved.
bool GetCCTVTriggerData(Module1& module, std::int32_t TA_ID, TriggerData& data);
bool GetTriggerData(Module1& module, std::int32_t TriggerID, TriggerData& data);

}  // namespace pelorin
