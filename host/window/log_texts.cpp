#include "host/window/log_texts.h"

#include <array>
#include <cstdio>

namespace pelorin::host {

std::string auditText(const AuditRecord& record, int column) {
  switch (column) {
    case 0:
      return record.loggedAt;
    case 1:
      return record.operation;
    case 2:
      return record.objectKind;
    case 3:
      return std::to_string(record.objectId);
    case 4:
      return record.description;
    default:
      return std::to_string(record.eventCode);
  }
}

std::string statementText(const Statement& statement, int column) {
  switch (column) {
    case 0:
      return statement.text;
    case 1:
      return std::to_string(statement.rows);
    case 2: {
      std::array<char, 32> text{};
      std::snprintf(text.data(), text.size(), "%.2f", statement.milliseconds);
      return text.data();
    }
    default:
      return statement.error;
  }
}

}  // namespace pelorin::host
