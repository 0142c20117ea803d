#include "host/play/leftovers.h"

#include <string>
#include <vector>

namespace pelorin::host {

namespace {

constexpr std::int16_t triggerDeleted = 1186;

std::string numbersOf(const std::vector<PlayedRow>& rows) {
  std::string numbers;
  for (const PlayedRow& row : rows) {
    numbers += (numbers.empty() ? "" : ", ") + std::to_string(row.id);
  }
  return numbers;
}

void tellWritten(const Stage& stage, const std::vector<PlayedRow>& rows) {
  stage.tell("\nRows written into CCTV_TriggerAction:");
  for (const PlayedRow& row : rows) {
    stage.tell("  TA_ID " + std::to_string(row.id) + ": " + row.address + ", event " +
               std::to_string(row.event));
  }
}

// Whoever reads the audit log finds out that what was added is gone.
bool removeAndLog(const HostSession& session, const PlayedRow& row) {
  if (!removeRow(*session.data().another(), row)) return false;
  AuditRecord record;
  record.operation = "Delete";
  record.objectKind = "TriggerAction";
  record.objectId = row.id;
  record.description = "Trigger Event " + std::to_string(row.event);
  record.eventCode = triggerDeleted;
  session.data().audit().add(std::move(record));
  return true;
}

bool removeWritten(const Stage& stage, const std::vector<PlayedRow>& rows) {
  if (!areCertain(rows)) {
    stage.tell(
        "None was removed: somebody else wrote the same, and whose is whose cannot be told.");
    return false;
  }
  for (const PlayedRow& row : rows) {
    if (!stage.ui().run([&] { return removeAndLog(stage.session(), row); })) {
      stage.tell("TA_ID " + std::to_string(row.id) + " could not be removed.");
      return false;
    }
  }
  stage.tell("Removed again: " + numbersOf(rows) + ".");
  return true;
}

}  // namespace

bool settleRows(const Stage& stage, const Standing& before, bool undo) {
  const std::vector<PlayedRow> rows = rowsWritten(stage, before);
  if (rows.empty()) {
    stage.tell("\nNo row was written.");
    return true;
  }
  tellWritten(stage, rows);
  if (undo) return removeWritten(stage, rows);
  stage.tell("They were left there: " + numbersOf(rows) + ".");
  return true;
}

}  // namespace pelorin::host
