// Under which name each procedure of the shared services, the catalogue and the summary reports.
#include <gtest/gtest.h>

#include "component/ta_manager_members.h"
#include "tests/component/fake_entrance.h"
#include "tests/faults/named_faults.h"

namespace pelorin::test {
namespace {

class ReportNames : public ::testing::TestWithParam<NamedFault> {};

TEST_P(ReportNames, AreThoseOfTheProcedures) {
  expectReportedAlone(GetParam());
}

void startReturnToNormal(NamedFaults& s) {
  s.addAction();
  s.choose("cmbCCTVActions", "Raise alarm");
  s.inEditor<CheckBox>("chkCCTVAutoRTNTriggers").userToggle();
}

void deleteTrigger(NamedFaults& s, const std::string& deviceClass, int id) {
  s.selectTrigger(deviceClass, id);
  s.press("frmTASummary", "cmdDelete");
}

const NamedFault sharedFaults[] = {
    {"Module1.MyPermissionGranted",
     [](NamedFaults& s) {
       s.failMember("Security");
       s.openSummary();
     }},
    {"MPublic: GRS",
     [](NamedFaults& s) {
       s.failMember("GetResourceString");
       s.openSummary();
     }},
    {"TAManager.GetAddInID",
     [](NamedFaults& s) {
       s.refuse("SELECT DISTINCT AddInID FROM ApplicatrionAddIns");
       FakeEntrance entrance(s.component);
       EXPECT_EQ(TAManagerMembers(entrance).GetAddInID("MorvatPelorin"), 0);
     }},
    {"Module1.InitEventTypeInfoArray",
     [](NamedFaults& s) {
       s.refuse("exec TA_FetchAllEventTypeInfo");
       s.openSummary();
     }},
    {"Module1.GetEventDescription",
     [](NamedFaults& s) {
       s.refuse("select EventId, Description, DefaultDescription from ");
       s.openSummary();
     }},
    {"Module1.ZornGetEventDescription",
     [](NamedFaults& s) {
       s.refuse("select Description, DefaultDescription from Zorn_EventDefinitions where EventId");
       s.openSummary();
     }},
    {"Module1.LoadFilterList",
     [](NamedFaults& s) {
       s.openSummary();
       s.refuse("select * from TA_EventFilters");
       s.add();
     }},
    {"Module1.ZornGetFilterIndexByEventID",
     [](NamedFaults& s) {
       s.refuse("select ZornEventType from zorn_EventDefinitions");
       s.editAction("DVR / NVR", 5);
     }},
    {"Module1.GetRTNEvent",
     [](NamedFaults& s) {
       startReturnToNormal(s);
       s.refuse("select ExternalEventId as RTNEventID");
       s.press("cmdApply");
     }},
    {"Module1.DeleteCCTVTriggerAction",
     [](NamedFaults& s) {
       s.openSummary();
       s.refuse("delete from CCTV_TriggerAction");
       deleteTrigger(s, "CCTV", 2);
     }},
    {"Module1.DeleteTriggerAction",
     [](NamedFaults& s) {
       s.openSummary();
       s.refuse("exec TA_DeleteTrigger");
       deleteTrigger(s, "DVR / NVR", 2);
     }},
    {"Module1.GetCCTVTriggerData",
     [](NamedFaults& s) {
       s.refuse("select * from CCTV_TriggerAction where TA_ID");
       s.editAction("CCTV", 4);
     }},
    {"Module1.GetTriggerData", [](NamedFaults& s) {
       s.refuse("select * from IntegratedDeviceTriggers where TriggerID");
       s.editAction("DVR / NVR", 3);
     }}};

INSTANTIATE_TEST_SUITE_P(Shared, ReportNames, ::testing::ValuesIn(sharedFaults),
                         [](const auto& fault) { return testName(fault.param.procedure); });

const NamedFault summaryFaults[] = {
    {"frmTASummary.Form_Load",
     [](NamedFaults& s) {
       s.refuseChange("frmTASummary", "MSFlexGrid1", Aspect::Selection);
       s.openSummary();
     }},
    {"frmTASummary.InitSummaryGridHeader",
     [](NamedFaults& s) {
       s.refuseChange("frmTASummary", "MSFlexGrid1", Aspect::Columns);
       s.openSummary();
     }},
    {"frmTASummary.LoadSummaryData",
     [](NamedFaults& s) {
       s.refuse("exec TA_FetchSummary");
       s.openSummary();
     }},
    {"frmTASummary.LoadCCTVSummaryData",
     [](NamedFaults& s) {
       s.refuse("select CCTV_TriggerAction.*");
       s.openSummary();
     }},
    {"frmTASummary.GetDVRActionDeviceName",
     [](NamedFaults& s) {
       s.refuse("exec TA_FetchDVRNameFromAction");
       s.openSummary();
     }},
    {"frmTASummary.RemoveAllRowsFromGrid",
     [](NamedFaults& s) {
       s.addAction();
       s.refuseChange("frmTASummary", "MSFlexGrid1", Aspect::Items);
       s.press("cmdApply");
     }},
    {"frmTASummary.ReloadSummary",
     [](NamedFaults& s) {
       s.addAction();
       s.refuseChange("frmTASummary", "MSFlexGrid1", Aspect::Selection);
       s.press("cmdApply");
     }},
    {"frmTASummary.cmdAddEdit_Click",
     [](NamedFaults& s) {
       s.openSummary();
       s.refuseAct("create");
       s.add();
     }},
    {"frmTASummary.cmdDelete_Click",
     [](NamedFaults& s) {
       s.openSummary();
       s.failMember("LogEvent");
       deleteTrigger(s, "CCTV", 2);
     }},
    {"frmTASummary.cmdHelp_Click",
     [](NamedFaults& s) {
       s.openSummary();
       s.failMember("ShowHelp");
       s.press("frmTASummary", "cmdHelp");
     }},
    {"frmTASummary.cmdClose_Click", [](NamedFaults& s) {
       s.openSummary();
       s.refuseAct("destroy");
       s.press("frmTASummary", "cmdClose");
     }}};

INSTANTIATE_TEST_SUITE_P(Summary, ReportNames, ::testing::ValuesIn(summaryFaults),
                         [](const auto& fault) { return testName(fault.param.procedure); });

}  // namespace
}  // namespace pelorin::test
