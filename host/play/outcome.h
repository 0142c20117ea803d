// What a played request has to leave behind, checked and told.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "host/core/played_rows.h"
#include "host/play/stage.h"
#include "host/play/typical_request.h"

namespace pelorin::host {

// How things stood before the request.
struct Standing {
  std::size_t statements = 0;
  std::size_t records = 0;
  std::set<std::int32_t> triggers;  // numbers of the CCTV triggers in the database
};

Standing standing(const Stage& stage);

// Tells what was sent and logged since then and what the summary showed; the differences from what
// is expected, none when all is well.
std::vector<std::string> tellOutcome(const Stage& stage, const Standing& before,
                                     const SummaryRows& rows);

// The rows that the request wrote and that are in the database now, read anew.
std::vector<PlayedRow> rowsWritten(const Stage& stage, const Standing& before);

}  // namespace pelorin::host
