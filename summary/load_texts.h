// Texts that one load of the summary asks for again and again; each is asked for once.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>

#include "catalog/event_catalogue.h"

namespace pelorin {

class LoadTexts {
 public:
  LoadTexts(Module1& module, EventCatalogue& catalogue) : module_(module), catalogue_(catalogue) {}

  // Such as "00042 - Door forced".
  const std::string& trigger(std::int32_t eventId);
  const std::string& cctvAction(std::int16_t action);

 private:
  Module1& module_;
  EventCatalogue& catalogue_;
  std::unordered_map<std::int32_t, std::string> triggers_;
  std::unordered_map<std::int16_t, std::string> actions_;
};

}  // namespace pelorin
