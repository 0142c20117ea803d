// The rows of a result, read forward-only, in plain values. Errors carry the source line of the
// caller.
#pragma once

#include <cstdint>
#include <deque>
#include <exception>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/source_line.h"
#include "base/value.h"
#include "database/cursor.h"

namespace pelorin {

// The rows of a result, from first to last; reads in blocks and closes on destruction. Fields are
// found by name without regard to case (error 3265 when there is none) or by position from 0. An
// error of the database is raised by next() after the last row that came.
class RecordSet {
 public:
  explicit RecordSet(std::unique_ptr<Cursor> cursor);

  // Moves to the next (at first: the first) row; false at the end.
  bool next(SourceLine where = SourceLine::current());
  // Fetches all that is left and closes the result, so that inner statements can run while next()
  // goes through the rows.
  void drain();
  // Closes the result and keeps the rows that have been fetched: for who needs the current row
  // alone while inner statements run.
  void detach() noexcept { cursor_.reset(); }
  void close();

  const std::vector<std::string>& columns() const noexcept { return columns_; }
  const Value& value(std::string_view field, SourceLine where = SourceLine::current()) const;
  const Value& value(int position, SourceLine where = SourceLine::current()) const;

  template <class Field>
  std::string text(Field field, SourceLine where = SourceLine::current()) const {
    return withLine(where, [&] { return toText(value(field, where)); });
  }
  template <class Field>
  std::int32_t int32(Field field, SourceLine where = SourceLine::current()) const {
    return withLine(where, [&] { return toInt32(value(field, where)); });
  }
  template <class Field>
  std::int16_t int16(Field field, SourceLine where = SourceLine::current()) const {
    return withLine(where, [&] { return toInt16(value(field, where)); });
  }
  template <class Field>
  double real(Field field, SourceLine where = SourceLine::current()) const {
    return withLine(where, [&] { return toReal(value(field, where)); });
  }
  template <class Field>
  bool boolean(Field field, SourceLine where = SourceLine::current()) const {
    return withLine(where, [&] { return toBoolean(value(field, where)); });
  }

 private:
  struct Block {
    std::vector<Value> cells;
    std::size_t rows = 0;
  };

  void fetch(Block& block);
  std::size_t fetchOrKeepError(std::vector<Value>& cells);
  void moveToNextBlock();
  std::size_t columnOf(std::string_view field, SourceLine where) const;

  std::unique_ptr<Cursor> cursor_;
  std::vector<std::string> columns_;
  Block block_;
  std::size_t row_ = 0;  // of the block, the current one is row_ - 1
  std::deque<Block> drained_;
  std::exception_ptr pending_;
  // Rows are read alike: by the column that was asked for, the one that was asked for next.
  mutable std::vector<std::size_t> followers_;
  mutable std::size_t lastAsked_ = 0;
};

}  // namespace pelorin
