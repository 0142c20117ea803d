#include "site/site_session.h"

#include <algorithm>
#include <utility>

#include "database/ado_numbers.h"
#include "site/batch_reader.h"
#include "site/engine.h"
#include "site/errors.h"
#include "site/procedure_call.h"

namespace pelorin {

namespace {

using site::EngineStatement;
using site::Procedure;

// Rows of a statement whose first step has been made: it runs when it is opened, as on the server.
class StatementCursor final : public Cursor {
 public:
  StatementCursor(EngineStatement statement, bool hasRow)
      : statement_(std::move(statement)), hasRow_(hasRow) {}

  const std::vector<std::string>& columns() const override { return statement_.columns(); }

  std::size_t fetch(std::size_t rows, std::vector<Value>& cells) override {
    std::size_t fetched = 0;
    while (hasRow_ && fetched < rows) {
      for (std::size_t column = 0; column < columns().size(); ++column) {
        cells.push_back(statement_.value(column));
      }
      ++fetched;
      hasRow_ = false;
      hasRow_ = statement_.step();
    }
    return fetched;
  }

 private:
  EngineStatement statement_;
  bool hasRow_;
};

EngineStatement prepareCall(const std::shared_ptr<site::Engine>& engine, const Procedure& procedure,
                            const std::vector<Value>& values) {
  EngineStatement statement = EngineStatement::kept(engine, procedure.embeddedBody);
  for (std::size_t at = 0; at < values.size(); ++at) {
    statement.bind(procedure.parameters[at].name, values[at]);
  }
  return statement;
}

// Only for procedures whose output comes as a row of its own.
void takeOutputs(EngineStatement& statement, const Procedure& procedure, ProcedureCall& call) {
  const bool hasRow = statement.step();
  for (std::size_t column = 0; hasRow && column < statement.columns().size(); ++column) {
    for (std::size_t at = 0; at < procedure.parameters.size(); ++at) {
      if (procedure.parameters[at].name == statement.columns()[column]) {
        call.parameters[at].value = statement.value(column);
      }
    }
  }
}

bool hasOutputs(const Procedure& procedure) {
  return std::any_of(procedure.parameters.begin(), procedure.parameters.end(),
                     [](const site::Parameter& parameter) { return parameter.output; });
}

std::vector<site::Argument> argumentsOf(const ProcedureCall& call) {
  std::vector<site::Argument> arguments;
  for (const ProcedureParameter& parameter : call.parameters) {
    arguments.push_back({"", parameter.value});
  }
  return arguments;
}

// What ADO says of the record set that such a statement leaves.
constexpr const char* closedObjectText = "Operation is not allowed when the object is closed.";

class SiteConnection final : public Connection {
 public:
  explicit SiteConnection(std::shared_ptr<SiteSession> session) : session_(std::move(session)) {}

 protected:
  std::unique_ptr<Cursor> openCursor(std::string_view sql) override {
    SiteResult result = session_->run(sql);
    if (!result.rows) throw RunTimeError(ado::error::objectClosed, closedObjectText);
    return std::move(result.rows);
  }
  void run(std::string_view sql) override { session_->run(sql); }
  void call(ProcedureCall& call) override { session_->call(call); }

 private:
  std::shared_ptr<SiteSession> session_;
};

}  // namespace

SiteSession::SiteSession(std::shared_ptr<site::Engine> engine) : engine_(std::move(engine)) {}

SiteResult SiteSession::run(std::string_view sql) {
  const site::Batch batch = site::readBatch(sql);
  if (const auto* text = std::get_if<site::EngineText>(&batch)) {
    return runStatement(EngineStatement(engine_, text->sql));
  }
  const auto& call = std::get<site::CallText>(batch);
  const Procedure& procedure = site::findProcedure(call.procedure);
  const std::vector<Value> values = site::bindArguments(procedure, call.arguments);
  EngineStatement statement = prepareCall(engine_, procedure, values);
  if (!hasOutputs(procedure)) return runStatement(std::move(statement));
  statement.step();
  return {nullptr, engine_->changes()};
}

SiteResult SiteSession::runStatement(EngineStatement statement) {
  const bool hasRow = statement.step();
  if (statement.columns().empty()) return {nullptr, engine_->changes()};
  return {std::make_unique<StatementCursor>(std::move(statement), hasRow), -1};
}

SiteResult SiteSession::call(ProcedureCall& call) {
  const Procedure& procedure = site::findProcedure(call.procedure);
  const std::vector<Value> values = site::bindArguments(procedure, argumentsOf(call));
  EngineStatement statement = prepareCall(engine_, procedure, values);
  if (!hasOutputs(procedure)) return runStatement(std::move(statement));
  takeOutputs(statement, procedure, call);
  return {nullptr, engine_->changes()};
}

std::unique_ptr<Connection> connectionOver(std::shared_ptr<SiteSession> session) {
  return std::make_unique<SiteConnection>(std::move(session));
}

}  // namespace pelorin
