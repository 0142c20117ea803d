// Rows on their way into a site database, whichever engine takes them.
#pragma once

#include <string_view>
#include <vector>

#include "base/value.h"
#include "site/schema.h"

namespace pelorin::site {

using Row = std::vector<Value>;

class RowSink {
 public:
  virtual ~RowSink() = default;
  // The rows that follow are of this table and have these columns.
  virtual void begin(const Table& table, const ColumnNames& columns) = 0;
  virtual void row(const Row& row) = 0;
};

// Sends the rows of one data file, checked against the schema; throws with the offending line.
//
//   table Servers
//   ServerID | Server_Name | Site_ID
//   1        | HEADOFFICE  | 1
//
// Cells are trimmed; `null` is a null.
void readRows(std::string_view text, RowSink& sink);

}  // namespace pelorin::site
