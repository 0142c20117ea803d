// What a played request has to leave behind, checked and told.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "host/play/stage.h"
#include "host/play/typical_request.h"

namespace pelorin::host {

// How things stood before the request.
struct Standing {
  std::size_t statements = 0;
  std::size_t records = 0;
  std::set<std::string> triggers;  // keys of the CCTV triggers in the database
};

// `file` is the database.
Standing standing(const Stage& stage, const std::string& file);

// Tells what was sent and logged since then and what the summary showed; the differences from what
// is expected, none when all is well.
std::vector<std::string> tellOutcome(const Stage& stage, const Standing& before,
                                     const SummaryRows& rows, const std::string& file);

}  // namespace pelorin::host
