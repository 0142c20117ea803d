#include "host/core/audit_table.h"

namespace pelorin::host {

namespace {

std::string quotedText(const std::string& text) {
  std::string quoted = "N'";
  for (const char c : text) quoted.append(c == '\'' ? 2 : 1, c);
  return quoted + "'";
}

}  // namespace

void AuditTable::append(const AuditRecord& record) const {
  connection_->execute(
      "insert into AuditLog (LoggedAt, Operation, ObjectKind, ObjectID, Description, EventCode) "
      "values (" +
      quotedText(record.loggedAt) + ", " + quotedText(record.operation) + ", " +
      quotedText(record.objectKind) + ", " + std::to_string(record.objectId) + ", " +
      quotedText(record.description) + ", " + std::to_string(record.eventCode) + ")");
}

}  // namespace pelorin::host
