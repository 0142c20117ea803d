// Which of an event's two texts is shown.
#pragma once

#include <string>

#include "database/connection.h"

namespace pelorin {

// Of the current row: Description when it is not empty (a null is) and customised texts are to be
// shown, else DefaultDescription.
std::string eventText(const RecordSet& row, bool enableCustomize,
                      SourceLine where = SourceLine::current());

}  // namespace pelorin
