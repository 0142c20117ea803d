#include "tests/fakes/scripted_connection.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace pelorin::test {

namespace {

class ScriptedCursor : public Cursor {
 public:
  ScriptedCursor(Result result, std::optional<std::size_t> failAt, std::shared_ptr<int> open)
      : result_(std::move(result)), failAt_(failAt), open_(std::move(open)) {
    ++*open_;
  }
  ScriptedCursor(const ScriptedCursor&) = delete;
  ScriptedCursor& operator=(const ScriptedCursor&) = delete;
  ~ScriptedCursor() override { --*open_; }

  const std::vector<std::string>& columns() const override { return result_.columns; }

  std::size_t fetch(std::size_t rows, std::vector<Value>& cells) override {
    if (failAt_ && next_ == *failAt_) throw RunTimeError(-2147467259, "fetch failed");
    std::size_t end = std::min(result_.rows.size(), next_ + rows);
    if (failAt_) end = std::min(end, *failAt_);
    const std::size_t fetched = end - next_;
    for (; next_ < end; ++next_) {
      cells.insert(cells.end(), result_.rows[next_].begin(), result_.rows[next_].end());
    }
    return fetched;
  }

 private:
  Result result_;
  std::optional<std::size_t> failAt_;
  std::shared_ptr<int> open_;
  std::size_t next_ = 0;
};

}  // namespace

void ScriptedConnection::note(std::string_view sql) {
  journal_.add("sql: " + std::string(sql));
  const auto failure = failures_.find(std::string(sql));
  if (failure != failures_.end()) throw RunTimeError(-2147217900, failure->second);
}

std::unique_ptr<Cursor> ScriptedConnection::openCursor(std::string_view sql) {
  note(sql);
  const std::string text(sql);
  const auto failure = fetchFailures_.find(text);
  std::optional<std::size_t> failAt;
  if (failure != fetchFailures_.end()) failAt = failure->second;
  auto cursor = std::make_unique<ScriptedCursor>(results_[text], failAt, openCursors_);
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
