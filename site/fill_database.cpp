#include "site/fill_database.h"

#include "site/embedded_schema.h"

namespace pelorin::site {

void createTables(Engine& engine) {
  for (const Table& table : siteSchema().tables()) engine.script(embeddedDefinition(table));
}

void EngineRows::begin(const Table& table, const ColumnNames& columns) {
  insert_ = std::make_unique<EngineStatement>(engine_, embeddedInsert(table, columns));
}

void EngineRows::row(const Row& row) {
  for (std::size_t at = 0; at < row.size(); ++at) insert_->bind(static_cast<int>(at + 1), row[at]);
  insert_->step();
  insert_->reset();
}

}  // namespace pelorin::site
