#include "tests/editor/editor_site.h"

namespace pelorin::test {

EditorSite::EditorSite() {
  services->newerHardware = true;
  services->texts = {{1677, "Call camera"}, {1675, "Raise alarm"}, {1821, "Acknowledge alarm"},
                     {2161, "<No preset>"}, {3553, "<No group>"},  {2835, "Added"}};
  answerEvents();
  answerSwitchers();
  answerRecorders();
  database->answer("select * from IntegratedDeviceclasses",
                   {{"IntegratedDeviceClassId", "Classname"}, {{5, "Receiver"}, {1, "DVR / NVR"}}});
}

void EditorSite::answerEvents() {
  database->answer("exec TA_FetchAllEventTypeInfo",
                   {{"FilterType", "filterIndex", "TableName", "MinEventID", "MaxEventID"},
                    {{"Alarm", 0, "AlarmEvents", 5000, 5999},
                     {"Door", 1, "DoorEvents", 100, 199},
                     {"System", 2, "SystemEvents", 1, 99},
                     {"Alarm", 0, "IntegratedEvents", 10000, 10999}}});
  database->answer("select * from TA_EventFilters order by FilterIndex",
                   {{"FilterIndex", "FilterType"},
                    {{0, "Alarm"},
                     {1, "Door"},
                     {2, "System"},
                     {8, "ZornTransaction"},
                     {11, "ZornMiscellaneous"}}});
  const std::vector<std::string> columns = {"EventId", "Description", "DefaultDescription"};
  database->answer(
      "select EventId, Description, DefaultDescription from AlarmEvents where EventID >= 5000 and "
      "EventID <= 5999 order by EventID",
      {columns, {{5001, Null(), "Input in alarm"}, {5002, "Tampering", "Tamper"}}});
  database->answer(
      "select EventId, Description, DefaultDescription from DoorEvents where EventID >= 100 and "
      "EventID <= 199 order by EventID",
      {columns,
       {{100, "", "Door forced"}, {101, Null(), "Door held"}, {102, Null(), "uNdEfInEd 102"}}});
  database->answer(
      "select EventId, Description, DefaultDescription from SystemEvents where EventID >= 1 and "
      "EventID <= 99 order by EventID",
      {columns, {}});
  database->answer("exec pav_FetchInstalledIntegratedEvents",
                   {columns, {{10001, Null(), "Motion"}}});
  database->answer("select count(EventID) from Zorn_EventDefinitions", {{""}, {{3}}});
  database->answer("select * from Zorn_EventDefinitions order by EventID",
                   {{"EventId", "ZornEventType", "Description", "DefaultDescription"},
                    {{80001, 20, Null(), "Card read"},
                     {80002, 24, "Kept", "Battery low"},
                     {80003, 20, Null(), "Card refused"}}});
  database->answer("select ZornEventType from zorn_EventDefinitions where EventID = 80003",
                   {{"ZornEventType"}, {{20}}});
  for (const int alarm : {5001, 5002}) {
    database->answer("select ExternalEventId as RTNEventID from RetNormalMatrix where AlarmID = " +
                         std::to_string(alarm),
                     {{"RTNEventID"}, {{alarm + 400}}});
  }
}

void EditorSite::answerSwitchers() {
  database->answer(
      "select SwitcherID, Name, INI_FILE from CCTV_Switchers",
      {{"SwitcherID", "Name", "INI_FILE"}, {{11, "North", "north"}, {12, "South", "south"}}});
  database->answer("select Name, [Index] from CCTV_Cameras where SwitcherId =11 order by [index]",
                   {{"Name", "Index"}, {{"Gate", 1}, {"Yard", 2}}});
  database->answer("select Name, [Index] from CCTV_Cameras where SwitcherId =12 order by [index]",
                   {{"Name", "Index"}, {{"Dock", 5}}});
  database->answer("select nOutputs from CCTV_Switchers where SwitcherId = 11",
                   {{"nOutputs"}, {{4}}});
  database->answer("select nOutputs from CCTV_Switchers where SwitcherId = 12",
                   {{"nOutputs"}, {{2}}});
  const std::vector<std::string> columns = {"PresetName", "PresetID"};
  database->answer("CCTV_FetchCameraNoPresets 1, 11", {columns, {{"Entry", 31}, {"Exit", 32}}});
  database->answer("CCTV_FetchCameraNoPresets 2, 11", {columns, {{"Fence", 33}}});
  database->answer("CCTV_FetchCameraNoPresets 5, 12", {columns, {{"Ramp", 39}}});
}

void EditorSite::answerRecorders() {
  database->answer("select ID, DVRName from DVR_Config",
                   {{"ID", "DVRName"}, {{21, "Recorder A"}, {22, "Recorder B"}}});
  const std::vector<std::string> cameras = {"CameraIndex", "CameraName"};
  database->answer(
      "select CameraIndex, CameraName from DVR_Cameras where ID_DVR_Config = 21 order by "
      "CameraIndex",
      {cameras, {{1, "Lobby"}, {2, "Hall"}}});
  database->answer(
      "select CameraIndex, CameraName from DVR_Cameras where ID_DVR_Config = 22 order by "
      "CameraIndex",
      {cameras, {{7, "Vault"}}});
  const std::vector<std::string> presets = {"ID", "PresetName"};
  database->answer(
      "select ID, PresetName from DVR_PTZ_Preset where ID_DVR_Config = 21 And CameraIndex = 1 "
      "order by PresetName",
      {presets, {{41, "Desk"}, {42, "Door"}}});
  database->answer(
      "select ID, PresetName from DVR_PTZ_Preset where ID_DVR_Config = 21 And CameraIndex = 2 "
      "order by PresetName",
      {presets, {{43, "Stairs"}}});
  database->answer(
      "select ID, PresetName from DVR_PTZ_Preset where ID_DVR_Config = 22 And CameraIndex = 7 "
      "order by PresetName",
      {presets, {{44, "Safe"}}});
  database->answer("exec WOL_Roles_Fetch_Cached_Commandsets @operatorid=7, @workstationid=3",
                   {{"ObjectID", "Name"}, {{61, "Lock all"}}});
  database->answer("EXECUTE DVR_Getvendorinfo 21", {{"DVRVendorID"}, {{2}}});
  database->answer("EXECUTE DVR_Getvendorinfo 22", {{"DVRVendorID"}, {{4}}});
  database->answer("select ID, Description from DVR_ViewGroups order by Description",
                   {{"ID", "Description"}, {{51, "Ground floor"}, {52, "Outside"}}});
  database->onCall = [next = 900](ProcedureCall& call) mutable {
    call.parameters.front().value = std::int64_t{++next};
  };
}

void EditorSite::answerCctvTrigger(int id, std::vector<Value> row) {
  database->answer("select * from CCTV_TriggerAction where TA_ID = " + std::to_string(id),
                   {{"TA_ID", "T_Address", "T_EventID", "SwitcherID", "A_type", "Camera", "Monitor",
                     "PresetID", "OpenViewer", "SWAlarmIndex"},
                    {std::move(row)}});
}

void EditorSite::answerDvrTrigger(int id, int eventId, int actionId, int deviceClass) {
  database->answer(
      "select * from IntegratedDeviceTriggers where TriggerID = " + std::to_string(id),
      {{"TriggerID", "TriggerAddress", "TriggerEventID", "ActionID", "IntegratedDeviceClassId"},
       {{id, "1.2.3", eventId, actionId, deviceClass}}});
}

void EditorSite::answerDvrAction(int id, std::vector<Value> row) {
  database->answer(
      "select * from DVR_TriggerActions (NOLOCK) where DVRActionID = " + std::to_string(id),
      {{"ID_DVR_Config", "CameraIndex", "RecordStandard", "RecordRate", "AlarmDuration",
        "ptzPresetID", "ViewGroupID", "CommandSetID"},
       {std::move(row)}});
}

frmTriggerAction& EditorTest::openEditor(const EditorRequest& request) {
  editor = std::make_unique<frmTriggerAction>(
      module, catalogue, request,
      [this] {
        ++reloads;
        journal.add("reload");
        if (reloadFails) throw RunTimeError(5, "the summary is gone");
      },
      [this](LocationTarget&, const std::string& mode) { pickerModes.push_back(mode); });
  screen.show(*editor, 77);
  return *editor;
}

void EditorTest::addLocations(int count) {
  for (int i = 1; i <= count; ++i) {
    const std::string address = "1.1." + std::to_string(i);
    editor->addLocation(address, address + " - Door " + std::to_string(i), address);
  }
}

void EditorTest::tickFilter(int row) {
  control<ListBox>("lstEventFilters").userToggle(row);
}

void EditorTest::checkEvents(std::initializer_list<int> rows) {
  for (const int row : rows) control<ListView>("lvwEvents").userCheck(row, true);
}

void EditorTest::chooseClass(std::int32_t deviceClass) {
  control<TabControl>("SSTab1").setTab(1);
  chooseData(combo("cmbActionDeviceClass"), deviceClass);
}

std::vector<std::string> EditorTest::writes() const {
  std::vector<std::string> found;
  for (const std::string& line : journal.lines()) {
    const bool writing = line.find("_TA ") != std::string::npos ||
                         line.find("DeviceTrigger") != std::string::npos ||
                         line.find("DVR_AddAction") != std::string::npos ||
                         line.find("DVR_UpdateAction") != std::string::npos;
    if (writing || line.starts_with("host: LogEvent") || line == "reload") found.push_back(line);
  }
  return found;
}

}  // namespace pelorin::test
