#include "host/core/audit_trail.h"

#include <array>
#include <ctime>
#include <iterator>
#include <utility>

namespace pelorin::host {

AuditTrail::AuditTrail(AuditLog file) : file_(std::move(file)) {
  readNew();
}

AuditTrail::AuditTrail(AuditTable table) : table_(std::move(table)) {}

void AuditTrail::add(AuditRecord record) {
  if (file_) {
    file_->append(record);
    readNew();
  } else {
    record.number = static_cast<std::int64_t>(records_.size()) + 1;
    record.loggedAt = localTimeText();
    if (table_) table_->append(record);
    records_.push_back(std::move(record));
  }
  if (onChange) onChange();
}

void AuditTrail::readNew() {
  std::vector<AuditRecord> added =
      file_->recordsAfter(records_.empty() ? 0 : records_.back().number);
  std::move(added.begin(), added.end(), std::back_inserter(records_));
}

std::string localTimeText() {
  const std::time_t now = std::time(nullptr);
  std::tm parts{};
#ifdef _WIN32
  localtime_s(&parts, &now);
#else
  localtime_r(&now, &parts);
#endif
  std::array<char, 32> text{};
  const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &parts);
  return {text.data(), length};
}

}  // namespace pelorin::host
