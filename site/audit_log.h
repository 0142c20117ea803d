// What operators did, kept in the database file.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace pelorin {

namespace site {
class Engine;
}

struct AuditRecord {
  std::int64_t number = 0;  // given by the log, rising
  std::string loggedAt;     // local time, given by the log
  std::string operation;
  std::string objectKind;
  std::int32_t objectId = 0;
  std::string description;
  std::int16_t eventCode = 0;
};

class AuditLog {
 public:
  explicit AuditLog(std::shared_ptr<site::Engine> engine) : engine_(std::move(engine)) {}

  void append(const AuditRecord& record);
  // The records after the given number, oldest first.
  std::vector<AuditRecord> recordsAfter(std::int64_t number) const;

 private:
  std::shared_ptr<site::Engine> engine_;
};

}  // namespace pelorin
