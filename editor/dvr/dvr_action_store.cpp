#include "editor/dvr/dvr_action_store.h"

#include <string>

#include "common/guard.h"

namespace pelorin {

namespace {

constexpr const char* newIdParameter = "DVRActionID";

ProcedureParameter parameterOf(const Argument& argument) {
  const bool real = std::holds_alternative<double>(argument.value);
  return {argument.name, real ? ParameterType::Double : ParameterType::Integer,
          ParameterDirection::Input, argument.value};
}

ProcedureCall addActionCall(const Arguments& values) {
  ProcedureParameter newId = parameterOf({newIdParameter, std::int64_t{0}});
  newId.direction = ParameterDirection::Output;
  ProcedureCall call{"DVR_AddAction", {newId}};
  for (const auto& [position, argument] : values) call.parameters.push_back(parameterOf(argument));
  return call;
}

}  // namespace

bool DvrActionStore::AddDVRAction(const Arguments& values, std::int32_t& newActionId) {
  return guarded(module_, "frmTriggerAction.AddDVRAction", [&] {
    ProcedureCall call = addActionCall(values);
    module_.DBConnection()->execute(call);
    newActionId = toInt32(call.parameters.front().value);
    if (newActionId < 1) {
      throw RunTimeError(error_number::invalidPropertyValue, "DVR_AddAction gave no new action ID");
    }
  });
}

bool DvrActionStore::UpdateDVRAction(std::int32_t actionId, const Arguments& values) {
  return guarded(module_, "frmTriggerAction.UpdateDVRAction", [&] {
    module_.DBConnection()->execute("DVR_UpdateAction " + numberText(actionId) + ", " +
                                    argumentList(values));
  });
}

}  // namespace pelorin
