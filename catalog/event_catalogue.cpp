#include "catalog/event_catalogue.h"

#include <algorithm>

#include "base/current_error.h"
#include "catalog/event_text.h"
#include "catalog/zorn_family.h"
#include "common/guard.h"

namespace pelorin {

namespace {

constexpr std::size_t mostTypes = 51;

bool covers(const EventTypeInfo& type, std::int32_t eventId) noexcept {
  return type.MinEventID <= eventId && eventId <= type.MaxEventID;
}

EventTypeInfo readEventType(const RecordSet& rows) {
  EventTypeInfo type;
  type.FilterType = rows.text("FilterType");
  type.DisplayName = type.FilterType + " Events";
  type.FilterIndex = rows.int16("filterIndex");
  type.TableName = rows.text("TableName");
  type.MinEventID = parseInt32(rows.text("MinEventID"));
  type.MaxEventID = parseInt32(rows.text("MaxEventID"));
  return type;
}

// Empty for an event that is no alarm.
std::string returnToNormalQuery(std::int32_t alarmEventId) {
  if (alarmEventId >= 5000 && alarmEventId <= 5999) {
    return "select ExternalEventId as RTNEventID from RetNormalMatrix where AlarmID = " +
           numberText(alarmEventId);
  }
  if (alarmEventId >= 10000 && alarmEventId <= 10999) {
    return "select IntegratedRTNId as RTNEventID from IntegratedRTNMatrix"
           " where IntegratedAlarmID = " +
           numberText(alarmEventId);
  }
  return {};
}

}  // namespace

void EventCatalogue::fetchEventTypes(std::vector<EventTypeInfo>& records) const {
  RecordSet rows = module_.DBConnection()->open("exec TA_FetchAllEventTypeInfo");
  std::size_t count = 0;
  for (; rows.next(); ++count) {
    if (count == mostTypes) {
      throw RunTimeError(error_number::subscriptOutOfRange, "Subscript out of range", __LINE__);
    }
    records[count] = readEventType(rows);
  }
  rows.close();
  records.resize(count + 1);
}

// A host that handles messages inside a statement can have the catalogue filled again meanwhile.
void EventCatalogue::InitEventTypeInfoArray() {
  loaded_ = guarded(module_, "Module1.InitEventTypeInfoArray", [this] {
    std::vector<EventTypeInfo> fresh(mostTypes);
    const std::exception_ptr error = exceptionOf([&] { fetchEventTypes(fresh); });
    records_.swap(fresh);
    if (error) std::rethrow_exception(error);
  });
}

std::span<EventTypeInfo> EventCatalogue::types() noexcept {
  return std::span(records_).first(records_.empty() ? 0 : records_.size() - 1);
}

std::span<const EventTypeInfo> EventCatalogue::types() const noexcept {
  return std::span(records_).first(records_.empty() ? 0 : records_.size() - 1);
}

bool EventCatalogue::LoadFilterList(ListBox& list) {
  return guarded(module_, "Module1.LoadFilterList", [&] {
    const bool newerHardware = module_.NTConnection()->ZornIsVn8HardwareSupportEnabled();
    RecordSet rows =
        module_.DBConnection()->open("select * from TA_EventFilters order by FilterIndex");
    while (rows.next()) {
      const std::int32_t filter = rows.int32("filterIndex");
      if (filter <= lastOrdinaryCategory || newerHardware) {
        list.addItem(rows.text("FilterType") + " Events", filter);
      }
    }
  });
}

std::string EventCatalogue::descriptionOf(const std::string& sql) {
  RecordSet rows = module_.DBConnection()->open(sql);
  if (!rows.next()) return {};
  rows.detach();
  return eventText(rows, module_.NTConnection()->EnableCustomize());
}

// The first number is looked up in the catalogue here; GetFilterIndexByEventID asks the Zorn
// definitions for that one too.
std::string EventCatalogue::GetEventDescription(std::int32_t eventId) {
  return guardedOr(module_, "Module1.GetEventDescription", std::string(), [&]() -> std::string {
    if (eventId != firstZornEvent && isZornEvent(eventId)) return ZornGetEventDescription(eventId);
    for (const EventTypeInfo& type : types()) {
      if (type.TableName.empty() || !covers(type, eventId)) continue;
      return descriptionOf("select EventId, Description, DefaultDescription from " +
                           type.TableName + " where EventId = " + numberText(eventId));
    }
    return {};
  });
}

std::string EventCatalogue::ZornGetEventDescription(std::int32_t eventId) {
  return guardedOr(module_, "Module1.ZornGetEventDescription", std::string(), [&] {
    return descriptionOf(
        "select Description, DefaultDescription from Zorn_EventDefinitions where EventId = " +
        numberText(eventId));
  });
}

std::optional<std::int16_t> EventCatalogue::findFilter(std::int32_t eventId) {
  if (isZornEvent(eventId)) return findZornFilter(eventId);
  const auto walked = types();
  const auto found = std::find_if(walked.begin(), walked.end(),
                                  [&](const EventTypeInfo& type) { return covers(type, eventId); });
  return found == walked.end() ? std::int16_t{0} : found->FilterIndex;
}

std::optional<std::int16_t> EventCatalogue::findZornFilter(std::int32_t eventId) {
  std::optional<std::int16_t> filter;
  guarded(module_, "Module1.ZornGetFilterIndexByEventID", [&] {
    RecordSet rows = module_.DBConnection()->open(
        "select ZornEventType from zorn_EventDefinitions where EventID = " + numberText(eventId));
    filter =
        rows.next() ? ZornEventTypeToFilterIndex(rows.int32("ZornEventType")) : std::int16_t{0};
  });
  return filter;
}

std::int16_t EventCatalogue::GetFilterIndexByEventID(std::int32_t eventId) {
  return findFilter(eventId).value_or(0);
}

std::int16_t EventCatalogue::ZornGetFilterIndexByEventID(std::int32_t eventId) {
  return findZornFilter(eventId).value_or(0);
}

std::int16_t EventCatalogue::ZornEventTypeToFilterIndex(std::int32_t zornEventType) noexcept {
  const ZornEventKind* kind = zornEventKind(zornEventType);
  return kind ? kind->category : std::int16_t{0};
}

std::string EventCatalogue::GetFilterTypeByFilterIndex(std::int16_t filterIndex) const {
  for (const EventTypeInfo& type : types()) {
    if (type.FilterIndex == filterIndex) return type.FilterType;
  }
  return {};
}

std::int32_t EventCatalogue::GetRTNEvent(std::int32_t alarmEventId) {
  const std::string query = returnToNormalQuery(alarmEventId);
  if (query.empty()) return 0;
  return guardedOr(module_, "Module1.GetRTNEvent", std::int32_t{0}, [&] {
    RecordSet rows = module_.DBConnection()->open(query);
    return rows.next() ? rows.int32("RTNEventID") : 0;
  });
}

void EventCatalogue::ClearEventsLoaded(std::int16_t filterIndex) noexcept {
  for (EventTypeInfo& type : records_) {
    if (type.FilterIndex == filterIndex) type.EventsLoaded = false;
  }
}

void EventCatalogue::ClearAllEventsLoaded(const ListBox& filters) noexcept {
  for (EventTypeInfo& type : records_) {
    if (type.FilterIndex >= 0 && type.FilterIndex < filters.listCount()) type.EventsLoaded = false;
  }
}

}  // namespace pelorin
