// What a played request leaves on a server, and taking it away again.
#pragma once

#include "host/play/outcome.h"
#include "host/play/stage.h"

namespace pelorin::host {

// Tells which rows the request wrote; with `undo` removes exactly those, with an audit record for
// each, and tells that. False when they were to be removed and could not be.
bool settleRows(const Stage& stage, const Standing& before, bool undo);

}  // namespace pelorin::host
