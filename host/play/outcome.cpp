#include "host/play/outcome.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <iterator>

namespace pelorin::host {

namespace {

constexpr std::size_t expectedRows = std::size(typical::addresses) * std::size(typical::events);
constexpr std::size_t shownColumns = 5;

template <class Entry>
std::vector<Entry> since(const std::vector<Entry>& entries, std::size_t mark) {
  return {entries.begin() + static_cast<std::ptrdiff_t>(std::min(mark, entries.size())),
          entries.end()};
}

std::vector<Statement> inserts(const Stage& stage, const Standing& before) {
  std::vector<Statement> all = stage.ui().run(
      [&] { return since(stage.session().statements().statements(), before.statements); });
  std::erase_if(all, [](const Statement& statement) {
    return !statement.text.starts_with("exec CCTV_Insert_TA ");
  });
  return all;
}

std::vector<AuditRecord> records(const Stage& stage, const Standing& before) {
  return stage.ui().run(
      [&] { return since(stage.session().data().audit().records(), before.records); });
}

std::string milliseconds(double time) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.2f ms", time);
  return text.data();
}

void tellStatements(const Stage& stage, const std::vector<Statement>& statements) {
  stage.tell("\nStatements sent:");
  for (const Statement& statement : statements) {
    stage.tell("  " + statement.text + "   (" + milliseconds(statement.milliseconds) + ")");
  }
}

void tellRecords(const Stage& stage, const std::vector<AuditRecord>& all) {
  stage.tell("\nAudit records:");
  for (const AuditRecord& record : all) {
    stage.tell("  " + record.loggedAt + "  " + record.operation + "  " + record.objectKind + "  " +
               std::to_string(record.objectId) + "  " + record.description + "  " +
               std::to_string(record.eventCode));
  }
}

void tellRows(const Stage& stage, const std::string& title, const std::vector<driver::Row>& rows) {
  stage.tell("\n" + title + ", " + std::to_string(rows.size()) + " rows:");
  for (const driver::Row& row : rows) {
    std::string line = " ";
    for (std::size_t i = 0; i < std::min(shownColumns, row.size()); ++i) {
      line += (i == 0 ? " " : " | ") + row[i];
    }
    stage.tell(line);
  }
}

bool areAdditions(const std::vector<AuditRecord>& all) {
  return std::all_of(all.begin(), all.end(), [](const AuditRecord& record) {
    return record.operation == "Add" && record.objectKind == "TriggerAction" &&
           record.eventCode == 1184;
  });
}

// A connection with real ADO does not tell what it sends.
bool wereSent(const Stage& stage, const std::vector<Statement>& statements) {
  return statements.size() == expectedRows || !stage.session().data().tellsStatements();
}

}  // namespace

// The database is asked anew: what counts is what another program would find in it.
Standing standing(const Stage& stage) {
  return stage.ui().run([&] {
    return Standing{.statements = stage.session().statements().statements().size(),
                    .records = stage.session().data().audit().records().size(),
                    .triggers = triggerNumbers(*stage.session().data().another())};
  });
}

std::vector<PlayedRow> rowsWritten(const Stage& stage, const Standing& before) {
  return stage.ui().run(
      [&] { return playedRows(*stage.session().data().another(), before.triggers); });
}

std::vector<std::string> tellOutcome(const Stage& stage, const Standing& before,
                                     const SummaryRows& rows) {
  const std::vector<Statement> sent = inserts(stage, before);
  const std::vector<AuditRecord> logged = records(stage, before);
  tellStatements(stage, sent);
  tellRecords(stage, logged);
  tellRows(stage, "Summary before", rows.before);
  tellRows(stage, "Summary after", rows.after);
  std::vector<std::string> faults;
  const auto expect = [&](bool holds, const char* fault) {
    if (!holds) faults.emplace_back(fault);
  };
  expect(wereSent(stage, sent), "not four statements were sent");
  expect(logged.size() == expectedRows && areAdditions(logged),
         "the audit log did not get its four records");
  expect(rows.after.size() == rows.before.size() + expectedRows,
         "the summary did not grow by four rows");
  expect(isWhole(rowsWritten(stage, before)), "the database does not hold the four rows");
  return faults;
}

}  // namespace pelorin::host
