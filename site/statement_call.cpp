#include "site/statement_call.h"

#include "site/batch_reader.h"
#include "site/procedure_call.h"
#include "site/transact_sql.h"

namespace pelorin::site {

namespace {

struct CommandValues {
  const Procedure& procedure;
  std::vector<Value> values;  // one per parameter
};

CommandValues readCommand(const SiteStatement& statement) {
  const Batch batch = readBatch(statement.text);
  const auto& call = std::get<CallText>(batch);
  const Procedure& procedure = findProcedure(call.procedure);
  return {procedure, bindArguments(procedure, call.arguments)};
}

ProcedureParameter commandParameter(const Parameter& parameter, const Value& value) {
  return {
      parameter.name.substr(1),
      parameter.type.kind == SqlType::Kind::Float ? ParameterType::Double : ParameterType::Integer,
      parameter.output ? ParameterDirection::Output : ParameterDirection::Input, value};
}

}  // namespace

const Procedure* calledProcedure(const SiteStatement& statement) {
  const Batch batch = readBatch(statement.text);
  const auto* call = std::get_if<CallText>(&batch);
  return call ? &findProcedure(call->procedure) : nullptr;
}

ProcedureCall commandCall(const SiteStatement& statement) {
  const auto [procedure, values] = readCommand(statement);
  ProcedureCall call{procedure.name, {}};
  for (std::size_t at = 0; at < values.size(); ++at) {
    call.parameters.push_back(commandParameter(procedure.parameters[at], values[at]));
  }
  return call;
}

std::string serverBatch(const SiteStatement& statement) {
  if (!statement.command) return statement.text;
  const auto [procedure, values] = readCommand(statement);
  std::string declarations;
  std::string arguments;
  for (std::size_t at = 0; at < values.size(); ++at) {
    const Parameter& parameter = procedure.parameters[at];
    if (parameter.output) {
      declarations += "declare " + parameter.name + " " + sqlTypeText(parameter.type) + " ";
    }
    arguments +=
        (at == 0 ? " " : ", ") +
        (parameter.output ? parameter.name + " output" : serverLiteral(parameter.type, values[at]));
  }
  return declarations + "exec " + procedure.name + arguments;
}

}  // namespace pelorin::site
