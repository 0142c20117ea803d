// Adding trigger actions, from the summary's button to the rows of the demonstration site.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/journeys/editor_journey.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::Pair;

class AddJourney : public ::testing::Test, protected EditorJourney {
 protected:
  void SetUp() override {
    openSummary();
    add();
    before = rows();
  }
  // The picture file is not there in a test.
  void pickWithoutPictures(const std::vector<std::string>& tags) {
    pickLocations(tags);
    screen.boxes.clear();
  }

  SiteRows before;
};

TEST_F(AddJourney, TheTypicalRequest) {
  const int summaryRows = on<Grid>("frmTASummary", "MSFlexGrid1").rows();
  tickFilter("Alarm Events");
  checkEvent(1);
  checkEvent(2);
  pickWithoutPictures({"001.01.007.D01", "001.01.007.D02"});
  showTab(1);
  choose("cmbActionDeviceClass", "CCTV");
  choose("cmbCCTVSwitchers", "Perimeter switcher");
  choose("cmbCCTVMonitors", "3");
  choose("cmbCCTVCameras", "Fence north dome");
  journal.clear();
  press("cmdOK");

  const std::vector<std::string> lines = statementsAndAudits();
  ASSERT_GE(lines.size(), 8U);
  EXPECT_THAT(std::vector<std::string>(lines.begin(), lines.begin() + 8),
              ElementsAre("sql: exec CCTV_Insert_TA 2, 3, 3, 0, 1, '001.01.007.D01', 1, '1', "
                          "'001.01.007.D01 - Server room A', 0, False",
                          "host: LogEvent(Add, TriggerAction, 0, Trigger Event 1, 1184)",
                          "sql: exec CCTV_Insert_TA 2, 3, 3, 0, 2, '001.01.007.D01', 1, '2', "
                          "'001.01.007.D01 - Server room A', 0, False",
                          "host: LogEvent(Add, TriggerAction, 0, Trigger Event 2, 1184)",
                          "sql: exec CCTV_Insert_TA 2, 3, 3, 0, 1, '001.01.007.D02', 1, '1', "
                          "'001.01.007.D02 - Server room B', 0, False",
                          "host: LogEvent(Add, TriggerAction, 0, Trigger Event 1, 1184)",
                          "sql: exec CCTV_Insert_TA 2, 3, 3, 0, 2, '001.01.007.D02', 1, '2', "
                          "'001.01.007.D02 - Server room B', 0, False",
                          "host: LogEvent(Add, TriggerAction, 0, Trigger Event 2, 1184)"));
  EXPECT_FALSE(isOpen("frmTriggerAction"));
  EXPECT_EQ(on<Grid>("frmTASummary", "MSFlexGrid1").rows(), summaryRows + 4);
  EXPECT_THAT(screen.boxes, IsEmpty());
  EXPECT_THAT(
      added(before, rows()),
      ElementsAre(
          Pair("CCTV_TriggerAction",
               ElementsAre(
                   "9 | 001.01.007.D01 | 1 | 2 | 1 | 3 | 3 | 0 | False | 0 | 1 | 001.01.007.D01 - "
                   "Server "
                   "room A",
                   "10 | 001.01.007.D01 | 2 | 2 | 1 | 3 | 3 | 0 | False | 0 | 2 | 001.01.007.D01 - "
                   "Server room A",
                   "11 | 001.01.007.D02 | 1 | 2 | 1 | 3 | 3 | 0 | False | 0 | 1 | 001.01.007.D02 - "
                   "Server room B",
                   "12 | 001.01.007.D02 | 2 | 2 | 1 | 3 | 3 | 0 | False | 0 | 2 | 001.01.007.D02 - "
                   "Server room B"))));
}

TEST_F(AddJourney, ThePickerListsALocationOnlyOnce) {
  pickWithoutPictures({"001.01.007.D01", "001.01.007.D01"});
  EXPECT_EQ(inEditor<ListView>("lvwLocation").count(), 1);
}

// Three locations and two events: rows for each action, with and without return to normal.
struct MatrixCase {
  int action;
  bool returnToNormal;
};

class AddMatrix : public AddJourney, public ::testing::WithParamInterface<MatrixCase> {};

TEST_P(AddMatrix, WritesEveryRow) {
  const auto [action, returnToNormal] = GetParam();
  tickFilter("External Events");
  checkEvent(5001);
  checkEvent(5003);
  pickWithoutPictures({"001.01.007.D01", "001.01.007.D02", "001.01.007.D03"});
  showTab(1);
  inEditor<ComboBox>("cmbCCTVActions").userSelect(action - 1);
  inEditor<TextBox>("txtCCTVAlarm").setText("21");
  inEditor<CheckBox>("chkCCTVAutoRTNTriggers").setChecked(returnToNormal);
  journal.clear();
  press("cmdApply");

  std::vector<std::string> expected;
  int id = 8;
  for (const std::string door :
       {"D01 - Server room A", "D02 - Server room B", "D03 - Network room"}) {
    const auto row = [&](int event, int written) {
      const std::string number = std::to_string(event);
      expected.push_back(std::to_string(++id) + " | 001.01.007." + door.substr(0, 3) + " | " +
                         number + " | 1 | " + std::to_string(written) +
                         " | 1 | 1 | 0 | False | 21 | " + number + " | 001.01.007." + door);
    };
    for (const int event : {5001, 5003}) {
      row(event, action);
      if (action == 2 && returnToNormal) row(event + 100, 3);
    }
  }
  EXPECT_THAT(added(before, rows()),
              ElementsAre(Pair("CCTV_TriggerAction", ElementsAreArray(expected))));
  EXPECT_EQ(journal.of("host: LogEvent(Add, TriggerAction, 0, Trigger Event").size(), 6U);
  EXPECT_THAT(screen.boxes, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Actions, AddMatrix,
                         ::testing::Values(MatrixCase{1, false}, MatrixCase{1, true},
                                           MatrixCase{2, false}, MatrixCase{2, true},
                                           MatrixCase{3, false}, MatrixCase{3, true}));

TEST_F(AddJourney, ARecorderGetsAnActionAndATriggerPerLocationAndEvent) {
  tickFilter("Access Events");
  checkEvent(1007);
  tickFilter("Zorn Transaction Events");
  checkEvent(80004);
  pickWithoutPictures({"001.01.007.D01", "001.01.007.D02"});
  showTab(1);
  choose("cmbActionDeviceClass", "DVR / NVR");
  choose("cmbDVRUnit", "Car park recorder");
  choose("cmbRecordStandard", "PAL");
  choose("cmbDVRRecordRate", " 6.3 ips");
  choose("cmbDVRCameraPresets", "Barrier");
  choose("cmbDVRViewGroups", "Car park");
  choose("cmbCommandSet", "Call the guard on duty");
  journal.clear();
  press("cmdOK");

  EXPECT_FALSE(isOpen("frmTriggerAction"));
  EXPECT_THAT(screen.boxes, IsEmpty());
  EXPECT_THAT(
      added(before, rows()),
      ElementsAre(
          Pair("DVR_TriggerActions", ElementsAre("6 | 2 | 1 | 0 | 6.25 | 15 | 6 | 2 | 3",
                                                 "7 | 2 | 1 | 0 | 6.25 | 15 | 6 | 2 | 3",
                                                 "8 | 2 | 1 | 0 | 6.25 | 15 | 6 | 2 | 3",
                                                 "9 | 2 | 1 | 0 | 6.25 | 15 | 6 | 2 | 3")),
          Pair("IntegratedDeviceTriggers", ElementsAre("8 | 001.01.007.D01 | 1007 | 6 | 1",
                                                       "9 | 001.01.007.D01 | 80004 | 7 | 1",
                                                       "10 | 001.01.007.D02 | 1007 | 8 | 1",
                                                       "11 | 001.01.007.D02 | 80004 | 9 | 1"))));
  EXPECT_THAT(journal.of("host: LogEvent"),
              ElementsAre("(Added, TriggerAction, 6, Trigger Event 1007, 1184)",
                          "(Added, TriggerAction, 7, Trigger Event 80004, 1184)",
                          "(Added, TriggerAction, 8, Trigger Event 1007, 1184)",
                          "(Added, TriggerAction, 9, Trigger Event 80004, 1184)"));
}

TEST_F(AddJourney, ARecorderOfVendorFourIsSavedWithoutADuration) {
  tickFilter("Access Events");
  checkEvent(1007);
  pickWithoutPictures({"012.01.011.D01"});
  showTab(1);
  choose("cmbActionDeviceClass", "DVR / NVR");
  choose("cmbDVRUnit", "Warehouse network recorder");
  press("cmdOK");
  EXPECT_FALSE(isOpen("frmTriggerAction"));
  EXPECT_THAT(added(before, rows()).at("DVR_TriggerActions"),
              ElementsAre("6 | 3 | 1 | 1 | 15 | 0 | 0 | 0 | 0"));
}

TEST_F(AddJourney, TheSwitchersSettingsFileForbidsAnAction) {
  showTab(1);
  choose("cmbCCTVSwitchers", "Perimeter switcher");
  EXPECT_EQ(inEditor<ComboBox>("cmbCCTVActions").listCount(), 2);
  choose("cmbCCTVSwitchers", "Main building switcher");
  EXPECT_EQ(inEditor<ComboBox>("cmbCCTVActions").listCount(), 3);
}

TEST_F(AddJourney, ApplyTwiceWritesTheRowsTwice) {
  tickFilter("Alarm Events");
  checkEvent(1);
  pickWithoutPictures({"001.01.007.D01"});
  press("cmdApply");
  press("cmdApply");
  EXPECT_TRUE(isOpen("frmTriggerAction"));
  EXPECT_EQ(added(before, rows()).at("CCTV_TriggerAction").size(), 2U);
}

TEST_F(AddJourney, CancelWritesNothing) {
  tickFilter("Alarm Events");
  checkEvent(1);
  pickWithoutPictures({"001.01.007.D01"});
  press("cmdCancel");
  EXPECT_FALSE(isOpen("frmTriggerAction"));
  EXPECT_EQ(rows(), before);
}

TEST_F(AddJourney, ValidationMessagesComeInTheirOrderAndWriteNothing) {
  press("cmdOK");
  pickLocations({"001.01.007.D01"});
  screen.boxes.erase(screen.boxes.begin() + 1, screen.boxes.end());
  showTab(1);
  choose("cmbActionDeviceClass", "DVR / NVR");
  inEditor<TextBox>("txtDVRAlarmDuration").setText("");
  press("cmdOK");
  EXPECT_THAT(screen.boxTexts(),
              ElementsAre("Required field missing. Must specify one or more trigger locations.",
                          "Required field missing. Must specify Alarm duration."));
  EXPECT_TRUE(isOpen("frmTriggerAction"));
  EXPECT_EQ(rows(), before);
}

TEST_F(AddJourney, ANameWithAQuoteMakesACctvSaveFailAndNothingElseHappens) {
  tickFilter("Alarm Events");
  checkEvent(1);
  pickWithoutPictures({"001.02.008.D03"});
  press("cmdOK");
  EXPECT_TRUE(isOpen("frmTriggerAction"));
  EXPECT_EQ(screen.boxes.size(), 1U);
  EXPECT_EQ(rows(), before);
}

TEST_F(AddJourney, ClosingTheEditorClosesItsPicker) {
  press("cmdAddLocation");
  screen.boxes.clear();
  press("cmdCancel");
  EXPECT_FALSE(isOpen("FLocation"));
  EXPECT_FALSE(isOpen("frmTriggerAction"));
  EXPECT_THAT(screen.boxes, IsEmpty());
}

}  // namespace
}  // namespace pelorin::test
