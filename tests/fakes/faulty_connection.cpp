#include "tests/fakes/faulty_connection.h"

#include <utility>

namespace pelorin::test {

namespace {

// An error of the inner connection gets the line of who called the outer one.
constexpr SourceLine unknownLine;

void countAct(Faults& faults) {
  if (faults.nextFails()) throw RunTimeError(-2147467259, "The connection is broken.");
}

class FaultyCursor : public Cursor {
 public:
  FaultyCursor(RecordSet inner, std::shared_ptr<Faults> faults)
      : inner_(std::move(inner)), columns_(inner_.columns()), faults_(std::move(faults)) {}

  const std::vector<std::string>& columns() const override { return columns_; }

  std::size_t fetch(std::size_t rows, std::vector<Value>& cells) override {
    countAct(*faults_);
    std::size_t fetched = 0;
    for (; fetched < rows && inner_.next(unknownLine); ++fetched) {
      for (std::size_t i = 0; i < columns_.size(); ++i) {
        cells.push_back(inner_.value(static_cast<int>(i)));
      }
    }
    return fetched;
  }

 private:
  RecordSet inner_;
  std::vector<std::string> columns_;
  std::shared_ptr<Faults> faults_;
};

}  // namespace

void FaultyConnection::send(std::string_view statement) const {
  countAct(*faults_);
  if (!refused_.empty() && statement.starts_with(refused_)) {
    throw RunTimeError(-2147217911, "Permission denied.");
  }
  if (onSent) onSent(statement);
}

std::unique_ptr<Cursor> FaultyConnection::openCursor(std::string_view sql) {
  send(sql);
  return std::make_unique<FaultyCursor>(inner_.open(sql, unknownLine), faults_);
}

void FaultyConnection::run(std::string_view sql) {
  send(sql);
  inner_.execute(sql, unknownLine);
}

void FaultyConnection::call(ProcedureCall& procedure) {
  send(procedure.procedure);
  inner_.execute(procedure, unknownLine);
}

}  // namespace pelorin::test
