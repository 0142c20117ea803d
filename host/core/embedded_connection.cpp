#include "host/core/embedded_connection.h"

#include <utility>

namespace pelorin::host {

namespace {

// A batch of the embedded database has one result.
class EmbeddedResult : public ResultCursor {
 public:
  explicit EmbeddedResult(std::unique_ptr<Cursor> rows) : rows_(std::move(rows)) {}

  const std::vector<std::string>& columns() const override {
    return rows_ ? rows_->columns() : none_;
  }

  std::size_t fetch(std::size_t rows, std::vector<Value>& cells) override {
    return rows_ ? rows_->fetch(rows, cells) : 0;
  }

  bool nextResult() override { return false; }

 private:
  std::unique_ptr<Cursor> rows_;
  std::vector<std::string> none_;
};

}  // namespace

std::unique_ptr<ResultCursor> EmbeddedConnection::openResults(std::string_view sql) {
  return std::make_unique<EmbeddedResult>(session_->run(sql).rows);
}

}  // namespace pelorin::host
