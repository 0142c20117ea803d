#include "site/script_session.h"

namespace pelorin::site {

namespace {

// The number of the last error outlives its batch, also when the batch did not even compile.
std::string noteError() {
  return "if @@error <> 0\nbegin\nif " + hasMark(mark::begun) + " rollback transaction\n" +
         setMark(mark::error) + "\nend";
}

}  // namespace

std::string setMark(const std::string& mark) {
  return std::string("insert into ") + markTable + " (Mark) values (N'" + mark + "')";
}

std::string hasMark(const std::string& mark) {
  return std::string("exists (select 1 from ") + markTable + " where Mark = N'" + mark + "')";
}

void beginScript(const BatchSink& sink) {
  sink("set quoted_identifier on");
  sink("set ansi_nulls on");
  sink("set nocount on");
  sink("set implicit_transactions off");
  sink("set xact_abort on");
  const std::string table = markTable;
  sink("if object_id(N'tempdb.." + table + "') is null create table " + table +
       " (Mark nvarchar(10) not null)\nelse delete from " + table);
}

BatchSink noticingErrors(const BatchSink& sink) {
  return [sink](const std::string& batch) {
    sink(batch);
    sink(noteError());
  };
}

void endScript(const std::string& script, const BatchSink& sink) {
  sink("if " + hasMark(mark::error) + "\nraiserror(N'" + script + " had errors.', 16, 1)\nelse " +
       printDone(script));
}

std::string printDone(const std::string& script, const std::string& more) {
  return "print N'" + script + "' + N' is done" + more + "'";
}

}  // namespace pelorin::site
