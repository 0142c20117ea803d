#include "site/server_scripts.h"

#include "site/component_rights.h"
#include "site/statement_table.h"
#include "site/transact_sql.h"

namespace pelorin::site {

namespace {

void sessionSettings(const BatchSink& sink) {
  sink("set quoted_identifier on");
  sink("set ansi_nulls on");
  sink("set nocount on");
}

void tables(const BatchSink& sink) {
  sessionSettings(sink);
  for (const Table& table : siteSchema().tables()) writeTable(table, sink);
}

void procedures(const BatchSink& sink) {
  sessionSettings(sink);
  for (const Procedure& procedure : siteProcedures()) writeProcedure(procedure, sink);
}

void data(const SiteFilling& filling, const BatchSink& sink) {
  sessionSettings(sink);
  ServerRows rows(sink);
  filling(rows);
  rows.finish();
}

std::string grant(const std::string& right, const std::string& object) {
  return "grant " + right + " on dbo." + bracketed(object) + " to " + bracketed(componentRole);
}

void rights(const BatchSink& sink) {
  const ComponentRights needed = componentRights();
  const std::string role = componentRole;
  sink("if not exists (select 1 from sys.database_principals where name = N'" + role +
       "')\ncreate role " + bracketed(role));
  for (const std::string& table : needed.read) sink(grant("select", table));
  for (const std::string& table : needed.remove) sink(grant("delete", table));
  for (const std::string& procedure : needed.execute) sink(grant("execute", procedure));
}

// Complains about a column that is missing or of another type.
std::string columnCheck(const Table& table, const Column& column) {
  const std::string type = column.type.isText() ? "nvarchar" : sqlTypeText(column.type);
  return "if not exists (select 1 from information_schema.columns where table_schema = N'dbo'"
         " and table_name = N'" +
         table.name + "' and column_name = N'" + column.name + "' and data_type = N'" + type +
         "')\nprint N'Column " + table.name + "." + column.name + " is missing or not " + type +
         ".'";
}

// Calls pass their arguments by position.
std::string parameterCheck(const Procedure& procedure, std::size_t at) {
  const std::string& parameter = procedure.parameters[at].name;
  const std::string position = std::to_string(at + 1);
  return "if not exists (select 1 from information_schema.parameters where specific_schema = "
         "N'dbo' and specific_name = N'" +
         procedure.name + "' and parameter_name = N'" + parameter +
         "' and ordinal_position = " + position + ")\nprint N'Parameter " + position + " of " +
         procedure.name + " is not " + parameter + ".'";
}

void checkSource(const BatchSink& sink) {
  for (const Table& table : siteSchema().tables()) {
    for (const Column& column : table.columns) sink(columnCheck(table, column));
  }
  for (const Procedure& procedure : siteProcedures()) {
    for (std::size_t at = 0; at < procedure.parameters.size(); ++at) {
      sink(parameterCheck(procedure, at));
    }
  }
}

// Every statement is a batch of its own and word for word what the component sends: a procedure's
// bare name is a call only as the first word of a batch.
void checkStatements(const BatchSink& sink) {
  sink("begin transaction");
  for (const SiteStatement& statement : siteStatements()) {
    sink("print N'" + statement.name + "'");
    sink(statement.text);
  }
  sink("print N'AddDVRAction'");
  sink(
      "declare @id int\n"
      "exec DVR_AddAction @id output, 1, 1, 0.8e0, 15, 1, 0, 0, 0\n"
      "select DVRActionID, RecordRate from DVR_TriggerActions where DVRActionID = @id");
  sink("if @@trancount > 0 rollback transaction");
  sink("print N'All statements were sent; nothing was kept.'");
}

void check(const BatchSink& sink) {
  sessionSettings(sink);
  checkSource(sink);
  checkStatements(sink);
}

}  // namespace

std::vector<ServerScript> serverScripts(const SiteFilling& filling) {
  return {{"1-tables.sql", "Tables, keys and indexes; those that exist are left alone.", tables},
          {"2-procedures.sql", "Procedures; those that exist are left alone.", procedures},
          {"3-data.sql", "Rows, all of them or none; nothing is added where there are rows.",
           [filling](const BatchSink& sink) { data(filling, sink); }},
          {"4-rights.sql", "A role with exactly the rights that the component needs.", rights},
          {"5-check.sql",
           "Checks columns and parameters, then sends every statement of the component "
           "and undoes it. Columns and procedures that are wrong are named.",
           check}};
}

}  // namespace pelorin::site
