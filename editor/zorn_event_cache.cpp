#include "editor/zorn_event_cache.h"

#include <algorithm>
#include <utility>

#include "catalog/event_catalogue.h"
#include "catalog/event_text.h"
#include "catalog/zorn_family.h"
#include "common/guard.h"

namespace pelorin {

namespace {

// A view in the table's place can count anything.
constexpr std::int32_t mostZornEvents = lastZornEvent - firstZornEvent + 1;

}  // namespace

bool ZornEventCache::ZornLoadEventCache() {
  return guarded(module_, "frmTriggerAction.ZornLoadEventCache", [this] {
    m_ZornEventCache.clear();
    RecordSet count =
        module_.DBConnection()->open("select count(EventID) from Zorn_EventDefinitions");
    const std::int32_t expected = count.next() ? count.int32(0) : 0;
    count.close();
    m_ZornEventCache.reserve(static_cast<std::size_t>(std::clamp(expected, 0, mostZornEvents)));
    readEvents();
  });
}

void ZornEventCache::readEvents() {
  RecordSet rows =
      module_.DBConnection()->open("select * from Zorn_EventDefinitions order by EventID");
  if (!rows.next()) return;
  const bool customised = module_.NTConnection()->EnableCustomize();
  do {
    const std::int32_t type = rows.int32("ZornEventType");
    m_ZornEventCache.push_back({EventCatalogue::ZornEventTypeToFilterIndex(type), type,
                                rows.int32("EventID"), eventText(rows, customised), false});
  } while (rows.next());
}

void ZornEventCache::ZornDisplayFilteredEvents(ListView& events, ComboBox& combo,
                                               std::int32_t category) {
  guarded(module_, "frmTriggerAction.ZornDisplayFilteredEvents", [&] {
    for (Event& event : m_ZornEventCache) {
      if (event.category != category) continue;
      const std::string number = eventNumberText(event.EventID);
      combo.addItem(number + "-" + event.description, event.EventID);
      if (std::exchange(event.displayed, true)) continue;
      ListItem row;
      row.text = ZornEventTypeText(event.ZornEventType);
      row.subItems = {number, event.description};
      row.tag = numberText(event.EventID);
      events.add(0, std::move(row));
    }
  });
}

void ZornEventCache::ZornUnDisplayFilteredEvents(ListView& events, std::int32_t category) {
  guarded(module_, "frmTriggerAction.ZornUnDisplayFilteredEvents", [&] {
    Tags unwanted;
    for (Event& event : m_ZornEventCache) {
      if (event.category == category && std::exchange(event.displayed, false)) {
        unwanted.insert(numberText(event.EventID));
      }
    }
    ZornRemoveDisplayItem(events, unwanted);
  });
}

// All at once: a walk per event would be felt with thousands of them.
void ZornEventCache::ZornRemoveDisplayItem(ListView& events, const Tags& eventIds) {
  guarded(module_, "frmTriggerAction.ZornRemoveDisplayItem", [&] {
    if (eventIds.empty()) return;
    events.removeIf([&](const ListItem& row) { return eventIds.contains(row.tag); });
  });
}

std::string ZornEventCache::ZornEventTypeText(std::int32_t zornEventType) {
  const ZornEventKind* kind = zornEventKind(zornEventType);
  return kind ? kind->text : "";
}

}  // namespace pelorin
