// The script that checks a server's tables and procedures and sends it every statement of the
// component, without leaving anything behind.
#pragma once

#include "site/transact_sql.h"

namespace pelorin::site {

// Sends the batches between the beginning of the script and its end, which is included.
void writeCheck(const BatchSink& sink);

}  // namespace pelorin::site
