#include "site/source_checks.h"

#include <algorithm>

#include "site/statement_call.h"
#include "site/transact_sql.h"

namespace pelorin::site {

namespace {

std::string typeName(const SqlType& type) {
  return type.isText() ? "nvarchar" : sqlTypeText(type);
}

std::string describedResult(const Procedure& procedure) {
  return "sys.dm_exec_describe_first_result_set_for_object(object_id(N'dbo." +
         bracketed(procedure.name) + "'), 0)";
}

bool readsPosition(const SiteStatement& statement, std::size_t at) {
  const std::string position = "#" + std::to_string(at);
  return std::find(statement.columns.begin(), statement.columns.end(), position) !=
         statement.columns.end();
}

bool calls(const SiteStatement& statement, const Procedure& procedure) {
  const Procedure* called = calledProcedure(statement);
  return called && called->name == procedure.name;
}

bool isReadByPosition(const Procedure& procedure, std::size_t at) {
  const auto& all = siteStatements();
  return std::any_of(all.begin(), all.end(), [&](const SiteStatement& statement) {
    return readsPosition(statement, at) && calls(statement, procedure);
  });
}

}  // namespace

SourceCheck columnCheck(const Table& table, const Column& column) {
  const std::string type = typeName(column.type);
  return {
      "exists (select 1 from information_schema.columns where table_schema = N'dbo'"
      " and table_name = N'" +
          table.name + "' and column_name = N'" + column.name + "' and data_type = N'" + type +
          "')",
      "Column " + table.name + "." + column.name + " is missing or not " + type + "."};
}

SourceCheck parameterCheck(const Procedure& procedure, std::size_t at) {
  const std::string& parameter = procedure.parameters[at].name;
  const std::string position = std::to_string(at + 1);
  return {
      "exists (select 1 from information_schema.parameters where specific_schema = N'dbo'"
      " and specific_name = N'" +
          procedure.name + "' and parameter_name = N'" + parameter +
          "' and ordinal_position = " + position + ")",
      "Parameter " + position + " of " + procedure.name + " is not " + parameter + "."};
}

SourceCheck resultCheck(const Procedure& procedure, std::size_t at) {
  const ResultColumn& column = procedure.results[at];
  const std::string type = typeName(column.type);
  const std::string wanted = column.type.isText() ? "like N'" + type + "(%'" : "= N'" + type + "'";
  const std::string position = std::to_string(at + 1);
  const bool byPosition = isReadByPosition(procedure, at);
  return {"exists (select 1 from " + describedResult(procedure) + " where name = N'" + column.name +
              "' and system_type_name " + wanted +
              (byPosition ? " and column_ordinal = " + position : "") + ")",
          "Result column " + procedure.name + "." + column.name + " is missing, not " + type +
              (byPosition ? " or not at position " + position : "") + "."};
}

std::string canDescribeResult(const Procedure& procedure) {
  return "not exists (select 1 from " + describedResult(procedure) +
         " where error_number is not null)";
}

}  // namespace pelorin::site
