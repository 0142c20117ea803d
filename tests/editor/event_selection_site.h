// The rows of the filter list, what they ask the database, and the controls of the event selection.
#pragma once

#include <string>

#include "tests/editor/editor_site.h"

namespace pelorin::test {

inline constexpr int alarmRow = 0;
inline constexpr int doorRow = 1;
inline constexpr int systemRow = 2;
inline constexpr int transactionRow = 3;
inline constexpr int miscellaneousRow = 4;

inline const char* const doorQuery =
    "select EventId, Description, DefaultDescription from DoorEvents where EventID >= 100 and "
    "EventID <= 199 order by EventID";

class EventSelectionTest : public EditorTest {
 protected:
  ListView& events() { return control<ListView>("lvwEvents"); }
  ListBox& filters() { return control<ListBox>("lstEventFilters"); }
  ComboBox& event() { return combo("cmbEvents"); }

  void editEvent(int eventId) {
    answerCctvTrigger(5, {5, "1.2.3", eventId, 11, 1, 1, 1, 31, 0, 0});
    editCctv();
  }
};

}  // namespace pelorin::test
