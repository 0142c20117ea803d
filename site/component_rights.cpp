#include "site/component_rights.h"

#include "controls/text_key.h"
#include "site/batch_reader.h"
#include "site/procedure.h"
#include "site/schema.h"
#include "site/sql_tokens.h"
#include "site/statement_table.h"

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

// The names of these tables come out of the event types at run time.
void addEventTables(ComponentRights& rights) {
  for (const Table& table : siteSchema().tables()) {
    if (table.column("EventId") && table.column("DefaultDescription")) {
      rights.read.insert(table.name);
    }
  }
}

}  // namespace

ComponentRights componentRights() {
  ComponentRights rights;
  for (const SiteStatement& statement : siteStatements()) {
    const Batch batch = readBatch(statement.text);
    if (const auto* call = std::get_if<CallText>(&batch)) {
      rights.execute.insert(findProcedure(call->procedure).name);
    } else {
      addTables(statement.text, rights);
    }
  }
  // Called through a command, not by a statement.
  rights.execute.insert("DVR_AddAction");
  addEventTables(rights);
  return rights;
}

}  // namespace pelorin::site
