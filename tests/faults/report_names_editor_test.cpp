// Under which name each procedure of the editor reports.
#include <gtest/gtest.h>

#include "tests/faults/named_faults.h"

namespace pelorin::test {
namespace {

class EditorReportNames : public ::testing::TestWithParam<NamedFault> {};

TEST_P(EditorReportNames, AreThoseOfTheProcedures) {
  expectReportedAlone(GetParam());
}

auto reportTestName = [](const auto& fault) { return testName(fault.param.procedure); };

// Opens a new editor whose control cannot be shown as it should.
void addWhile(NamedFaults& s, const std::string& control, Aspect refused) {
  s.refuseChange("frmTriggerAction", control, refused);
  s.openSummary();
  s.add();
}

void addRefusing(NamedFaults& s, const std::string& statement) {
  s.openSummary();
  s.refuse(statement);
  s.add();
}

void addRecorderAction(NamedFaults& s) {
  s.addAction();
  s.choose("cmbActionDeviceClass", "DVR / NVR");
}

const NamedFault formFaults[] = {
    {"frmTriggerAction.Form_Load",
     [](NamedFaults& s) {
       s.openSummary();
       s.failMember("ZornIsVn8HardwareSupportEnabled");
       s.add();
     }},
    {"frmTriggerAction.InitForm",
     [](NamedFaults& s) {
       s.refuseChange("frmTriggerAction", "cmbActionDeviceClass", Aspect::Enabled);
       s.editAction("CCTV", 4);
     }},
    {"frmTriggerAction.InitTriggerTab",
     [](NamedFaults& s) {
       s.refuseChange("frmTriggerAction", "txtLocation", Aspect::Text);
       s.editAction("CCTV", 4);
     }},
    {"frmTriggerAction.InitActionTab",
     [](NamedFaults& s) { addWhile(s, "txtCCTVAlarm", Aspect::Place); }},
    {"frmTriggerAction.LoadDeviceClassCombo",
     [](NamedFaults& s) { addRefusing(s, "select * from IntegratedDeviceclasses"); }},
    {"frmTriggerAction.DisplayDeviceAction",
     [](NamedFaults& s) { addWhile(s, "fraCCTVAction", Aspect::Visible); }},
    {"frmTriggerAction.cmbActionDeviceClass_Click",
     [](NamedFaults& s) {
       TabControl tabs(noParent, "SSTab1", {}, {"&Trigger", "&Action"});
       const ActionPanels none;
       DeviceClasses(s.component.module(), tabs.page(1), none).cmbActionDeviceClass_Click();
     }},
    {"frmTriggerAction.SaveTriggerAction",
     [](NamedFaults& s) {
       Module1& module = s.component.module();
       EventCatalogue catalogue(module);
       frmTriggerAction editor(module, catalogue, {},
                               [] { throw RunTimeError(5, "The summary is gone."); }, {});
       s.screen.show(editor);
       editor.addLocation("001.01.007.D01", "001.01.007.D01 - Door", "001.01.007.D01");
       editor.cmdApply_Click();
       editor.unload();
     }},
    {"frmTriggerAction.cmdOK_Click",
     [](NamedFaults& s) {
       s.addAction();
       s.refuseAct("destroy");
       s.press("cmdOK");
     }},
    {"frmTriggerAction.cmdCancel_Click",
     [](NamedFaults& s) {
       s.addAction();
       s.refuseAct("destroy");
       s.press("cmdCancel");
     }},
    {"frmTriggerAction.cmdHelp_Click",
     [](NamedFaults& s) {
       s.addAction();
       s.failMember("ShowHelp");
       s.press("cmdHelp");
     }},
    {"frmTriggerAction.cmdAddLocation_Click",
     [](NamedFaults& s) {
       s.openSummary();
       s.add();
       s.refuseAct("create");
       s.press("cmdAddLocation");
     }},
    {"frmTriggerAction.cmdSingleLocation_Click",
     [](NamedFaults& s) {
       s.editAction("CCTV", 4);
       s.refuseAct("create");
       s.press("cmdSingleLocation");
     }},
    {"frmTriggerAction.cmdDeleteLocation_Click", [](NamedFaults& s) {
       s.addAction();
       s.showTab(0);
       s.inEditor<ListView>("lvwLocation").userSelect(1);
       s.refuseChange("frmTriggerAction", "lvwLocation", Aspect::Items);
       s.press("cmdDeleteLocation");
     }}};

INSTANTIATE_TEST_SUITE_P(Form, EditorReportNames, ::testing::ValuesIn(formFaults), reportTestName);

const NamedFault eventFaults[] = {
    {"frmTriggerAction.ZornLoadEventCache",
     [](NamedFaults& s) { addRefusing(s, "select count(EventID) from Zorn_EventDefinitions"); }},
    {"Error: LoadEventsByFilterType(): ",
     [](NamedFaults& s) {
       s.openSummary();
       s.add();
       s.refuse("select EventId, Description, DefaultDescription from ");
       s.tickFilter("External Events");
     }},
    {"frmTriggerAction.lstEventFilters_Click",
     [](NamedFaults& s) {
       s.editAction("CCTV", 4);
       s.refuseChange("frmTriggerAction", "cmbEvents", Aspect::Items);
       s.tickFilter("External Events");
     }},
    {"frmTriggerAction.UnLoadListEventsByFilterType",
     [](NamedFaults& s) {
       s.openSummary();
       s.add();
       s.tickFilter("External Events");
       s.refuseChange("frmTriggerAction", "lvwEvents", Aspect::Items);
       s.tickFilter("External Events");
     }},
    {"frmTriggerAction.ZornDisplayFilteredEvents",
     [](NamedFaults& s) {
       s.openSummary();
       s.add();
       s.refuseChange("frmTriggerAction", "cmbEvents", Aspect::Items);
       s.tickFilter("Zorn Transaction Events");
     }},
    {"frmTriggerAction.ZornRemoveDisplayItem",
     [](NamedFaults& s) {
       s.openSummary();
       s.add();
       s.tickFilter("Zorn Transaction Events");
       s.refuseChange("frmTriggerAction", "lvwEvents", Aspect::Items);
       s.tickFilter("Zorn Transaction Events");
     }},
    {"frmTriggerAction.cmdSelect_Click", [](NamedFaults& s) {
       s.openSummary();
       s.add();
       s.tickFilter("External Events");
       s.refuseChange("frmTriggerAction", "lvwEvents", Aspect::Checks);
       s.press("cmdSelect(0)");
     }}};

INSTANTIATE_TEST_SUITE_P(Events, EditorReportNames, ::testing::ValuesIn(eventFaults),
                         reportTestName);

const NamedFault cctvFaults[] = {
    {"frmTriggerAction.LoadCCTVAction",
     [](NamedFaults& s) {
       s.refuse("select * from CCTV_TriggerAction where TA_ID");
       s.editAction("DVR / NVR", 3);
     }},
    {"frmTriggerAction.LoadCCTVSwitcherCombo",
     [](NamedFaults& s) { addRefusing(s, "select SwitcherID, Name, INI_FILE"); }},
    {"frmTriggerAction.InitCCTVActionCombo",
     [](NamedFaults& s) { addWhile(s, "cmbCCTVActions", Aspect::Items); }},
    {"frmTriggerAction.InitCCTVCameras",
     [](NamedFaults& s) { addRefusing(s, "select Name, [Index] from CCTV_Cameras"); }},
    {"frmTriggerAction.InitCCTVMonitors",
     [](NamedFaults& s) { addRefusing(s, "select nOutputs from CCTV_Switchers"); }},
    {"frmTriggerAction.InitCCTVCameraPresets",
     [](NamedFaults& s) { addRefusing(s, "CCTV_FetchCameraNoPresets"); }},
    {"frmTriggerAction.cmbCCTVActions_Click",
     [](NamedFaults& s) {
       s.addAction();
       s.refuseChange("frmTriggerAction", "txtCCTVAlarm", Aspect::Visible);
       s.choose("cmbCCTVActions", "Raise alarm");
     }},
    {"frmTriggerAction.cmbCCTVSwitchers_Click",
     [](NamedFaults& s) {
       s.addAction();
       s.refuseAct("point");
       s.inEditor<ComboBox>("cmbCCTVSwitchers").userSelect(1);
     }},
    {"frmTriggerAction.cmbCCTVCameras_Click",
     [](NamedFaults& s) {
       s.addAction();
       s.inEditor<ComboBox>("cmbCCTVSwitchers").setListIndex(-1);
       s.inEditor<ComboBox>("cmbCCTVCameras").userSelect(1);
     }},
    {"frmTriggerAction.SaveCCTVTriggerAction",
     [](NamedFaults& s) {
       s.editAction("CCTV", 4);
       s.refuse("exec CCTV_Update_TA");
       s.press("cmdApply");
     }},
    {"frmTriggerAction.InsertCCTVTriggerActionForThisLocation", [](NamedFaults& s) {
       s.addAction();
       s.refuse("exec CCTV_Insert_TA");
       s.press("cmdApply");
     }}};

INSTANTIATE_TEST_SUITE_P(Cctv, EditorReportNames, ::testing::ValuesIn(cctvFaults), reportTestName);

const NamedFault dvrFaults[] = {
    {"frmTriggerAction.cmbDVRUnit_Click",
     [](NamedFaults& s) {
       addRecorderAction(s);
       s.refuseAct("point");
       s.inEditor<ComboBox>("cmbDVRUnit").userSelect(1);
     }},
    {"frmTriggerAction.LoadDVRAction",
     [](NamedFaults& s) { addRefusing(s, "select * from DVR_TriggerActions (NOLOCK)"); }},
    {"frmTriggerAction.LoadDVRUnitCombo",
     [](NamedFaults& s) { addRefusing(s, "select ID, DVRName from DVR_Config"); }},
    {"frmTriggerAction.LoadDVRCameraCombo",
     [](NamedFaults& s) { addRefusing(s, "select CameraIndex, CameraName from DVR_Cameras"); }},
    {"frmTriggerAction.LoadDVRCameraPresets",
     [](NamedFaults& s) { addRefusing(s, "select ID, PresetName from DVR_PTZ_Preset"); }},
    {"frmTriggerAction.ConfigureFormByVendor",
     [](NamedFaults& s) { addRefusing(s, "EXECUTE DVR_Getvendorinfo"); }},
    {"frmTriggerAction.LoadCommandSetCombo",
     [](NamedFaults& s) { addRefusing(s, "exec WOL_Roles_Fetch_Cached_Commandsets"); }},
    {"frmTriggerAction.LoadDVRVideoExplorerGroups",
     [](NamedFaults& s) { addRefusing(s, "select ID, Description from DVR_ViewGroups"); }},
    {"frmTriggerAction.cmbDVRCamera_Click",
     [](NamedFaults& s) {
       addRecorderAction(s);
       s.inEditor<ComboBox>("cmbDVRUnit").setListIndex(-1);
       s.inEditor<ComboBox>("cmbDVRCamera").userSelect(1);
     }},
    {"frmTriggerAction.cmbRecordStandard_Click",
     [](NamedFaults& s) {
       addRecorderAction(s);
       s.refuseChange("frmTriggerAction", "cmbDVRRecordRate", Aspect::Items);
       s.choose("cmbRecordStandard", "PAL");
     }},
    {"frmTriggerAction.SaveDVRTriggerAction",
     [](NamedFaults& s) {
       s.editAction("DVR / NVR", 3);
       s.refuse("pav_UpdateDeviceTrigger");
       s.press("cmdApply");
     }},
    {"frmTriggerAction.UpdateDVRAction",
     [](NamedFaults& s) {
       s.editAction("DVR / NVR", 3);
       s.refuse("DVR_UpdateAction");
       s.press("cmdApply");
     }},
    {"frmTriggerAction.AddDVRAction",
     [](NamedFaults& s) {
       addRecorderAction(s);
       s.refuse("DVR_AddAction");
       s.press("cmdApply");
     }},
    {"frmTriggerAction.GenerateTriggerActonForEventsAtThisLocation", [](NamedFaults& s) {
       addRecorderAction(s);
       s.refuse("pav_AddDeviceTrigger");
       s.press("cmdApply");
     }}};

INSTANTIATE_TEST_SUITE_P(Dvr, EditorReportNames, ::testing::ValuesIn(dvrFaults), reportTestName);

}  // namespace
}  // namespace pelorin::test
