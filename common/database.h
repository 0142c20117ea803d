// The contract with the site's database: statements sent as text, rows read forward-only.
//
//   RecordSet rows = connection.open("select ID, DVRName from DVR_Config");
//   while (rows.next()) combo.addItem(rows.text("DVRName"), rows.int32("ID"));
//
// Errors carry the source line of the caller.
#pragma once

#include <cstdint>
#include <memory>
#include <source_location>
#include <string>
#include <string_view>
#include <vector>

#include "common/at_line.h"
#include "common/value.h"

namespace pelorin {

// What a database adapter implements for one open result. Destroying it closes the result.
class Cursor {
 public:
  virtual ~Cursor() = default;
  virtual const std::vector<std::string>& columns() const = 0;
  // Appends up to `rows` rows to `cells` (row after row, columns().size() values each) and returns
  // how many; 0 at the end. The rows appended before an error count as read; nothing is fetched
  // after it.
  virtual std::size_t fetch(std::size_t rows, std::vector<Value>& cells) = 0;
};

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
  std::size_t fetchBlock();
  std::size_t fetchOrKeepError();

  std::unique_ptr<Cursor> cursor_;
  std::vector<std::string> columns_;
  std::vector<Value> cells_;
  std::size_t row_ = 0;   // of cells_, the current one is row_ - 1
  std::size_t rows_ = 0;  // in cells_
  std::exception_ptr pending_;
};

enum class ParameterType { Integer, Double };
enum class ParameterDirection { Input, Output };

struct ProcedureParameter {
  std::string name;  // without "@"
  ParameterType type = ParameterType::Integer;
  ParameterDirection direction = ParameterDirection::Input;
  Value value;  // after the call: what came back in an output parameter
};

struct ProcedureCall {
  std::string procedure;
  std::vector<ProcedureParameter> parameters;  // in the order in which they are appended
};

class Connection {
 public:
  virtual ~Connection() = default;

  // Reads forward-only and read-only.
  RecordSet open(std::string_view sql, SourceLine where = SourceLine::current());
  void execute(std::string_view sql, SourceLine where = SourceLine::current());
  void execute(ProcedureCall& procedure, SourceLine where = SourceLine::current());

 protected:
  virtual std::unique_ptr<Cursor> openCursor(std::string_view sql) = 0;
  virtual void run(std::string_view sql) = 0;
  virtual void call(ProcedureCall& call) = 0;
};

}  // namespace pelorin
