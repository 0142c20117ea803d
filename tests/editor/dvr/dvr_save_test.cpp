// What saving a recorder trigger writes, in which order.
#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class SaveDvrTest : public EditorTest {
 protected:
  void prepare(int locations, std::initializer_list<int> events) {
    openEditor();
    addLocations(locations);
    tickFilter(1);
    checkEvents(events);
    chooseClass(device_class::dvr);
  }
  bool save() {
    journal.clear();
    return editor->SaveTriggerAction();
  }
  void edit() {
    answerDvrTrigger(8, 101, 300, device_class::dvr);
    answerDvrAction(300, {21, 2, 1, 7.5, 45, 43, 52, 61});
    editDvr(8);
  }
};

TEST_F(SaveDvrTest, WritesAnActionAndATriggerPerLocationAndEvent) {
  prepare(3, {1, 2});
  EXPECT_TRUE(save());
  std::vector<std::string> expected;
  int action = 900;
  for (int location = 1; location <= 3; ++location) {
    for (const char* event : {"00100", "00101"}) {
      const std::string id = std::to_string(++action);
      expected.push_back(
          "sql: call DVR_AddAction DVRActionID=0 ID_DVR_Config=21 CameraIndex=1 RecordRate=15 "
          "AlarmDuration=15 RecordStandard=1 PresetID=0 ViewGroupID=0 CommandSetID=0");
      expected.push_back("sql: pav_AddDeviceTrigger '1.1." + std::to_string(location) + "', " +
                         event + ", " + id + ", 1");
      expected.emplace_back("host: GetResourceString(2835)");
      expected.push_back("host: LogEvent(Added, TriggerAction, " + id + ", Trigger Event " +
                         std::string(event).substr(2) + ", 1184)");
    }
  }
  expected.emplace_back("reload");
  EXPECT_THAT(journal.lines(), ElementsAreArray(expected));
  EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(SaveDvrTest, WritesWhatTheOperatorChose) {
  prepare(1, {1});
  combo("cmbDVRCamera").userSelect(1);
  combo("cmbRecordStandard").userSelect(1);
  combo("cmbDVRRecordRate").userSelect(2);
  textBox("txtDVRAlarmDuration").setText("60");
  combo("cmbDVRCameraPresets").userSelect(1);
  combo("cmbDVRViewGroups").userSelect(2);
  combo("cmbCommandSet").userSelect(1);
  EXPECT_TRUE(save());
  EXPECT_EQ(writes().front(),
            "sql: call DVR_AddAction DVRActionID=0 ID_DVR_Config=21 CameraIndex=2 RecordRate=6.25 "
            "AlarmDuration=60 RecordStandard=0 PresetID=43 ViewGroupID=52 CommandSetID=61");
}

TEST_F(SaveDvrTest, NoCheckedEventWritesNothingAndIsTrue) {
  prepare(2, {});
  EXPECT_TRUE(save());
  EXPECT_THAT(journal.lines(), ElementsAre("reload"));
}

TEST_F(SaveDvrTest, ANewActionWithoutAnIdWritesNoTriggerAndEndsTheSave) {
  prepare(2, {1});
  database->onCall = {};
  EXPECT_FALSE(save());
  EXPECT_THAT(journal.of("sql: pav_AddDeviceTrigger"), IsEmpty());
  EXPECT_EQ(journal.of("sql: call DVR_AddAction").size(), 1U);
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(screen.boxes[0].text, StartsWith("frmTriggerAction.AddDVRAction: "));
  EXPECT_EQ(reloads, 0);
}

TEST_F(SaveDvrTest, AFailingTriggerRowIsReportedOnceUnderItsProcedure) {
  prepare(2, {1});
  database->fail("pav_AddDeviceTrigger '1.1.2', 00100, 902, 1", "deadlock");
  EXPECT_FALSE(save());
  EXPECT_EQ(journal.of("host: LogEvent").size(), 1U) << "the first location's rows stay";
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(
      screen.boxes[0].text,
      AllOf(StartsWith("frmTriggerAction.GenerateTriggerActonForEventsAtThisLocation: Line: "),
            HasSubstr(" :deadlock")));
}

TEST_F(SaveDvrTest, AddValidatesTheUnitThenTheDurationThenTheLocation) {
  openEditor();
  chooseClass(device_class::dvr);
  combo("cmbDVRUnit").setListIndex(-1);
  textBox("txtDVRAlarmDuration").setText("");
  EXPECT_FALSE(save());
  combo("cmbDVRUnit").setListIndex(0);
  textBox("txtDVRAlarmDuration").setText("");
  EXPECT_FALSE(save());
  textBox("txtDVRAlarmDuration").setText("abc");
  EXPECT_FALSE(save());
  textBox("txtDVRAlarmDuration").setText("15");
  EXPECT_FALSE(save());
  EXPECT_THAT(screen.boxTexts(),
              ElementsAre("Cannot save trigger. There are no DVR units defined for this trigger",
                          "Required field missing. Must specify Alarm duration.",
                          "Required field missing. Must specify Alarm duration.",
                          "Required field missing. Must specify one or more trigger locations."));
  for (const BoxRequest& box : screen.boxes) EXPECT_EQ(box.icon, BoxIcon::Information);
  EXPECT_THAT(writes(), IsEmpty());
}

TEST_F(SaveDvrTest, VendorFourNeedsNoDuration) {
  prepare(1, {1});
  combo("cmbDVRUnit").userSelect(1);
  EXPECT_TRUE(save());
  EXPECT_THAT(writes().front(), HasSubstr("AlarmDuration=0"));
}

TEST_F(SaveDvrTest, TheSaveDoesNotClampTheDuration) {
  prepare(1, {1});
  textBox("txtDVRAlarmDuration").setText("1000");
  EXPECT_TRUE(save());
  EXPECT_THAT(writes().front(), HasSubstr("AlarmDuration=1000"));
}

TEST_F(SaveDvrTest, ADurationBeyond32BitsIsReportedAndNothingIsWritten) {
  prepare(1, {1});
  textBox("txtDVRAlarmDuration").setText("2147483648");
  EXPECT_FALSE(save());
  EXPECT_THAT(writes(), IsEmpty());
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(screen.boxes[0].text,
              AllOf(StartsWith("frmTriggerAction.SaveDVRTriggerAction: "), HasSubstr("Overflow")));
}

struct MissingSelection {
  std::string combo;
  std::string field;
};

class SaveDvrRequired : public SaveDvrTest,
                        public ::testing::WithParamInterface<MissingSelection> {};

TEST_P(SaveDvrRequired, WithoutASelectionIsAnErrorThatNamesTheField) {
  prepare(1, {1});
  combo(GetParam().combo).setListIndex(-1);
  EXPECT_FALSE(save());
  EXPECT_THAT(writes(), IsEmpty());
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(screen.boxes[0].text, AllOf(StartsWith("frmTriggerAction.SaveDVRTriggerAction: "),
                                          HasSubstr(GetParam().field)));
}

INSTANTIATE_TEST_SUITE_P(Combos, SaveDvrRequired,
                         ::testing::Values(MissingSelection{"cmbDVRCamera", "Camera"},
                                           MissingSelection{"cmbCommandSet", "command set"},
                                           MissingSelection{"cmbRecordStandard", "standard"},
                                           MissingSelection{"cmbDVRRecordRate", "Record Rate"},
                                           MissingSelection{"cmbDVRViewGroups", "View Group"}));

TEST_F(SaveDvrTest, WithoutAPresetThePresetIsZero) {
  prepare(1, {1});
  combo("cmbDVRCameraPresets").setListIndex(-1);
  EXPECT_TRUE(save());
  EXPECT_THAT(writes().front(), HasSubstr("PresetID=0"));
}

TEST_F(SaveDvrTest, EditUpdatesTheActionThenTheTrigger) {
  edit();
  EXPECT_TRUE(save());
  EXPECT_THAT(
      journal.lines(),
      ElementsAre("sql: DVR_UpdateAction 300, 21, 2, 7.5, 45, 1, 43, 52, 61",
                  "sql: pav_UpdateDeviceTrigger 8, '1.2.3', 101, 300, 1",
                  "host: LogEvent(Update, TriggerAction, 0, Trigger Event 101, 1185)", "reload"));
}

TEST_F(SaveDvrTest, EditStoresTheAddressOfTheChosenLocation) {
  edit();
  editor->setSingleLocation("7.7 - Porter's lodge", "7.7");
  EXPECT_TRUE(save());
  EXPECT_THAT(writes()[1], HasSubstr("pav_UpdateDeviceTrigger 8, '7.7', 101, 300, 1"));
}

TEST_F(SaveDvrTest, EditWithoutAnEventHasUpdatedTheActionAlready) {
  edit();
  combo("cmbEvents").setListIndex(-1);
  EXPECT_FALSE(save());
  EXPECT_THAT(writes(), ElementsAre("sql: DVR_UpdateAction 300, 21, 2, 7.5, 45, 1, 43, 52, 61"));
  EXPECT_THAT(screen.boxTexts(), ElementsAre("Required field missing. Must specify event."));
  EXPECT_EQ(screen.boxes[0].icon, BoxIcon::Information);
}

TEST_F(SaveDvrTest, EditWithAnEmptyEventListHasUpdatedTheActionAlready) {
  edit();
  combo("cmbEvents").clear();
  EXPECT_FALSE(save());
  EXPECT_EQ(writes().size(), 1U);
  EXPECT_THAT(screen.boxTexts(), ElementsAre("Required field missing. Must specify event."));
}

TEST_F(SaveDvrTest, EditWithAFailingActionIsReportedOnceAndLeavesTheTrigger) {
  edit();
  database->fail("DVR_UpdateAction 300, 21, 2, 7.5, 45, 1, 43, 52, 61");
  EXPECT_FALSE(save());
  EXPECT_EQ(writes().size(), 1U);
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(screen.boxes[0].text, StartsWith("frmTriggerAction.UpdateDVRAction: Line: "));
}

TEST_F(SaveDvrTest, EditWithAFailingTriggerIsReportedUnderTheSavesName) {
  edit();
  database->fail("pav_UpdateDeviceTrigger 8, '1.2.3', 101, 300, 1");
  EXPECT_FALSE(save());
  EXPECT_THAT(journal.of("host: LogEvent"), IsEmpty());
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(screen.boxes[0].text, StartsWith("frmTriggerAction.SaveDVRTriggerAction: Line: "));
}

TEST_F(SaveDvrTest, EditOfAnActionWhoseViewGroupIsGoneIsRefused) {
  answerDvrTrigger(8, 101, 300, device_class::dvr);
  answerDvrAction(300, {21, 2, 1, 7.5, 45, 43, 99, 61});
  editDvr(8);
  EXPECT_FALSE(save());
  EXPECT_THAT(writes(), IsEmpty());
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(screen.boxes[0].text, HasSubstr("View Group"));
}

TEST_F(SaveDvrTest, AResourceTextTheHostCannotGiveDoesNotEndTheSave) {
  prepare(1, {1, 2});
  services->failing.insert("GetResourceString");
  EXPECT_TRUE(save());
  EXPECT_EQ(journal.of("host: LogEvent(, TriggerAction").size(), 2U);
}

}  // namespace
}  // namespace pelorin::test
