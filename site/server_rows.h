// Rows as inserts of a server script.
#pragma once

#include <string>
#include <vector>

#include "site/row_data.h"
#include "site/transact_sql.h"

namespace pelorin::site {

// All in one transaction, which is begun only when every table and column is there and no table
// holds a row. Call begin/row through a filling, then finish().
class ServerRows final : public RowSink {
 public:
  // The sink has to notice errors: the first one undoes the transaction.
  explicit ServerRows(BatchSink sink);

  void begin(const Table& table, const ColumnNames& columns) override;
  void row(const Row& row) override;
  void finish();

 private:
  void flush();

  BatchSink sink_;
  const Table* table_ = nullptr;
  ColumnNames columns_;
  std::vector<std::string> rows_;
};

}  // namespace pelorin::site
