#include "host/core/watched_connection.h"

#include <chrono>
#include <exception>
#include <utility>

namespace pelorin::host {

namespace {

using Clock = std::chrono::steady_clock;

// Runs `work`, whose result is the number of rows read, and writes time and outcome to the log.
template <class Work>
std::size_t timed(StatementLog& log, std::size_t number, Work&& work) {
  const Clock::time_point start = Clock::now();
  const auto milliseconds = [start] {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
  };
  try {
    const std::size_t rows = work();
    log.took(number, milliseconds(), rows);
    return rows;
  } catch (const std::exception& error) {
    log.took(number, milliseconds(), 0);
    log.failed(number, error.what());
    throw;
  }
}

class WatchedCursor : public ResultCursor {
 public:
  WatchedCursor(std::unique_ptr<ResultCursor> inner, std::shared_ptr<StatementLog> log,
                std::size_t number)
      : inner_(std::move(inner)), log_(std::move(log)), number_(number) {}

  const std::vector<std::string>& columns() const override { return inner_->columns(); }
  bool nextResult() override { return inner_->nextResult(); }

  std::size_t fetch(std::size_t rows, std::vector<Value>& cells) override {
    return timed(*log_, number_, [&] { return inner_->fetch(rows, cells); });
  }

 private:
  std::unique_ptr<ResultCursor> inner_;
  std::shared_ptr<StatementLog> log_;
  std::size_t number_;
};

}  // namespace

std::unique_ptr<ResultCursor> WatchedConnection::openResults(std::string_view sql) {
  const std::size_t number = log_->begin(std::string(sql));
  std::unique_ptr<ResultCursor> cursor;
  timed(*log_, number, [&] {
    cursor = inner_->openResults(sql);
    return std::size_t{0};
  });
  return std::make_unique<WatchedCursor>(std::move(cursor), log_, number);
}

void WatchedConnection::run(std::string_view sql) {
  timed(*log_, log_->begin(std::string(sql)), [&] {
    inner_->execute(sql);
    return std::size_t{0};
  });
}

void WatchedConnection::call(ProcedureCall& call) {
  timed(*log_, log_->begin(callText(call)), [&] {
    inner_->execute(call);
    return std::size_t{0};
  });
}

std::string callText(const ProcedureCall& call) {
  std::string text = call.procedure;
  const char* separator = " ";
  for (const ProcedureParameter& parameter : call.parameters) {
    const std::string value = isNull(parameter.value) ? "NULL" : toText(parameter.value);
    text += separator + ("@" + parameter.name) + "=" + value;
    if (parameter.direction == ParameterDirection::Output) text += " OUTPUT";
    separator = ", ";
  }
  return text;
}

}  // namespace pelorin::host
