#include "site/audit_log.h"

#include "site/engine.h"

namespace pelorin {

namespace {

constexpr const char* insertSql =
    "insert into AuditLog (LoggedAt, Operation, ObjectKind, ObjectID, Description, EventCode) "
    "values (strftime('%Y-%m-%d %H:%M:%S', 'now', 'localtime'), ?, ?, ?, ?, ?)";
constexpr const char* selectSql =
    "select AuditID, LoggedAt, Operation, ObjectKind, ObjectID, Description, EventCode "
    "from AuditLog where AuditID > ? order by AuditID";

}  // namespace

void AuditLog::append(const AuditRecord& record) {
  site::EngineStatement insert(engine_, insertSql);
  insert.bind(1, record.operation);
  insert.bind(2, record.objectKind);
  insert.bind(3, std::int64_t{record.objectId});
  insert.bind(4, record.description);
  insert.bind(5, std::int64_t{record.eventCode});
  insert.step();
}

std::vector<AuditRecord> AuditLog::recordsAfter(std::int64_t number) const {
  site::EngineStatement select(engine_, selectSql);
  select.bind(1, number);
  std::vector<AuditRecord> records;
  while (select.step()) {
    records.push_back({toInt64(select.value(0)), toText(select.value(1)), toText(select.value(2)),
                       toText(select.value(3)), toInt32(select.value(4)), toText(select.value(5)),
                       toInt16(select.value(6))});
  }
  return records;
}

}  // namespace pelorin
