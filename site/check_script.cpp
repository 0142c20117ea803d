#include "site/check_script.h"

#include "site/script_session.h"
#include "site/source_checks.h"
#include "site/statement_call.h"

namespace pelorin::site {

namespace {

// Each step leaves a mark when it passed. What failed is what left none: so a step that the server
// could not even read counts as well.
class CheckWriter {
 public:
  explicit CheckWriter(const BatchSink& sink) : sink_(sink) {}

  void source(const SourceCheck& check) {
    ++steps_;
    sink_("if " + check.condition + " " + setMark(mark::passed) + "\nelse print N'" +
          check.complaint + "'");
  }

  // Not every server can tell what a procedure returns; that alone is no fault of the procedure.
  void result(const Procedure& procedure, const SourceCheck& check) {
    ++steps_;
    const std::string known = "if " + check.condition + " " + setMark(mark::passed) + " else if " +
                              canDescribeResult(procedure) + " print N'" + check.complaint +
                              "' else raiserror(N'The server cannot tell.', 16, 1)";
    sink_("begin try\nexec (" + serverText(known) + ")\nend try\nbegin catch\nprint N'" +
          procedure.name + ": result not compared. ' + error_message()\n" + setMark(mark::passed) +
          "\nend catch");
  }

  // A procedure's bare name is a call only as the first word of a batch: the inner text is one, and
  // word for word what the component sends. What the inner batch does to the transaction around it
  // is undone in the same batch that began it.
  void statement(const std::string& name, const std::string& text, bool writes) {
    sink_("print N'" + name + "'\nif " + (writes ? nothingFailed() : noTransaction_) + "\n" +
          attempt(text) + "\nelse\nbegin\nprint N'  Not sent: " +
          (writes ? "something failed before" : "a transaction is open") + ".'\n" +
          setMark(mark::skipped) + "\nend");
    ++steps_;
  }

  void end() {
    sink_("declare @errors int, @skipped int, @kept nvarchar(100)\nselect @errors = " +
          std::to_string(steps_) + " - count(*) from " + markTable + " where Mark in (N'" +
          mark::passed + "', N'" + mark::skipped + "')\nselect @skipped = count(*) from " +
          markTable + " where Mark = N'" + mark::skipped +
          "'\nset @kept = N'nothing was kept'\nif " + hasMark(mark::ended) +
          " set @kept = N'a statement ended its transaction, what it wrote may have been kept'\n"
          "if @errors + @skipped = 0 " +
          printDone("5-check.sql", ": no errors; nothing was kept.") +
          "\nelse raiserror(N'5-check.sql: %d errors, %d statements not sent; %s.', 16, 1, "
          "@errors, @skipped, @kept)");
  }

 private:
  std::string nothingFailed() const {
    return std::string(noTransaction_) + " and (select count(*) from " + markTable +
           " where Mark = N'" + mark::passed + "') = " + std::to_string(steps_);
  }

  static std::string attempt(const std::string& text) {
    return "begin\nbegin try\nbegin transaction\nexec (" + serverText(text) +
           ")\nif @@trancount = 0 raiserror(N'The statement ended its transaction.', 16, 1)\n"
           "rollback transaction\n" +
           setMark(mark::passed) +
           "\nend try\nbegin catch\ndeclare @message nvarchar(2048)\n"
           "set @message = N'  Error ' + cast(error_number() as nvarchar(11)) + N': ' + "
           "error_message()\n"
           "if @@trancount > 0 rollback transaction\nelse " +
           setMark(mark::ended) + "\nprint @message\nend catch\nend";
  }

  static constexpr const char* noTransaction_ = "@@trancount = 0";
  const BatchSink& sink_;
  std::size_t steps_ = 0;
};

void checkTables(CheckWriter& writer) {
  for (const Table& table : siteSchema().tables()) {
    for (const Column& column : table.columns) writer.source(columnCheck(table, column));
  }
}

void checkProcedures(CheckWriter& writer) {
  for (const Procedure& procedure : siteProcedures()) {
    for (std::size_t at = 0; at < procedure.parameters.size(); ++at) {
      writer.source(parameterCheck(procedure, at));
    }
    for (std::size_t at = 0; at < procedure.results.size(); ++at) {
      writer.result(procedure, resultCheck(procedure, at));
    }
  }
}

}  // namespace

void writeCheck(const BatchSink& sink) {
  CheckWriter writer(sink);
  checkTables(writer);
  checkProcedures(writer);
  for (const SiteStatement& statement : siteStatements()) {
    writer.statement(statement.name, serverBatch(statement), statement.writes);
  }
  writer.end();
}

}  // namespace pelorin::site
