// The rows of an event type on their way into the events list, which is kept in ascending order of
// the event numbers in sub-item 1.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "controls/list_view.h"

namespace pelorin {

// The first row from `start` on whose number is not below `eventId`; count + 1 when there is none.
int FindEventInsertPosition(const ListView& events, std::int32_t eventId, int start);

// Finds each row's place as it comes and inserts all of them at the end, so that thousands of rows
// do not move the list thousands of times. A position never goes back: a row that is not in
// ascending order stays behind the one before it.
class EventRowMerge {
 public:
  explicit EventRowMerge(ListView& events) noexcept : events_(events) {}

  void add(std::int32_t eventId, ListItem row);
  void finish();

 private:
  ListView& events_;
  int position_ = 1;  // of the listed row in front of which the next one goes
  std::vector<ListInsertion> rows_;
};

// Which record of the catalogue a row comes from, and for which category: kept in the row's data.
struct RowOrigin {
  std::int16_t category = 0;
  std::uint16_t record = 0;  // its index in the catalogue

  std::int32_t packed() const noexcept;
  static RowOrigin of(const ListItem& row) noexcept;
};

// Whose rows a category's are. Two categories can show the same type text: an ordinary row belongs
// to the one it was listed for.
struct CategoryRows {
  std::int16_t number = 0;
  std::string type;
  std::string prefix;

  bool holds(const ListItem& row) const;
};

struct EventRow {
  std::int32_t eventId = 0;
  ListItem row;
};

// Lists what was read of one record of the catalogue, in ascending order, in place of the rows that
// an earlier reading of it had listed; an event that comes again keeps its check mark. `whole` is
// false when an error ended the reading: rows that did not come again then stay.
void relistRecord(ListView& events, RowOrigin origin, std::vector<EventRow> rows, bool whole);

}  // namespace pelorin
