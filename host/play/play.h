// Plays the typical request by itself and says whether all was as expected.
#pragma once

#include "host/core/options.h"

namespace pelorin::host {

// Makes a database of its own, unless a server was named, opens the main window and the component,
// plays the request and closes everything. Prints each step, what was sent and logged, and the
// summary before and after. 0 when all was as expected, else 1. On a server the rows are left, or
// removed as the options say.
int play(const Options& options);

}  // namespace pelorin::host
