#include "host/odbc/odbc_results.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <iterator>

#include "host/odbc/odbc_text.h"

namespace pelorin::host {

namespace {

enum class Reading { Integer, Real, Bit, Date, Text };

struct Column {
  std::string name;
  Reading reading = Reading::Text;
};

constexpr SQLULEN mostInt64Digits = 18;

Reading readingOf(SQLSMALLINT type, SQLULEN size, SQLSMALLINT scale) {
  switch (type) {
    case SQL_TINYINT:
    case SQL_SMALLINT:
    case SQL_INTEGER:
    case SQL_BIGINT:
      return Reading::Integer;
    case SQL_DECIMAL:
    case SQL_NUMERIC:
      return scale == 0 && size <= mostInt64Digits ? Reading::Integer : Reading::Real;
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
      return Reading::Real;
    case SQL_BIT:
      return Reading::Bit;
    case SQL_DATE:
    case SQL_TIMESTAMP:
    case SQL_TYPE_DATE:
    case SQL_TYPE_TIMESTAMP:
      return Reading::Date;
    default:
      return Reading::Text;
  }
}

Column describeColumn(const OdbcStatement& statement, SQLUSMALLINT number) {
  std::array<SQLWCHAR, 256> name{};
  SQLSMALLINT length = 0;
  SQLSMALLINT type = 0;
  SQLULEN size = 0;
  SQLSMALLINT scale = 0;
  SQLSMALLINT nullable = 0;
  statement.check(SQLDescribeColW(statement.get(), number, name.data(),
                                  static_cast<SQLSMALLINT>(name.size()), &length, &type, &size,
                                  &scale, &nullable));
  const auto kept = std::min<std::size_t>(static_cast<std::size_t>(length), name.size() - 1);
  return {utf8Text(name.data(), kept), readingOf(type, size, scale)};
}

std::vector<Column> describeColumns(const OdbcStatement& statement) {
  SQLSMALLINT count = 0;
  statement.check(SQLNumResultCols(statement.get(), &count));
  std::vector<Column> columns;
  for (SQLSMALLINT number = 1; number <= count; ++number) {
    columns.push_back(describeColumn(statement, static_cast<SQLUSMALLINT>(number)));
  }
  return columns;
}

// False for a null.
template <class Buffer>
bool readFixed(const OdbcStatement& statement, SQLUSMALLINT column, SQLSMALLINT type,
               Buffer& buffer) {
  SQLLEN indicator = 0;
  statement.check(SQLGetData(statement.get(), column, type, &buffer, sizeof buffer, &indicator));
  return indicator != SQL_NULL_DATA;
}

Value readInteger(const OdbcStatement& statement, SQLUSMALLINT column) {
  SQLBIGINT number = 0;
  if (!readFixed(statement, column, SQL_C_SBIGINT, number)) return Null{};
  return static_cast<std::int64_t>(number);
}

Value readReal(const OdbcStatement& statement, SQLUSMALLINT column) {
  double number = 0;
  if (!readFixed(statement, column, SQL_C_DOUBLE, number)) return Null{};
  return number;
}

Value readBit(const OdbcStatement& statement, SQLUSMALLINT column) {
  unsigned char bit = 0;
  if (!readFixed(statement, column, SQL_C_BIT, bit)) return Null{};
  return bit != 0;
}

Date dateOf(const SQL_TIMESTAMP_STRUCT& moment) {
  using namespace std::chrono;
  const sys_days day = year(moment.year) / month(moment.month) / std::chrono::day(moment.day);
  const sys_days first = year(1899) / 12 / 30;
  const double seconds = moment.hour * 3600.0 + moment.minute * 60.0 + moment.second +
                         static_cast<double>(moment.fraction) / 1e9;
  const auto days = static_cast<double>((day - first).count());
  // Before the first day the fraction counts away from zero, as automation dates do.
  return {days < 0 ? days - seconds / 86400.0 : days + seconds / 86400.0};
}

Value readDate(const OdbcStatement& statement, SQLUSMALLINT column) {
  SQL_TIMESTAMP_STRUCT moment{};
  if (!readFixed(statement, column, SQL_C_TYPE_TIMESTAMP, moment)) return Null{};
  return dateOf(moment);
}

// Long texts come in pieces, each but the last filling the buffer up to its closing zero.
Value readText(const OdbcStatement& statement, SQLUSMALLINT column) {
  std::array<SQLWCHAR, 1024> piece{};
  std::vector<SQLWCHAR> whole;
  for (;;) {
    SQLLEN indicator = 0;
    const SQLRETURN result = statement.check(
        SQLGetData(statement.get(), column, SQL_C_WCHAR, piece.data(), sizeof piece, &indicator));
    if (result == SQL_NO_DATA) break;
    if (indicator == SQL_NULL_DATA) return Null{};
    const auto available = static_cast<std::size_t>(indicator) / sizeof(SQLWCHAR);
    const bool more = indicator == SQL_NO_TOTAL || available >= piece.size();
    whole.insert(whole.end(), piece.data(), piece.data() + (more ? piece.size() - 1 : available));
    if (!more) break;
  }
  return utf8Text(whole.data(), whole.size());
}

Value readCell(const OdbcStatement& statement, SQLUSMALLINT number, Reading reading) {
  switch (reading) {
    case Reading::Integer:
      return readInteger(statement, number);
    case Reading::Real:
      return readReal(statement, number);
    case Reading::Bit:
      return readBit(statement, number);
    case Reading::Date:
      return readDate(statement, number);
    case Reading::Text:
      break;
  }
  return readText(statement, number);
}

void readRow(const OdbcStatement& statement, const std::vector<Column>& columns,
             std::vector<Value>& cells) {
  std::vector<Value> row;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    row.push_back(readCell(statement, static_cast<SQLUSMALLINT>(i + 1), columns[i].reading));
  }
  std::move(row.begin(), row.end(), std::back_inserter(cells));
}

// An error after the first row comes after the rows that were read.
OdbcResult readResult(const OdbcStatement& statement, const std::vector<Column>& columns) {
  OdbcResult result;
  for (const Column& column : columns) result.columns.push_back(column.name);
  try {
    while (statement.check(SQLFetch(statement.get())) != SQL_NO_DATA) {
      readRow(statement, columns, result.cells);
    }
  } catch (const RunTimeError&) {
    if (result.cells.empty()) throw;
    result.error = std::current_exception();
  }
  return result;
}

// A statement that only said something (print) has no row count either.
bool countsRows(const OdbcStatement& statement) {
  SQLLEN count = -1;
  return SQL_SUCCEEDED(SQLRowCount(statement.get(), &count)) && count >= 0;
}

void collectMessages(const OdbcStatement& statement, SQLRETURN result, OdbcResults& all) {
  if (result != SQL_SUCCESS_WITH_INFO) return;
  std::vector<ServerMessage> said = statement.diagnostics();
  std::move(said.begin(), said.end(), std::back_inserter(all.messages));
}

}  // namespace

OdbcResults readResults(const OdbcStatement& statement, SQLRETURN executed) {
  OdbcResults all;
  for (SQLRETURN result = statement.check(executed); result != SQL_NO_DATA;
       result = statement.check(SQLMoreResults(statement.get()))) {
    collectMessages(statement, result, all);
    const std::vector<Column> columns = describeColumns(statement);
    if (!columns.empty()) {
      all.results.push_back(readResult(statement, columns));
      if (all.results.back().error) break;
    } else if (countsRows(statement)) {
      all.results.emplace_back();
    }
  }
  return all;
}

}  // namespace pelorin::host
