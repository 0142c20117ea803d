// A database that answers prepared results and writes each statement to the journal ("sql: ...").
//
//   connection.answer("select * from Servers", {{"ServerID"}, {{1}, {2}}});
//   connection.fail("exec TA_FetchSummary");
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "common/database.h"
#include "tests/fakes/journal.h"

namespace pelorin::test {

struct Result {
  std::vector<std::string> columns;
  std::vector<std::vector<Value>> rows;
};

class ScriptedConnection : public Connection {
 public:
  explicit ScriptedConnection(Journal& journal) : journal_(journal) {}

  // A statement without an answer gives no rows and no columns.
  void answer(const std::string& sql, Result result) { results_[sql] = std::move(result); }
  void fail(const std::string& sql, const std::string& description = "statement failed") {
    failures_[sql] = description;
  }
  // Rows of `sql` from number `row` (from 0) on cannot be fetched.
  void failFetch(const std::string& sql, std::size_t row) { fetchFailures_[sql] = row; }
  // Answers a procedure call; the default sets no output parameter.
  std::function<void(ProcedureCall&)> onCall;

  int openCursors() const { return *openCursors_; }
  // The most results that were open at once.
  int mostOpenCursors() const { return mostOpen_; }
  std::vector<std::string> statements() const { return journal_.of("sql: "); }

 protected:
  std::unique_ptr<Cursor> openCursor(std::string_view sql) override;
  void run(std::string_view sql) override;
  void call(ProcedureCall& call) override;

 private:
  void note(std::string_view sql);

  Journal& journal_;
  std::map<std::string, Result> results_;
  std::map<std::string, std::string> failures_;
  std::map<std::string, std::size_t> fetchFailures_;
  std::shared_ptr<int> openCursors_ = std::make_shared<int>(0);
  int mostOpen_ = 0;
};

}  // namespace pelorin::test
