#include "site/fill_database.h"

#include "site/embedded_schema.h"
#include "site/errors.h"

namespace pelorin::site {

void createTables(Engine& engine) {
  for (const Table& table : siteSchema().tables()) engine.script(embeddedDefinition(table));
}

void EngineRows::begin(const Table& table, const ColumnNames& columns) {
  table_ = table.name;
  columns_.clear();
  for (const std::string& name : columns) columns_.push_back(table.column(name));
  insert_ = std::make_unique<EngineStatement>(engine_, embeddedInsert(table, columns));
}

void EngineRows::row(const Row& row) {
  for (std::size_t at = 0; at < row.size(); ++at) {
    // A null would have the engine number the row, which a server refuses.
    if (isNull(row[at]) && columns_[at]->required) throw nullError(table_, columns_[at]->name);
    insert_->bind(static_cast<int>(at + 1), row[at]);
  }
  insert_->step();
  insert_->reset();
}

}  // namespace pelorin::site
