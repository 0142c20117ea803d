// The cells of the two logs.
#pragma once

#include <string>

#include "host/core/statement_log.h"
#include "site/audit_log.h"

namespace pelorin::host {

// Columns: time, action, object, ID, description, code.
std::string auditText(const AuditRecord& record, int column);

// Columns: statement, rows, milliseconds, error.
std::string statementText(const Statement& statement, int column);

}  // namespace pelorin::host
