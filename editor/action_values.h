// What the operator set on an action panel, as it is written to the database.
#pragma once

#include <cstdint>
#include <string>

#include "common/at_line.h"
#include "controls/item_lists.h"

namespace pelorin {

struct CctvValues {
  std::int32_t switcher = 0;
  std::int16_t monitor = 0;
  std::int16_t camera = 0;
  std::int16_t preset = 0;
  std::int16_t action = 0;
  std::int16_t alarm = 0;
  bool openViewer = false;
};

struct DvrValues {
  std::int32_t recorder = 0;
  std::int32_t camera = 0;
  double rate = 0;  // images per second
  std::int32_t alarmDuration = 0;
  std::int32_t recordStandard = 0;
  std::int32_t preset = 0;
  std::int32_t viewGroup = 0;
  std::int32_t commandSet = 0;
};

class CctvPanel;
class DvrPanel;

// Error 380, naming the field, when a combo that the chosen action needs has no selection; error 6
// when a value is too large for the database.
CctvValues readValues(const CctvPanel& panel);
DvrValues readValues(const DvrPanel& panel);

// Whether saving would keep the stored value, or its list was read whole, so that what the list
// shows in its stead is right. `optional`: nothing selected is saved as 0.
bool standsFor(const ComboBox& combo, std::int32_t stored, bool listRead, bool optional = false);

// Item data of the selected row.
std::int32_t dataOrZero(const ComboBox& combo);
std::int32_t requiredData(const ComboBox& combo, const std::string& field,
                          SourceLine where = SourceLine::current());

}  // namespace pelorin
