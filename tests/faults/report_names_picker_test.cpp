// Under which name each procedure of the picker reports.
#include <gtest/gtest.h>

#include "tests/faults/named_faults.h"

namespace pelorin::test {
namespace {

class PickerReportNames : public ::testing::TestWithParam<NamedFault> {};

TEST_P(PickerReportNames, AreThoseOfTheProcedures) {
  expectReportedAlone(GetParam());
}

void openPickerRefusing(NamedFaults& s, const std::string& statement) {
  s.refuse(statement);
  s.openPicker();
}

const NamedFault pickerFaults[] = {{"FLocation.Form_Load",
                                    [](NamedFaults& s) {
                                      s.environment.pictures.clear();
                                      s.openPicker();
                                    }},
                                   {"FLocation.Form_Activate",
                                    [](NamedFaults& s) {
                                      s.refuseChange("FLocation", "Label1", Aspect::Text);
                                      s.openSinglePicker();
                                    }},
                                   {"FLocation.Form_Resize",
                                    [](NamedFaults& s) {
                                      s.openPicker();
                                      s.refuseChange("FLocation", "tvTree", Aspect::Place);
                                      s.form("FLocation").userResize({7000, 7000});
                                    }},
                                   {"FLocation.Form_Unload",
                                    [](NamedFaults& s) {
                                      s.openPicker();
                                      s.refuseAct("own");
                                      s.form("FLocation").unload();
                                    }},
                                   {"FLocation.LoadCustomResources",
                                    [](NamedFaults& s) {
                                      s.openSummary();
                                      s.add();
                                      s.failMember("EnableCustomize");
                                      s.press("cmdAddLocation");
                                    }},
                                   {"FLocation.tvTree_NodeClick",
                                    [](NamedFaults& s) {
                                      s.openPicker();
                                      s.refuseChange("FLocation", "lblLocation", Aspect::Text);
                                      s.selectNode("TT22");
                                    }},
                                   {"FLocation.tvTree_DblClick",
                                    [](NamedFaults& s) {
                                      s.openPicker();
                                      s.selectNode("TT22");
                                      s.refuseChange("frmTriggerAction", "lvwLocation",
                                                     Aspect::Items);
                                      s.on<TreeView>("FLocation", "tvTree").userDoubleClick();
                                    }},
                                   {"FLocation.cmdMain_Click",
                                    [](NamedFaults& s) {
                                      s.openPicker();
                                      s.failMember("ShowHelp");
                                      s.press("FLocation", "cmdMain(2)");
                                    }},
                                   {"FLocation.lblLocation_Click",
                                    [](NamedFaults& s) {
                                      s.services->enableCustomize = true;
                                      s.openPicker();
                                      s.form("FLocation").contextMenu().userPick(0);
                                      s.refuseChange("FLocation", "txtCaption", Aspect::Text);
                                      s.on<Label>("FLocation", "lblLocation").userClick();
                                    }},
                                   {"FLocation.Form_KeyDown",
                                    [](NamedFaults& s) {
                                      s.services->enableCustomize = true;
                                      s.openPicker();
                                      s.form("FLocation").contextMenu().userPick(0);
                                      s.on<Label>("FLocation", "lblLocation").userClick();
                                      s.on<TextBox>("FLocation", "txtCaption").userText("Chosen:");
                                      s.refuseChange("FLocation", "txtCaption", Aspect::Text);
                                      s.form("FLocation").userKeyDown(key_code::escape);
                                    }},
                                   {"FLocation.Localizer1_CustomizeEnd", [](NamedFaults& s) {
                                      s.services->enableCustomize = true;
                                      s.openPicker();
                                      s.form("FLocation").contextMenu().userPick(0);
                                      s.environment.canWrite = false;
                                      s.form("FLocation").contextMenu().userPick(1);
                                    }}};

const NamedFault treeFaults[] = {
    {"RefreshHardware", [](NamedFaults& s) { openPickerRefusing(s, "SELECT * From Servers"); }},
    {"AddControllerFolders",
     [](NamedFaults& s) {
       s.refuseChange("FLocation", "tvTree", Aspect::Items, [&s] {
         return s.on<TreeView>("FLocation", "tvTree").find("TA9") != nullptr;
       });
       s.openPicker();
     }},
    {"AddFolderInfo",
     [](NamedFaults& s) { openPickerRefusing(s, "SELECT DoorID, DoorName, DoorIndex"); }},
    {"FLocation.RefreshVn8Hardware",
     [](NamedFaults& s) { openPickerRefusing(s, "Select * from Zorn_Controllers"); }},
    {"FLocation.RefreshIntegratedDevices",
     [](NamedFaults& s) { openPickerRefusing(s, "select ClassName, ClassAddressAbreviation"); }},
    {"FLocation.PopulateDVRNodes",
     [](NamedFaults& s) { openPickerRefusing(s, "select * from DVR_Config where Serverid"); }},
    {"FLocation.PopulateCSRNodes",
     [](NamedFaults& s) { openPickerRefusing(s, "select ID, CSRName"); }},
    {"FLocation.PopulateCSRAccounts",
     [](NamedFaults& s) { openPickerRefusing(s, "select ID, AccountName"); }},
    {"FLocation.PopulateCSRAreas",
     [](NamedFaults& s) { openPickerRefusing(s, "select ID, AreaName"); }},
    {"FLocation.PopulateCSRPoints",
     [](NamedFaults& s) { openPickerRefusing(s, "select ID, PointName"); }}};

INSTANTIATE_TEST_SUITE_P(Form, PickerReportNames, ::testing::ValuesIn(pickerFaults),
                         [](const auto& fault) { return testName(fault.param.procedure); });
INSTANTIATE_TEST_SUITE_P(Tree, PickerReportNames, ::testing::ValuesIn(treeFaults),
                         [](const auto& fault) { return testName(fault.param.procedure); });

}  // namespace
}  // namespace pelorin::test
