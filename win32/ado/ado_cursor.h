// The rows of an ADO Recordset, fetched in blocks; closed on destruction.
#pragma once

#include "database/connection.h"
#include "win32/ado/lent_connection.h"

namespace pelorin {

// Closes the record set at the end.
struct OpenRows {
  explicit OpenRows(LateBound opened) : rows(std::move(opened)) {}
  OpenRows(const OpenRows&) = delete;
  OpenRows& operator=(const OpenRows&) = delete;
  ~OpenRows();

  LateBound rows;
};

class AdoCursor : public Cursor {
 public:
  AdoCursor(LentConnection connection, LateBound rows);

  const std::vector<std::string>& columns() const override { return columns_; }
  std::size_t fetch(std::size_t rows, std::vector<Value>& cells) override;

 private:
  std::size_t fetchBlock(std::size_t rows, std::vector<Value>& cells);

  LentConnection connection_;
  OpenRows open_;
  std::vector<std::string> columns_;
};

}  // namespace pelorin
