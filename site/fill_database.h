// Makes the tables in an empty embedded database and takes rows into them.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "site/engine.h"
#include "site/row_data.h"

namespace pelorin::site {

void createTables(Engine& engine);

// Rows go in through one prepared statement per begin().
class EngineRows final : public RowSink {
 public:
  explicit EngineRows(std::shared_ptr<Engine> engine) : engine_(std::move(engine)) {}

  void begin(const Table& table, const ColumnNames& columns) override;
  void row(const Row& row) override;

 private:
  std::shared_ptr<Engine> engine_;
  std::unique_ptr<EngineStatement> insert_;
  std::string table_;
  std::vector<const Column*> columns_;
};

}  // namespace pelorin::site
