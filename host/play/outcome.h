// What a played request has to leave behind, checked and told.
#pragma once

#include <string>
#include <vector>

#include "host/play/stage.h"
#include "host/play/typical_request.h"

namespace pelorin::host {

// Where logs stood before the request.
struct LogMarks {
  std::size_t statements = 0;
  std::size_t records = 0;
};

LogMarks marksOf(const Stage& stage);

// Tells what was sent and logged since then and what the summary showed; the differences from what
// is expected, none when all is well. `file` is the database.
std::vector<std::string> tellOutcome(const Stage& stage, const LogMarks& since,
                                     const SummaryRows& rows, const std::string& file);

}  // namespace pelorin::host
