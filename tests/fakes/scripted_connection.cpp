#include "tests/fakes/scripted_connection.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace pelorin::test {

namespace {

class ScriptedCursor : public Cursor {
 public:
  ScriptedCursor(Result result, std::optional<FetchFailure> failure, std::shared_ptr<int> open)
      : result_(std::move(result)), failure_(failure), open_(std::move(open)) {
    ++*open_;
  }
  ScriptedCursor(const ScriptedCursor&) = delete;
  ScriptedCursor& operator=(const ScriptedCursor&) = delete;
  ~ScriptedCursor() override { --*open_; }

  const std::vector<std::string>& columns() const override { return result_.columns; }

  std::size_t fetch(std::size_t rows, std::vector<Value>& cells) override {
    const std::size_t end = std::min(result_.rows.size(), next_ + rows);
    const bool fails = failure_ && failure_->row < next_ + rows;
    if (fails && failure_->losesBlock) fail();
    const std::size_t last = fails ? std::min(end, failure_->row) : end;
    const std::size_t fetched = last - next_;
    for (; next_ < last; ++next_) {
      cells.insert(cells.end(), result_.rows[next_].begin(), result_.rows[next_].end());
    }
    if (fails) fail();
    return fetched;
  }

 private:
  [[noreturn]] static void fail() { throw RunTimeError(-2147467259, "fetch failed"); }

  Result result_;
  std::optional<FetchFailure> failure_;
  std::shared_ptr<int> open_;
  std::size_t next_ = 0;
};

}  // namespace

void ScriptedConnection::note(std::string_view sql) {
  journal_.add("sql: " + std::string(sql));
  // It may set another one, or none.
  const auto during = onStatement;
  if (during) during(std::string(sql));
  const auto failure = failures_.find(std::string(sql));
  if (failure != failures_.end()) throw RunTimeError(failure->second);
}

std::unique_ptr<Cursor> ScriptedConnection::openCursor(std::string_view sql) {
  note(sql);
  const std::string text(sql);
  const auto found = fetchFailures_.find(text);
  std::optional<FetchFailure> failure;
  if (found != fetchFailures_.end()) failure = found->second;
  auto cursor = std::make_unique<ScriptedCursor>(results_[text], failure, openCursors_);
  mostOpen_ = std::max(mostOpen_, *openCursors_);
  return cursor;
}

void ScriptedConnection::run(std::string_view sql) {
  note(sql);
}

void ScriptedConnection::call(ProcedureCall& call) {
  std::string text = "call " + call.procedure;
  for (const ProcedureParameter& parameter : call.parameters) {
    text += ' ' + parameter.name + '=' + toText(parameter.value);
  }
  note(text);
  if (onCall) onCall(call);
}

}  // namespace pelorin::test
