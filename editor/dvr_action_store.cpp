#include "editor/dvr_action_store.h"

#include <string>

#include "common/guard.h"

namespace pelorin {

namespace {

constexpr const char* newIdParameter = "DVRActionID";

ProcedureParameter integerParameter(const char* name, std::int32_t value) {
  return {name, ParameterType::Integer, ParameterDirection::Input, std::int64_t{value}};
}

ProcedureCall addActionCall(const DvrValues& values) {
  ProcedureParameter newId = integerParameter(newIdParameter, 0);
  newId.direction = ParameterDirection::Output;
  return {"DVR_AddAction",
          {newId,
           integerParameter("ID_DVR_Config", values.recorder),
           integerParameter("CameraIndex", values.camera),
           {"RecordRate", ParameterType::Double, ParameterDirection::Input, values.rate},
           integerParameter("AlarmDuration", values.alarmDuration),
           integerParameter("RecordStandard", values.recordStandard),
           integerParameter("PresetID", values.preset),
           integerParameter("ViewGroupID", values.viewGroup),
           integerParameter("CommandSetID", values.commandSet)}};
}

}  // namespace

bool DvrActionStore::AddDVRAction(const DvrValues& values, std::int32_t& newActionId) {
  return guarded(module_, "frmTriggerAction.AddDVRAction", [&] {
    ProcedureCall call = addActionCall(values);
    module_.DBConnection()->execute(call);
    newActionId = toInt32(call.parameters.front().value);
    if (newActionId < 1) {
      throw RunTimeError(error_number::invalidPropertyValue, "DVR_AddAction gave no new action ID");
    }
  });
}

bool DvrActionStore::UpdateDVRAction(std::int32_t actionId, const DvrValues& values) {
  return guarded(module_, "frmTriggerAction.UpdateDVRAction", [&] {
    std::string sql = "DVR_UpdateAction " + std::to_string(actionId);
    sql += ", " + std::to_string(values.recorder);
    sql += ", " + std::to_string(values.camera);
    sql += ", " + numberText(values.rate);
    sql += ", " + std::to_string(values.alarmDuration);
    sql += ", " + std::to_string(values.recordStandard);
    sql += ", " + std::to_string(values.preset);
    sql += ", " + std::to_string(values.viewGroup);
    sql += ", " + std::to_string(values.commandSet);
    module_.DBConnection()->execute(sql);
  });
}

}  // namespace pelorin
