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

#include "database/connection.h"
#include "tests/fakes/journal.h"

namespace pelorin::test {

struct Result {
  std::vector<std::string> columns;
  std::vector<std::vector<Value>> rows;
};

struct FetchFailure {
  std::size_t row = 0;
  bool losesBlock = false;
};

class ScriptedConnection : public Connection {
 public:
  explicit ScriptedConnection(Journal& journal) : journal_(journal) {}

  // A statement without an answer gives no rows and no columns.
  void answer(const std::string& sql, Result result) { results_[sql] = std::move(result); }
  void fail(const std::string& sql, const std::string& description = "statement failed") {
    failures_.insert_or_assign(sql, RunTimeError(-2147217900, description));
  }
  // The connection is found lost when `sql` is sent.
  void lose(const std::string& sql) {
    fail(sql, "connection lost");
    failures_.at(sql).setConnectionLost();
  }
  // Rows of `sql` from number `row` (from 0) on cannot be fetched. Those before it come, also those
  // of its block...
  void failFetch(const std::string& sql, std::size_t row) { fetchFailures_[sql] = {row, false}; }
  // ...or the whole block is lost, as with ADO.
  void loseBlock(const std::string& sql, std::size_t row) { fetchFailures_[sql] = {row, true}; }
  // Runs while a statement is on its way, as a host that pumps messages there.
  std::function<void(const std::string& sql)> onStatement;
  // Nothing fails any more.
  void mend() {
    failures_.clear();
    fetchFailures_.clear();
  }
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
  std::map<std::string, RunTimeError> failures_;
  std::map<std::string, FetchFailure> fetchFailures_;
  std::shared_ptr<int> openCursors_ = std::make_shared<int>(0);
  int mostOpen_ = 0;
};

}  // namespace pelorin::test
