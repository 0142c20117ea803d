#include "tests/fakes/faulty_connection.h"

#include <utility>

namespace pelorin::test {

namespace {

void act(int& acts, int failing) {
  if (++acts == failing) throw RunTimeError(-2147467259, "The connection is broken.");
}

class FaultyCursor : public Cursor {
 public:
  FaultyCursor(RecordSet inner, std::vector<std::string> columns, std::shared_ptr<int> acts,
               std::shared_ptr<int> failing)
      : inner_(std::move(inner)),
        columns_(std::move(columns)),
        acts_(std::move(acts)),
        failing_(std::move(failing)) {}

  const std::vector<std::string>& columns() const override { return columns_; }

  std::size_t fetch(std::size_t rows, std::vector<Value>& cells) override {
    act(*acts_, *failing_);
    std::size_t fetched = 0;
    for (; fetched < rows && inner_.next(); ++fetched) {
      for (std::size_t i = 0; i < columns_.size(); ++i) {
        cells.push_back(inner_.value(static_cast<int>(i)));
      }
    }
    return fetched;
  }

 private:
  RecordSet inner_;
  std::vector<std::string> columns_;
  std::shared_ptr<int> acts_;
  std::shared_ptr<int> failing_;
};

}  // namespace

void FaultyConnection::send(std::string_view statement) const {
  act(*acts_, *failing_);
  if (onSent) onSent(statement);
}

std::unique_ptr<Cursor> FaultyConnection::openCursor(std::string_view sql) {
  send(sql);
  RecordSet rows = inner_.open(sql);
  std::vector<std::string> columns = rows.columns();
  return std::make_unique<FaultyCursor>(std::move(rows), std::move(columns), acts_, failing_);
}

void FaultyConnection::run(std::string_view sql) {
  send(sql);
  inner_.execute(sql);
}

void FaultyConnection::call(ProcedureCall& procedure) {
  send(procedure.procedure);
  inner_.execute(procedure);
}

}  // namespace pelorin::test
