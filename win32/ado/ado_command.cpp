#include "win32/ado/ado_command.h"

#include <ole2.h>

#include "database/ado_numbers.h"
#include "win32/com/ado_ids.h"
#include "win32/com/com_error.h"
#include "win32/com/late_bound.h"

namespace pelorin {

namespace {

LateBound newCommand() {
  ComPtr<IDispatch> command;
  check(CoCreateInstance(ado::commandClass, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                         command.putVoid()));
  return LateBound(std::move(command));
}

Variant inputValue(const ProcedureParameter& parameter) {
  if (isNull(parameter.value)) return Variant::null();
  if (parameter.type == ParameterType::Double) return Variant::real(toReal(parameter.value));
  return Variant::int32(toInt32(parameter.value));
}

std::int32_t typeOf(const ProcedureParameter& parameter) {
  return parameter.type == ParameterType::Double ? ado::data_type::real : ado::data_type::integer;
}

std::int32_t directionOf(const ProcedureParameter& parameter) {
  return parameter.direction == ParameterDirection::Output ? ado::direction::output
                                                           : ado::direction::input;
}

LateBound newParameter(LateBound& command, const ProcedureParameter& parameter) {
  return command.object(
      L"CreateParameter",
      {Variant::text(parameter.name), Variant::int32(typeOf(parameter)),
       Variant::int32(directionOf(parameter)), Variant::int32(0), inputValue(parameter)});
}

std::vector<LateBound> appendParameters(LateBound& command, const ProcedureCall& procedure) {
  LateBound list = command.object(L"Parameters");
  std::vector<LateBound> parameters;
  for (const ProcedureParameter& parameter : procedure.parameters) {
    parameters.push_back(newParameter(command, parameter));
    list.call(L"Append", {Variant::object(parameters.back().get())});
  }
  return parameters;
}

}  // namespace

void callProcedure(IDispatch* connection, ProcedureCall& procedure) {
  LateBound command = newCommand();
  command.putReference(L"ActiveConnection", connection);
  command.put(L"CommandText", Variant::text(procedure.procedure));
  command.put(L"CommandType", Variant::int32(ado::command_type::storedProcedure));
  std::vector<LateBound> parameters = appendParameters(command, procedure);
  command.call(L"Execute", {Variant::missing(), Variant::missing(),
                            Variant::int32(ado::command_type::noRecords)});
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    ProcedureParameter& parameter = procedure.parameters[i];
    if (parameter.direction == ParameterDirection::Output) {
      parameter.value = valueOf(parameters[i].call(L"Value"));
    }
  }
}

}  // namespace pelorin
