// The numbers of the newer controller family: its types of events, the filter category and the text
// that the editor shows each under, and the range of its events' numbers.
#pragma once

#include <array>
#include <cstdint>

namespace pelorin {

struct ZornEventKind {
  std::int32_t type;  // ZornEventType of the event definitions
  std::int16_t category;
  const char* text;
};

// In the order of their categories, which follow one another. The misspelling is the catalogue's,
// too: a category's rows are found by its text.
inline constexpr std::array<ZornEventKind, 5> zornEventKinds{{
    {20, 8, "ZornTransaction"},
    {21, 9, "ZornInternal"},
    {22, 10, "ZornExternal"},
    {24, 11, "ZornMiscellaneoud"},
    {25, 12, "ZornSoftware"},
}};

// Null for an unknown type.
constexpr const ZornEventKind* zornEventKind(std::int32_t type) noexcept {
  for (const ZornEventKind& kind : zornEventKinds) {
    if (kind.type == type) return &kind;
  }
  return nullptr;
}

// The last of the categories that every host's hardware offers.
inline constexpr std::int16_t lastOrdinaryCategory = zornEventKinds.front().category - 1;

// The filter categories whose events are the family's.
constexpr bool isZornCategory(std::int32_t category) noexcept {
  return category > lastOrdinaryCategory && category <= zornEventKinds.back().category;
}

inline constexpr std::int32_t firstZornEvent = 80001;
inline constexpr std::int32_t lastZornEvent = 89999;

constexpr bool isZornEvent(std::int32_t eventId) noexcept {
  return eventId >= firstZornEvent && eventId <= lastZornEvent;
}

}  // namespace pelorin
