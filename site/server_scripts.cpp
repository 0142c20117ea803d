#include "site/server_scripts.h"

#include "site/check_script.h"
#include "site/component_rights.h"
#include "site/script_session.h"
#include "site/server_rows.h"

namespace pelorin::site {

namespace {

// A script whose batches need no transaction: each makes what is missing.
void counted(const std::string& name, const BatchSink& sink,
             const std::function<void(const BatchSink&)>& batches) {
  beginScript(sink);
  batches(noticingErrors(sink));
  endScript(name, sink);
}

void tables(const BatchSink& sink) {
  for (const Table& table : siteSchema().tables()) writeTable(table, sink);
}

void procedures(const BatchSink& sink) {
  for (const Procedure& procedure : siteProcedures()) writeProcedure(procedure, sink);
}

void data(const SiteFilling& filling, const BatchSink& sink) {
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

void check(const BatchSink& sink) {
  beginScript(sink);
  writeCheck(sink);
}

ServerScript countedScript(const std::string& name, const std::string& purpose,
                           const std::function<void(const BatchSink&)>& batches) {
  return {name, purpose, [=](const BatchSink& sink) { counted(name, sink, batches); }};
}

}  // namespace

std::vector<ServerScript> serverScripts(const SiteFilling& filling) {
  return {
      countedScript("1-tables.sql", "Tables, keys and indexes; those that exist are left alone.",
                    tables),
      countedScript("2-procedures.sql", "Procedures; those that exist are left alone.", procedures),
      countedScript("3-data.sql",
                    "Rows, all of them or none; nothing is added where there are rows.",
                    [filling](const BatchSink& sink) { data(filling, sink); }),
      countedScript("4-rights.sql", "A role with exactly the rights that the component needs.",
                    rights),
      {"5-check.sql",
       "Checks columns, parameters and results of procedures, then sends every statement of the "
       "component and undoes it. What is wrong is named; the last line tells how many errors.",
       check}};
}

}  // namespace pelorin::site
