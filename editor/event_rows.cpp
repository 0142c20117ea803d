#include "editor/event_rows.h"

#include <utility>

#include "common/value.h"

namespace pelorin {

namespace {

double numberOf(const ListItem& row) {
  return row.subItems.empty() ? 0 : parseNumber(row.subItems.front());
}

}  // namespace

int FindEventInsertPosition(const ListView& events, std::int32_t eventId, int start) {
  int position = start;
  while (position <= events.count() && numberOf(events.item(position)) < eventId) ++position;
  return position;
}

void EventRowMerge::add(std::int32_t eventId, ListItem row) {
  if (position_ <= events_.count() && eventId > numberOf(events_.item(position_))) {
    position_ = FindEventInsertPosition(events_, eventId, position_);
  }
  rows_.push_back({position_, std::move(row)});
}

void EventRowMerge::finish() {
  events_.insert(std::exchange(rows_, {}));
}

}  // namespace pelorin
