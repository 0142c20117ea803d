#include "site/component_rights.h"

#include <algorithm>

#include "base/text_key.h"
#include "site/schema.h"
#include "site/sql_tokens.h"
#include "site/statement_call.h"

namespace pelorin::site {

namespace {

bool namesATable(const Token& before) {
  return equalNoCase(before.text, "from") || equalNoCase(before.text, "join");
}

void addTables(const std::string& sql, ComponentRights& rights) {
  const std::vector<Token> tokens = tokenize(sql);
  for (std::size_t at = 1; at < tokens.size(); ++at) {
    const Table* table = siteSchema().table(tokens[at].text);
    if (!table || !namesATable(tokens[at - 1])) continue;
    // A delete with a condition reads too.
    rights.read.insert(table->name);
    if (equalNoCase(tokens.front().text, "delete")) rights.remove.insert(table->name);
  }
}

bool hasColumns(const Table& table, const std::vector<std::string>& names) {
  return std::all_of(names.begin(), names.end(),
                     [&](const std::string& name) { return table.column(name) != nullptr; });
}

// A table in a place of the statement comes out of the event types at run time: it can be each one
// with the columns that are read.
void addTablesInPlaces(const SiteStatement& statement, ComponentRights& rights) {
  for (const StatementPlace& place : statement.places) {
    if (!siteSchema().table(place.sample)) continue;
    for (const Table& table : siteSchema().tables()) {
      if (hasColumns(table, statement.columns)) rights.read.insert(table.name);
    }
  }
}

}  // namespace

ComponentRights componentRights() {
  ComponentRights rights;
  for (const SiteStatement& statement : siteStatements()) {
    if (const Procedure* procedure = calledProcedure(statement)) {
      rights.execute.insert(procedure->name);
    } else {
      addTables(statement.text, rights);
      addTablesInPlaces(statement, rights);
    }
  }
  return rights;
}

}  // namespace pelorin::site
