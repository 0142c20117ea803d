// The rows of an event type on their way into the events list, which is kept in ascending order of
// the event numbers in sub-item 1.
#pragma once

#include <cstdint>
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

}  // namespace pelorin
