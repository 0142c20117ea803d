// Reads all results of an executed ODBC statement into memory.
#pragma once

#include <exception>
#include <string>
#include <vector>

#include "base/value.h"
#include "host/odbc/odbc_handle.h"

namespace pelorin::host {

struct OdbcResult {
  std::vector<std::string> columns;  // none: a statement that returns no rows
  std::vector<Value> cells;          // row after row
  std::exception_ptr error;          // that came after these rows
};

struct OdbcResults {
  std::vector<OdbcResult> results;
  std::vector<ServerMessage> messages;
};

// A result that is nothing but a message of the server counts as no result.
OdbcResults readResults(const OdbcStatement& statement, SQLRETURN executed);

}  // namespace pelorin::host
