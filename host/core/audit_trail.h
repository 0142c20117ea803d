// The audit log as the host shows it: what the database file keeps, or, over a server, what was
// written into its table since the start.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "host/core/audit_table.h"
#include "site/audit_log.h"

namespace pelorin::host {

class AuditTrail {
 public:
  AuditTrail() = default;
  explicit AuditTrail(AuditLog file);
  explicit AuditTrail(AuditTable table);

  std::function<void()> onChange;

  const std::vector<AuditRecord>& records() const noexcept { return records_; }

  // Time is given here, and a number for the view. A record that cannot be kept is not shown
  // either.
  void add(AuditRecord record);

 private:
  void readNew();

  std::optional<AuditLog> file_;
  std::optional<AuditTable> table_;
  std::vector<AuditRecord> records_;
};

// Local time, "2026-11-21 08:30:00".
std::string localTimeText();

}  // namespace pelorin::host
