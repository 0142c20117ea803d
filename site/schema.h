// The tables of the site database, as described in site/schema. Both engines' tables are made from
// this.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "site/sql_type.h"

namespace pelorin::site {

struct Column {
  std::string name;
  SqlType type;
  bool required = false;
  bool identity = false;  // numbered by the engine, from 1
};

using ColumnNames = std::vector<std::string>;

struct Table {
  std::string name;
  std::string purpose;
  std::vector<Column> columns;
  ColumnNames key;
  std::vector<ColumnNames> indexes;

  // Without regard to case; null when there is none.
  const Column* column(std::string_view wanted) const;
  bool hasIdentity() const;
};

class Schema {
 public:
  // Adds the tables of one description; throws with the offending line.
  void read(std::string_view text);

  const std::vector<Table>& tables() const { return tables_; }
  // Without regard to case; null when there is none.
  const Table* table(std::string_view name) const;

 private:
  void readLine(std::string_view line);

  std::vector<Table> tables_;
};

// The schema that is built into the program.
const Schema& siteSchema();

}  // namespace pelorin::site
