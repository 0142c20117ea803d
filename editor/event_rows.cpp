#include "editor/event_rows.h"

#include <string>
#include <unordered_set>
#include <utility>

#include "base/value.h"

namespace pelorin {

namespace {

double numberOf(const ListItem& row) {
  return row.subItems.empty() ? 0 : parseNumber(row.subItems.front());
}

using Numbers = std::unordered_set<std::string>;

const std::string& numberTextOf(const ListItem& row) {
  return row.subItems.front();
}

Numbers checkedNumbers(const ListView& events, std::int32_t origin) {
  Numbers checked;
  for (int index = 1; index <= events.count(); ++index) {
    const ListItem& row = events.item(index);
    if (row.checked && row.tag.empty() && row.data == origin) checked.insert(numberTextOf(row));
  }
  return checked;
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

std::int32_t RowOrigin::packed() const noexcept {
  return std::int32_t{category} * 0x10000 + std::int32_t{record};
}

RowOrigin RowOrigin::of(const ListItem& row) noexcept {
  const auto record = static_cast<std::uint16_t>(row.data & 0xFFFF);
  return {static_cast<std::int16_t>((row.data - record) / 0x10000), record};
}

bool CategoryRows::holds(const ListItem& row) const {
  if (row.text.empty()) return false;
  if (row.tag.empty() && RowOrigin::of(row).category != number) return false;
  return row.text == type || row.text == prefix;
}

void relistRecord(ListView& events, RowOrigin origin, std::vector<EventRow> rows, bool whole) {
  const std::int32_t data = origin.packed();
  const Numbers checked = checkedNumbers(events, data);
  Numbers again;
  for (EventRow& row : rows) {
    row.row.data = data;
    row.row.checked = checked.contains(numberTextOf(row.row));
    again.insert(numberTextOf(row.row));
  }
  events.removeIf([&](const ListItem& row) {
    if (!row.tag.empty() || row.data != data) return false;
    return whole || again.contains(numberTextOf(row));
  });
  EventRowMerge merge(events);
  for (EventRow& row : rows) merge.add(row.eventId, std::move(row.row));
  merge.finish();
}

}  // namespace pelorin
