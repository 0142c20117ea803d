#include "site/server_rows.h"

#include <utility>

#include "site/script_session.h"
#include "site/source_checks.h"

namespace pelorin::site {

namespace {

// A server takes at most 1000 rows in one insert, and takes its time over long ones.
constexpr std::size_t rowsPerInsert = 100;

// An insert into a column that is not there fails before it runs, which undoes nothing by itself.
void checkColumns(const BatchSink& sink) {
  for (const Table& table : siteSchema().tables()) {
    for (const Column& column : table.columns) {
      const SourceCheck check = columnCheck(table, column);
      sink("if not " + check.condition + "\nraiserror(N'" + check.complaint + "', 16, 1)");
    }
  }
}

std::string noTableHasARow() {
  std::string empty;
  for (const Table& table : siteSchema().tables()) {
    empty += empty.empty() ? "" : "\n  and ";
    empty += "not exists (select 1 from dbo." + bracketed(table.name) + ")";
  }
  return empty;
}

// The mark is written inside the transaction: it stands as long as the transaction does, so that
// rows can neither come before it nor after an error.
void beginTransaction(const BatchSink& sink) {
  sink("if " + hasMark(mark::error) +
       " print N'Nothing is added.'\n"
       "else if @@trancount > 0 raiserror(N'A transaction is open: end it first. Nothing is "
       "added.', 16, 1)\nelse if " +
       noTableHasARow() + "\nbegin\nbegin transaction\n" + setMark(mark::begun) +
       "\nend\nelse print N'There are rows already; nothing is added.'");
}

}  // namespace

ServerRows::ServerRows(BatchSink sink) : sink_(std::move(sink)) {
  checkColumns(sink_);
  beginTransaction(sink_);
}

void ServerRows::begin(const Table& table, const ColumnNames& columns) {
  flush();
  table_ = &table;
  columns_ = columns;
}

void ServerRows::row(const Row& row) {
  std::string cells;
  for (std::size_t at = 0; at < row.size(); ++at) {
    cells += (at == 0 ? "(" : ", ") + serverLiteral(table_->column(columns_[at])->type, row[at]);
  }
  rows_.push_back(cells + ")");
  if (rows_.size() == rowsPerInsert) flush();
}

void ServerRows::flush() {
  if (rows_.empty()) return;
  const bool identity = table_->hasIdentity();
  const std::string table = "dbo." + bracketed(table_->name);
  std::string sql = "if " + hasMark(mark::begun) + "\nbegin\n";
  if (identity) sql += "set identity_insert " + table + " on;\n";
  sql += "insert into " + table + " (" + bracketedList(columns_) + ") values\n";
  for (const std::string& row : rows_) sql += row + (&row == &rows_.back() ? ";\n" : ",\n");
  if (identity) sql += "set identity_insert " + table + " off;\n";
  sink_(sql + "end");
  rows_.clear();
}

void ServerRows::finish() {
  flush();
  sink_("if " + hasMark(mark::begun) + "\nbegin\ndelete from " + markTable +
        "\ncommit transaction\nend");
}

}  // namespace pelorin::site
