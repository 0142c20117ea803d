#include "host/odbc/odbc_connection.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <utility>

#include "host/odbc/odbc_results.h"
#include "host/odbc/odbc_text.h"

namespace pelorin::host {

namespace {

class BufferedCursor : public ResultCursor {
 public:
  explicit BufferedCursor(std::vector<OdbcResult> results) : results_(std::move(results)) {
    if (results_.empty()) results_.emplace_back();
  }

  const std::vector<std::string>& columns() const override { return results_[result_].columns; }

  std::size_t fetch(std::size_t rows, std::vector<Value>& cells) override {
    std::vector<Value>& source = results_[result_].cells;
    const std::size_t width = columns().size();
    const std::size_t count = width == 0 ? 0 : std::min(rows, source.size() / width - row_);
    const auto first = source.begin() + static_cast<std::ptrdiff_t>(row_ * width);
    std::move(first, first + static_cast<std::ptrdiff_t>(count * width), std::back_inserter(cells));
    row_ += count;
    if (count == 0 && results_[result_].error) std::rethrow_exception(results_[result_].error);
    return count;
  }

  bool nextResult() override {
    if (result_ + 1 == results_.size()) return false;
    ++result_;
    row_ = 0;
    return true;
  }

 private:
  std::vector<OdbcResult> results_;
  std::size_t result_ = 0;
  std::size_t row_ = 0;
};

// The memory behind one parameter marker, which must stay where it is during the call.
struct BoundParameter {
  SQLINTEGER integer = 0;
  double real = 0;
  SQLLEN indicator = 0;
};

void bindParameter(const OdbcStatement& statement, SQLUSMALLINT number,
                   const ProcedureParameter& parameter, BoundParameter& bound) {
  const bool integer = parameter.type == ParameterType::Integer;
  const bool output = parameter.direction == ParameterDirection::Output;
  if (integer) bound.integer = toInt32(parameter.value);
  if (!integer) bound.real = toReal(parameter.value);
  if (isNull(parameter.value)) bound.indicator = SQL_NULL_DATA;
  SQLPOINTER target = integer ? static_cast<SQLPOINTER>(&bound.integer) : &bound.real;
  statement.check(
      SQLBindParameter(statement.get(), number, output ? SQL_PARAM_OUTPUT : SQL_PARAM_INPUT,
                       integer ? SQL_C_SLONG : SQL_C_DOUBLE, integer ? SQL_INTEGER : SQL_DOUBLE, 0,
                       0, target, 0, &bound.indicator));
}

Value valueOf(const ProcedureParameter& parameter, const BoundParameter& bound) {
  if (bound.indicator == SQL_NULL_DATA) return Null{};
  if (parameter.type == ParameterType::Double) return bound.real;
  return static_cast<std::int64_t>(bound.integer);
}

std::string callSyntax(const ProcedureCall& call) {
  std::string text = "{call " + call.procedure;
  for (std::size_t i = 0; i < call.parameters.size(); ++i) text += i == 0 ? "(?" : ",?";
  return text + (call.parameters.empty() ? "}" : ")}");
}

OdbcResults executeText(const OdbcStatement& statement, std::string_view sql) {
  std::vector<SQLWCHAR> text = wideText(sql);
  return readResults(statement, SQLExecDirectW(statement.get(), text.data(), SQL_NTS));
}

// For who wants no rows: an error behind them counts all the same.
std::vector<ServerMessage> executeWhole(const OdbcStatement& statement, std::string_view sql) {
  OdbcResults all = executeText(statement, sql);
  for (const OdbcResult& result : all.results) {
    if (result.error) std::rethrow_exception(result.error);
  }
  return std::move(all.messages);
}

}  // namespace

OdbcConnection::OdbcConnection(const std::string& connectionString)
    : session_([this]() -> const OdbcEnvironment& {
        environment_.check(SQLSetEnvAttr(environment_.get(), SQL_ATTR_ODBC_VERSION,
                                         reinterpret_cast<SQLPOINTER>(std::uintptr_t{SQL_OV_ODBC3}),
                                         0));
        return environment_;
      }()) {
  connect(connectionString);
}

OdbcConnection::~OdbcConnection() {
  SQLDisconnect(session_.get());
}

void OdbcConnection::connect(const std::string& connectionString) {
  std::vector<SQLWCHAR> text = wideText(connectionString);
  session_.check(SQLDriverConnectW(session_.get(), nullptr, text.data(), SQL_NTS, nullptr, 0,
                                   nullptr, SQL_DRIVER_NOPROMPT));
}

std::unique_ptr<ResultCursor> OdbcConnection::openResults(std::string_view sql) {
  OdbcStatement statement(session_);
  OdbcResults all = executeText(statement, sql);
  messages_ = std::move(all.messages);
  return std::make_unique<BufferedCursor>(std::move(all.results));
}

void OdbcConnection::run(std::string_view sql) {
  OdbcStatement statement(session_);
  messages_ = executeWhole(statement, sql);
}

void OdbcConnection::call(ProcedureCall& call) {
  OdbcStatement statement(session_);
  std::vector<BoundParameter> bound(call.parameters.size());
  for (std::size_t i = 0; i < bound.size(); ++i) {
    bindParameter(statement, static_cast<SQLUSMALLINT>(i + 1), call.parameters[i], bound[i]);
  }
  // Output parameters have their values only after the last result.
  messages_ = executeWhole(statement, callSyntax(call));
  for (std::size_t i = 0; i < bound.size(); ++i) {
    ProcedureParameter& parameter = call.parameters[i];
    if (parameter.direction == ParameterDirection::Output) {
      parameter.value = valueOf(parameter, bound[i]);
    }
  }
}

}  // namespace pelorin::host
