#include "editor/event_query.h"

#include <string_view>

#include "base/text_key.h"
#include "catalog/event_text.h"

namespace pelorin {

namespace {

bool isPlaceholder(const RecordSet& row) {
  constexpr std::string_view mark = "Undefined";
  return equalNoCase(row.text("Defaultdescription").substr(0, mark.size()), mark);
}

}  // namespace

bool isIntegrated(const EventTypeInfo& type) {
  return equalNoCase(type.TableName, "integratedevents");
}

std::string eventsQuery(const EventTypeInfo& type) {
  if (isIntegrated(type)) return "exec pav_FetchInstalledIntegratedEvents";
  return "select EventId, Description, DefaultDescription from " + type.TableName +
         " where EventID >= " + numberText(type.MinEventID) +
         " and EventID <= " + numberText(type.MaxEventID) + " order by EventID";
}

void takeEvents(const Module1& module, RecordSet& rows,
                const std::function<void(const ListedEvent&)>& take) {
  const bool customised = module.NTConnection()->EnableCustomize();
  do {
    if (isPlaceholder(rows)) continue;
    const std::int32_t id = rows.int32("EventID");
    take({id, eventNumberText(id), eventText(rows, customised)});
  } while (rows.next());
}

}  // namespace pelorin
