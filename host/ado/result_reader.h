// Goes through the rows of a result, one ahead of its reader. An error of the database is raised
// where its row would be: the rows before it have been read then.
#pragma once

#include <exception>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/core/result_connection.h"

namespace pelorin::host {

class ResultReader {
 public:
  explicit ResultReader(std::unique_ptr<ResultCursor> cursor);

  const std::vector<std::string>& columns() const { return cursor_->columns(); }
  // False for a statement that returns no rows.
  bool hasRows() const { return !columns().empty(); }

  bool atEnd() const noexcept { return row_ >= rows_ && !error_; }
  // The current row; error 3021 at the end.
  std::span<const Value> row() const;
  void next();

  // The values of the next `count` rows (all that are left when negative), and moves past them; no
  // more than come before an error.
  std::vector<Value> take(std::int64_t count);
  bool nextResult();

 private:
  void fill();
  void fetch();
  bool holdsRow() const noexcept { return row_ < rows_; }
  void raiseError() const;

  std::unique_ptr<ResultCursor> cursor_;
  std::vector<Value> cells_;
  std::size_t row_ = 0;
  std::size_t rows_ = 0;
  std::exception_ptr error_;  // of what comes after the rows at hand
};

// Position of a column, by name without regard to case; error 3265 when there is none.
std::size_t columnOf(const std::vector<std::string>& columns, std::string_view name);

}  // namespace pelorin::host
