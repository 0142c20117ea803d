// The catalogue of event types: filter categories with the ranges of event IDs they cover, what an
// event is called, and which event returns an alarm to normal. Loaded once and read by the summary
// and the editor. No operation lets an error out: it is reported, and the result is what there is.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "common/module1.h"
#include "controls/item_lists.h"

namespace pelorin {

struct EventTypeInfo {
  std::string DisplayName;  // FilterType and " Events"
  std::string FilterType;
  std::int16_t FilterIndex = 0;
  std::string TableName;  // holds the type's event definitions
  std::int32_t MinEventID = 0;
  std::int32_t MaxEventID = 0;
  bool EventsLoaded = false;  // the editor has listed this type's events
};

class EventCatalogue {
 public:
  explicit EventCatalogue(Module1& module) : module_(module) {}

  // Fills the array anew, every EventsLoaded false. After an error (a 52nd row is one) the rows
  // read so far stay, in an array of 51 elements.
  void InitEventTypeInfoArray();
  // True once the array has been filled to the end.
  bool loaded() const noexcept { return loaded_; }

  // All elements, the empty last one included.
  std::vector<EventTypeInfo>& records() noexcept { return records_; }
  // What walks over the catalogue go through: all elements but the last. An element without a table
  // name has no events: who needs their table skips it.
  std::span<EventTypeInfo> types() noexcept;
  std::span<const EventTypeInfo> types() const noexcept;

  // Adds the filters that this host's hardware offers, with their number as item data. False when
  // an error ended it; the filters added before stay.
  bool LoadFilterList(ListBox& list);

  // The event's text, read from the database at each call; empty when there is none.
  std::string GetEventDescription(std::int32_t eventId);
  std::string ZornGetEventDescription(std::int32_t eventId);

  // 0 when no filter holds the event, nothing when that could not be read.
  std::optional<std::int16_t> findFilter(std::int32_t eventId);
  // 0 in both cases.
  std::int16_t GetFilterIndexByEventID(std::int32_t eventId);
  std::int16_t ZornGetFilterIndexByEventID(std::int32_t eventId);
  // 0 for a type of event that is none of the family's.
  static std::int16_t ZornEventTypeToFilterIndex(std::int32_t zornEventType) noexcept;
  // FilterType of the filter, empty when there is none.
  std::string GetFilterTypeByFilterIndex(std::int16_t filterIndex) const;

  // The event that returns an alarm to normal, 0 when there is none.
  std::int32_t GetRTNEvent(std::int32_t alarmEventId);

  void ClearEventsLoaded(std::int16_t filterIndex) noexcept;
  // Goes by the positions of the list, not by their item data.
  void ClearAllEventsLoaded(const ListBox& filters) noexcept;

 private:
  // Fills the 51 elements from the front, and leaves one more than there are rows at the end.
  void fetchEventTypes(std::vector<EventTypeInfo>& records) const;
  std::optional<std::int16_t> findZornFilter(std::int32_t eventId);
  std::string descriptionOf(const std::string& sql);

  Module1& module_;
  std::vector<EventTypeInfo> records_;
  bool loaded_ = false;
};

}  // namespace pelorin
