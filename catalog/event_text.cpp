#include "catalog/event_text.h"

namespace pelorin {

std::string eventText(const RecordSet& row, bool enableCustomize, SourceLine where) {
  std::string description = row.text("Description", where);
  if (enableCustomize && !description.empty()) return description;
  return row.text("DefaultDescription", where);
}

}  // namespace pelorin
