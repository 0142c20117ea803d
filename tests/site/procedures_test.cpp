// What the stored procedures write and answer.
#include <gmock/gmock.h>

#include "site/procedure.h"
#include "tests/site/site_fixture.h"

namespace pelorin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Rows = std::vector<std::vector<std::string>>;

class Procedures : public SiteTest {
 protected:
  Rows rows(std::string_view sql, const std::vector<std::string>& columns) {
    return allRows(*connection_, sql, columns);
  }
};

ProcedureCall addAction() {
  const auto in = ParameterDirection::Input;
  return {"DVR_AddAction",
          {{"DVRActionID", ParameterType::Integer, ParameterDirection::Output, std::int64_t{0}},
           {"ID_DVR_Config", ParameterType::Integer, in, std::int64_t{3}},
           {"CameraIndex", ParameterType::Integer, in, std::int64_t{2}},
           {"RecordRate", ParameterType::Double, in, 0.8},
           {"AlarmDuration", ParameterType::Integer, in, std::int64_t{20}},
           {"RecordStandard", ParameterType::Integer, in, std::int64_t{1}},
           {"PresetID", ParameterType::Integer, in, std::int64_t{4}},
           {"ViewGroupID", ParameterType::Integer, in, std::int64_t{5}},
           {"CommandSetID", ParameterType::Integer, in, std::int64_t{6}}}};
}

const std::vector<std::string> actionColumns{"ID_DVR_Config", "CameraIndex",   "RecordStandard",
                                             "RecordRate",    "AlarmDuration", "ptzPresetID",
                                             "ViewGroupID",   "CommandSetID"};

TEST_F(Procedures, InsertOfACctvActionWritesEveryArgumentToItsColumn) {
  connection_->execute(
      "exec CCTV_Insert_TA 1, 2, 3, 4, 5001, 'A.1', 2, '5001', 'A.1 - Door', 7, True");
  EXPECT_THAT(
      rows("select * from CCTV_TriggerAction where T_Address = 'A.1'",
           {"SwitcherID", "Monitor", "Camera", "PresetID", "T_EventID", "A_type", "T_EventText",
            "T_LocationText", "SWAlarmIndex", "OpenViewer"}),
      ElementsAre(ElementsAre("1", "2", "3", "4", "5001", "2", "5001", "A.1 - Door", "7", "True")));
}

TEST_F(Procedures, InsertedActionsAreNumberedOnwardsAndNumbersNeverComeBack) {
  connection_->execute("exec CCTV_Insert_TA 1, 1, 1, 0, 1, 'A.1', 1, '1', 'x', 0, False");
  const std::string first = one("select TA_ID from CCTV_TriggerAction where T_Address = 'A.1'");
  connection_->execute("delete from CCTV_TriggerAction where TA_ID = " + first);
  connection_->execute("exec CCTV_Insert_TA 1, 1, 1, 0, 1, 'A.2', 1, '1', 'x', 0, False");
  EXPECT_GT(std::stoi(one("select TA_ID from CCTV_TriggerAction where T_Address = 'A.2'")),
            std::stoi(first));
}

TEST_F(Procedures, UpdateOfACctvActionChangesThatRowAlone) {
  const std::int64_t before = count("CCTV_TriggerAction");
  connection_->execute(
      "exec CCTV_Update_TA 2, 9, 8, 7, 6, 42, 'B.1', 3, '42', 'B.1 - Gate', 5, False");
  EXPECT_THAT(rows("select * from CCTV_TriggerAction where T_Address = 'B.1'",
                   {"TA_ID", "SwitcherID", "Monitor", "Camera", "PresetID", "T_EventID", "A_type",
                    "T_EventText", "T_LocationText", "SWAlarmIndex", "OpenViewer"}),
              ElementsAre(ElementsAre("2", "9", "8", "7", "6", "42", "3", "42", "B.1 - Gate", "5",
                                      "False")));
  EXPECT_EQ(count("CCTV_TriggerAction"), before);
}

TEST_F(Procedures, AddedDeviceTriggerTakesTheZeroPaddedEventAsDecimal) {
  connection_->execute("pav_AddDeviceTrigger 'C.1', 00042, 3, 1");
  EXPECT_THAT(rows("select * from IntegratedDeviceTriggers where TriggerAddress = 'C.1'",
                   {"TriggerEventID", "ActionID", "IntegratedDeviceClassId"}),
              ElementsAre(ElementsAre("42", "3", "1")));
}

TEST_F(Procedures, UpdatedDeviceTriggerKeepsItsNumber) {
  connection_->execute("pav_UpdateDeviceTrigger 2, 'C.2', 77, 4, 3");
  EXPECT_THAT(rows("select * from IntegratedDeviceTriggers where TriggerID = 2",
                   {"TriggerAddress", "TriggerEventID", "ActionID", "IntegratedDeviceClassId"}),
              ElementsAre(ElementsAre("C.2", "77", "4", "3")));
}

TEST_F(Procedures, DeletingATriggerLeavesItsActionRow) {
  const std::int64_t actions = count("DVR_TriggerActions");
  connection_->execute("exec TA_DeleteTrigger 1");
  EXPECT_THAT(rows("select * from IntegratedDeviceTriggers where TriggerID = 1", {"TriggerID"}),
              IsEmpty());
  EXPECT_EQ(count("DVR_TriggerActions"), actions);
}

TEST_F(Procedures, DeletingATriggerThatIsGoneIsNoError) {
  EXPECT_EQ(failure("exec TA_DeleteTrigger 4711"), "");
}

TEST_F(Procedures, AddedRecorderActionHandsBackItsNumberAndKeepsTheRate) {
  ProcedureCall call = addAction();
  connection_->execute(call);
  const std::int64_t action = toInt64(call.parameters[0].value);
  EXPECT_GT(action, 5);
  EXPECT_THAT(rows("select * from DVR_TriggerActions where DVRActionID = " + std::to_string(action),
                   actionColumns),
              ElementsAre(ElementsAre("3", "2", "1", "0.8", "20", "4", "5", "6")));
}

TEST_F(Procedures, EveryAddedRecorderActionHasANumberOfItsOwn) {
  ProcedureCall first = addAction();
  ProcedureCall second = addAction();
  connection_->execute(first);
  connection_->execute(second);
  EXPECT_EQ(toInt64(second.parameters[0].value), toInt64(first.parameters[0].value) + 1);
}

TEST_F(Procedures, UpdateOfARecorderActionTakesItsValuesInTheirOrder) {
  connection_->execute("DVR_UpdateAction 2, 11, 12, 6.25, 13, 0, 14, 15, 16");
  EXPECT_THAT(rows("select * from DVR_TriggerActions where DVRActionID = 2", actionColumns),
              ElementsAre(ElementsAre("11", "12", "0", "6.25", "13", "14", "15", "16")));
}

TEST_F(Procedures, SummaryListsIntegratedTriggersOfKnownClassesOnly) {
  connection_->execute("pav_AddDeviceTrigger 'D.1', 1, 1, 555");
  const Rows summary = rows("exec TA_FetchSummary", {"TriggerAddress", "Classname"});
  EXPECT_EQ(static_cast<std::int64_t>(summary.size()) + 1, count("IntegratedDeviceTriggers"));
  EXPECT_THAT(summary, testing::Contains(ElementsAre("012.01.012.I02", "DVR / NVR")));
  EXPECT_THAT(summary, testing::Contains(ElementsAre("001.01.001.D03", "Intercom")));
}

TEST_F(Procedures, RecorderNameIsEmptyWhenTheActionIsGone) {
  EXPECT_EQ(one("exec TA_FetchDVRNameFromAction 2"), "Head office recorder");
  EXPECT_EQ(one("exec TA_FetchDVRNameFromAction 99"), "(no row)");
}

TEST_F(Procedures, VendorTypeOfARecorder) {
  EXPECT_EQ(one("EXECUTE DVR_Getvendorinfo 3"), "4");
  EXPECT_EQ(one("EXECUTE DVR_Getvendorinfo 99"), "(no row)");
}

TEST_F(Procedures, CommandSetsAreThoseOfOperatorAndWorkstation) {
  EXPECT_THAT(rows("exec WOL_Roles_Fetch_Cached_Commandsets @operatorid=1, @workstationid=2",
                   {"ObjectID", "Name"}),
              ElementsAre(ElementsAre("2", "Switch on yard lighting")));
  EXPECT_THAT(
      rows("exec WOL_Roles_Fetch_Cached_Commandsets @workstationid=1, @operatorid=2", {"ObjectID"}),
      ElementsAre(ElementsAre("3")));
}

TEST_F(Procedures, PortPanelsLeaveOutWhatStandsBehindAMultiplexer) {
  EXPECT_THAT(rows("EXECUTE sp_FetchPortPanels 2", {"Controller_Name"}),
              ElementsAre(ElementsAre("Executive Floor")));
  EXPECT_THAT(rows("EXECUTE sp_FetchKumboControllers 2", {"Controller_Name"}),
              ElementsAre(ElementsAre("Canteen"), ElementsAre("Annex Reception")));
}

TEST_F(Procedures, PortsAndMultiplexersOfAServer) {
  EXPECT_THAT(rows("EXECUTE sp_FetchServerPorts 2", {"PortID", "PortName", "PortStyle"}),
              ElementsAre(ElementsAre("3", "Network port 1", "Vollo"),
                          ElementsAre("4", "Serial port COM1", "Pamba"),
                          ElementsAre("5", "Spare port", "")));
  EXPECT_THAT(rows("sp_FetchKumbos 3", {"KumboName"}),
              ElementsAre(ElementsAre("Multiplexer yard")));
}

TEST_F(Procedures, PresetsOfOneCameraOfOneSwitcher) {
  EXPECT_THAT(rows("CCTV_FetchCameraNoPresets 3, 2", {"PresetID", "PresetName"}),
              ElementsAre(ElementsAre("0", "No preset"), ElementsAre("1", "Fence zone 1"),
                          ElementsAre("2", "Fence zone 2")));
}

TEST_F(Procedures, EventTypesComeInSearchOrderAndARangeMayBeMissing) {
  const Rows types = rows("exec TA_FetchAllEventTypeInfo",
                          {"FilterType", "filterIndex", "TableName", "MinEventID", "MaxEventID"});
  EXPECT_THAT(types.front(), ElementsAre("Alarm", "0", "AlarmEvents", "1", "999"));
  EXPECT_THAT(types, testing::Contains(ElementsAre("Alarm", "0", "IntegratedEvents", "", "")));
}

TEST_F(Procedures, IntegratedEventsComeByNumber) {
  const Rows events = rows("exec pav_FetchInstalledIntegratedEvents", {"EventId"});
  EXPECT_EQ(static_cast<std::int64_t>(events.size()), count("IntegratedEvents"));
  EXPECT_TRUE(std::is_sorted(events.begin(), events.end()));
}

TEST_F(Procedures, EveryResultHasItsDeclaredColumns) {
  for (const site::Procedure& procedure : site::siteProcedures()) {
    if (procedure.results.empty()) continue;
    std::string call = "exec " + procedure.name;
    for (std::size_t at = 0; at < procedure.parameters.size(); ++at) call += at == 0 ? " 1" : ", 1";
    const SiteResult result = site_.session()->run(call);
    std::vector<std::string> declared;
    for (const site::ResultColumn& column : procedure.results) declared.push_back(column.name);
    ASSERT_TRUE(result.rows) << procedure.name;
    EXPECT_EQ(result.rows->columns(), declared) << procedure.name;
  }
}

}  // namespace
}  // namespace pelorin
