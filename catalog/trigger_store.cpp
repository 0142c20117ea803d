#include "catalog/trigger_store.h"

#include "common/guard.h"

namespace pelorin {

bool DeleteCCTVTriggerAction(Module1& module, std::int32_t TA_ID) {
  return guarded(module, "Module1.DeleteCCTVTriggerAction", [&] {
    module.DBConnection()->execute("delete from CCTV_TriggerAction where TA_ID = " +
                                   numberText(TA_ID));
  });
}

bool DeleteTriggerAction(Module1& module, std::int32_t TriggerID) {
  return guarded(module, "Module1.DeleteTriggerAction", [&] {
    RecordSet rows = module.DBConnection()->open(
        "select ActionId, IntegratedDeviceClassId from IntegratedDevicetriggers where TriggerId "
        "= " +
        numberText(TriggerID));
    const bool found = rows.next();
    rows.detach();
    if (found && rows.int32("IntegratedDeviceClassId") == device_class::dvr) {
      module.DBConnection()->execute("Delete from DVR_TriggerActions where DVRActionID = " +
                                     numberText(rows.int32("ActionID")));
    }
    module.DBConnection()->execute("exec TA_DeleteTrigger " + numberText(TriggerID));
  });
}

bool GetCCTVTriggerData(Module1& module, std::int32_t TA_ID, TriggerData& data) {
  return guarded(module, "Module1.GetCCTVTriggerData", [&] {
    data.address.clear();
    RecordSet rows = module.DBConnection()->open("select * from CCTV_TriggerAction where TA_ID = " +
                                                 numberText(TA_ID));
    if (!rows.next()) return;
    data.address = rows.text("T_Address");
    data.eventId = rows.int32("T_EventID");
    data.actionId = rows.int32("TA_ID");
    data.deviceClassId = device_class::cctv;
  });
}

bool GetTriggerData(Module1& module, std::int32_t TriggerID, TriggerData& data) {
  return guarded(module, "Module1.GetTriggerData", [&] {
    data.address.clear();
    RecordSet rows = module.DBConnection()->open(
        "select * from IntegratedDeviceTriggers where TriggerID = " + numberText(TriggerID));
    if (!rows.next()) return;
    data.address = rows.text("TriggerAddress");
    data.eventId = rows.int32("TriggerEventID");
    data.actionId = rows.int32("ActionID");
    data.deviceClassId = rows.int32("IntegratedDeviceClassId");
  });
}

}  // namespace pelorin
