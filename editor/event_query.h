// The events of one record of the catalogue, as the database lists them.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "catalog/event_catalogue.h"
#include "common/module1.h"

namespace pelorin {

struct ListedEvent {
  std::int32_t id = 0;
  std::string number;  // five digits
  std::string text;
};

std::string eventsQuery(const EventTypeInfo& type);

// From the current row on, the last one included; placeholders of the event tables are left out.
void takeEvents(const Module1& module, RecordSet& rows,
                const std::function<void(const ListedEvent&)>& take);

// Whether these are the events of alarm receivers and recorders that are installed here.
bool isIntegrated(const EventTypeInfo& type);

}  // namespace pelorin
