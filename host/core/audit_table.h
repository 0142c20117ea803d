// The audit log's table behind any connection; takes the statement as SQL Server does.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "database/connection.h"
#include "site/audit_log.h"

namespace pelorin::host {

class AuditTable {
 public:
  explicit AuditTable(std::shared_ptr<Connection> connection)
      : connection_(std::move(connection)) {}

  // With the record's own time; its number is the table's affair. The login needs the right to
  // insert.
  void append(const AuditRecord& record) const;

 private:
  std::shared_ptr<Connection> connection_;
};

}  // namespace pelorin::host
