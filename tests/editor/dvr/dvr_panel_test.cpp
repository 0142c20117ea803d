// The recorder panel: its lists, and what hangs on what.
#include "editor/dvr/dvr_panel.h"

#include "tests/editor/editor_site.h"
#include "tests/fakes/typing.h"

namespace pelorin::test {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class DvrPanelTest : public ::testing::Test, protected EditorSite {
 protected:
  TabControl tabs{noParent, "SSTab1", {0, 0, 1000, 1000}, {"&Trigger", "&Action"}};
  DvrPanel panel{module, tabs.page(1)};
  TextBox& duration = panel.txtDVRAlarmDuration;

  void SetUp() override {
    tabs.setTab(1);
    panel.fraDVRAction.setVisible(true);
    panel.prepare();
  }
  std::string clamped(const std::string& text) {
    duration.setText(text);
    duration.userLeave();
    return duration.text();
  }
};

TEST_F(DvrPanelTest, LoadsTheFirstRecorderAndAllThatHangsOnIt) {
  panel.load(0);
  EXPECT_THAT(texts(panel.cmbDVRUnit), ElementsAre("Recorder A", "Recorder B"));
  EXPECT_THAT(texts(panel.cmbDVRCamera), ElementsAre("Lobby", "Hall"));
  EXPECT_THAT(texts(panel.cmbDVRCameraPresets), ElementsAre("<No preset>", "Desk", "Door"));
  EXPECT_THAT(texts(panel.cmbCommandSet), ElementsAre("<None>", "Lock all"));
  EXPECT_THAT(texts(panel.cmbDVRViewGroups), ElementsAre("<No group>", "Ground floor", "Outside"));
  EXPECT_EQ(panel.cmbDVRUnit.selectedData(), 21);
  EXPECT_EQ(panel.cmbDVRCamera.selectedData(), 1);
  EXPECT_EQ(panel.cmbDVRCameraPresets.selectedData(), 0);
  EXPECT_EQ(panel.cmbCommandSet.selectedData(), 0);
  EXPECT_EQ(panel.vendorType(), 2);
}

TEST_F(DvrPanelTest, SendsItsStatementsInOrder) {
  panel.load(0);
  EXPECT_THAT(
      database->statements(),
      ElementsAre("select ID, DVRName from DVR_Config",
                  "select CameraIndex, CameraName from DVR_Cameras where ID_DVR_Config = 21 order "
                  "by CameraIndex",
                  "select ID, PresetName from DVR_PTZ_Preset where ID_DVR_Config = 21 And "
                  "CameraIndex = 1 order by PresetName",
                  "exec WOL_Roles_Fetch_Cached_Commandsets @operatorid=7, @workstationid=3",
                  "EXECUTE DVR_Getvendorinfo 21",
                  "select ID, Description from DVR_ViewGroups order by Description",
                  "select * from DVR_TriggerActions (NOLOCK) where DVRActionID = 0"));
}

TEST_F(DvrPanelTest, ANewActionStartsWithNtscTheFirstViewGroupAndFifteenSeconds) {
  panel.load(0);
  EXPECT_EQ(panel.cmbRecordStandard.selectedData(), 1);
  EXPECT_EQ(panel.cmbDVRRecordRate.row(panel.cmbDVRRecordRate.listIndex()).text, "15.0 ips");
  EXPECT_EQ(panel.cmbDVRViewGroups.listIndex(), 0);
  EXPECT_EQ(duration.text(), "15");
}

TEST_F(DvrPanelTest, TheStandardsAreThereFromTheStart) {
  EXPECT_THAT(texts(panel.cmbRecordStandard), ElementsAre("NTSC", "PAL"));
  EXPECT_EQ(panel.cmbRecordStandard.row(0).itemData, 1);
  EXPECT_EQ(panel.cmbRecordStandard.row(1).itemData, 0);
}

TEST_F(DvrPanelTest, SwitchingToPalRefillsTheRatesAndSelectsTwelveAndAHalf) {
  panel.load(0);
  panel.cmbDVRRecordRate.userSelect(5);
  panel.cmbRecordStandard.userSelect(1);
  EXPECT_EQ(panel.cmbDVRRecordRate.row(panel.cmbDVRRecordRate.listIndex()).text, "12.5 ips");
  EXPECT_EQ(panel.cmbDVRRecordRate.listCount(), 6);
}

TEST_F(DvrPanelTest, WithoutARecorderEverythingThatHangsOnItStaysEmpty) {
  database->answer("select ID, DVRName from DVR_Config", {{"ID", "DVRName"}, {}});
  panel.load(0);
  EXPECT_EQ(panel.cmbDVRCamera.listCount(), 0);
  EXPECT_EQ(panel.cmbDVRCameraPresets.listCount(), 0);
  EXPECT_EQ(panel.cmbCommandSet.listCount(), 0);
  EXPECT_EQ(panel.vendorType(), 0);
  EXPECT_EQ(duration.text(), "15");
  EXPECT_TRUE(duration.enabled());
}

TEST_F(DvrPanelTest, VendorFourTakesNoDurationAndNoPreset) {
  panel.load(0);
  panel.cmbDVRCameraPresets.userSelect(2);
  panel.cmbDVRUnit.userSelect(1);
  EXPECT_EQ(duration.text(), "0");
  EXPECT_FALSE(duration.enabled());
  EXPECT_FALSE(panel.cmbDVRCameraPresets.enabled());
  EXPECT_EQ(panel.cmbDVRCameraPresets.listIndex(), 0);
  EXPECT_EQ(panel.vendorType(), 4);
}

TEST_F(DvrPanelTest, AnotherRecorderEnablesThemAgainWithFifteenSeconds) {
  panel.load(0);
  panel.cmbDVRUnit.userSelect(1);
  panel.cmbDVRUnit.userSelect(0);
  EXPECT_EQ(duration.text(), "15");
  EXPECT_TRUE(duration.enabled());
  EXPECT_TRUE(panel.cmbDVRCameraPresets.enabled());
}

TEST_F(DvrPanelTest, TheVendorIsZeroWhenNoRowComesBack) {
  database->answer("EXECUTE DVR_Getvendorinfo 21", {{"DVRVendorID"}, {}});
  panel.load(0);
  panel.cmbDVRUnit.userSelect(1);
  panel.cmbDVRUnit.userSelect(0);
  EXPECT_EQ(panel.vendorType(), 0);
  EXPECT_TRUE(duration.enabled());
}

TEST_F(DvrPanelTest, ARecorderWithoutCamerasHasNoPresetsEither) {
  database->answer(
      "select CameraIndex, CameraName from DVR_Cameras where ID_DVR_Config = 22 order by "
      "CameraIndex",
      {{"CameraIndex", "CameraName"}, {}});
  panel.load(0);
  panel.cmbDVRUnit.userSelect(1);
  EXPECT_EQ(panel.cmbDVRCamera.listCount(), 0);
  EXPECT_EQ(panel.cmbDVRCameraPresets.listCount(), 0);
  EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(DvrPanelTest, AnotherCameraRefillsThePresets) {
  panel.load(0);
  panel.cmbDVRCamera.userSelect(1);
  EXPECT_THAT(texts(panel.cmbDVRCameraPresets), ElementsAre("<No preset>", "Stairs"));
  EXPECT_EQ(panel.cmbDVRCameraPresets.listIndex(), 0);
}

TEST_F(DvrPanelTest, ViewGroupsSelectNoRowByThemselves) {
  panel.LoadDVRVideoExplorerGroups(panel.cmbDVRViewGroups);
  EXPECT_EQ(panel.cmbDVRViewGroups.listIndex(), -1);
}

TEST_F(DvrPanelTest, ShowsAStoredActionWhole) {
  answerDvrAction(3, {21, 2, 0, 6.25, 45, 43, 52, 61});
  panel.load(3);
  EXPECT_EQ(panel.cmbDVRUnit.selectedData(), 21);
  EXPECT_EQ(panel.cmbDVRCamera.selectedData(), 2);
  EXPECT_EQ(panel.cmbRecordStandard.selectedData(), 0);
  EXPECT_EQ(panel.cmbDVRRecordRate.listIndex(), 2);
  EXPECT_EQ(duration.text(), "45");
  EXPECT_EQ(panel.cmbDVRCameraPresets.selectedData(), 43);
  EXPECT_EQ(panel.cmbDVRViewGroups.selectedData(), 52);
  EXPECT_EQ(panel.cmbCommandSet.selectedData(), 61);
}

TEST_F(DvrPanelTest, AStoredRateThatIsNotInTheTableSelectsIndexThree) {
  answerDvrAction(3, {21, 1, 1, 10.0, 45, 0, 0, 0});
  panel.load(3);
  EXPECT_EQ(panel.cmbDVRRecordRate.listIndex(), 3);
}

TEST_F(DvrPanelTest, AStoredStandardAboveOneIsNtscAndBelowZeroPal) {
  answerDvrAction(3, {21, 1, 9, 60.0, 45, 0, 0, 0});
  answerDvrAction(4, {21, 1, -1, 50.0, 45, 0, 0, 0});
  panel.load(3);
  EXPECT_EQ(panel.cmbRecordStandard.selectedData(), 1);
  EXPECT_EQ(panel.cmbDVRRecordRate.listIndex(), 5);
  DvrPanel other{module, tabs.page(1)};
  other.prepare();
  other.load(4);
  EXPECT_EQ(other.cmbRecordStandard.selectedData(), 0);
  EXPECT_EQ(other.cmbDVRRecordRate.listIndex(), 5);
}

TEST_F(DvrPanelTest, AStoredDurationShowsInTheDisabledBoxOfVendorFour) {
  answerDvrAction(3, {22, 7, 1, 15.0, 45, 44, 0, 0});
  panel.load(3);
  EXPECT_EQ(duration.text(), "45");
  EXPECT_FALSE(duration.enabled());
}

TEST_F(DvrPanelTest, AViewGroupThatIsGoneLeavesNoSelection) {
  answerDvrAction(3, {21, 1, 1, 15.0, 45, 0, 99, 0});
  panel.load(3);
  EXPECT_EQ(panel.cmbDVRViewGroups.listIndex(), -1);
}

TEST_F(DvrPanelTest, TheStoredRowIsClosedBeforeTheCombosAreRefilled) {
  answerDvrAction(3, {22, 7, 1, 15.0, 45, 44, 0, 0});
  panel.load(3);
  EXPECT_EQ(database->mostOpenCursors(), 1);
  EXPECT_EQ(database->openCursors(), 0);
}

TEST_F(DvrPanelTest, TypedLettersHaveNoEffect) {
  duration.setText("");
  typeInto(duration, "a1b-2 c");
  EXPECT_EQ(duration.text(), "12");
}

TEST_F(DvrPanelTest, KeepsDigitsAndBackspaceAlone) {
  for (const char32_t kept : {U'0', U'5', U'9', U'\b'}) EXPECT_TRUE(duration.userKey(kept));
  for (const char32_t lost : {U'/', U':', U'-', U'.', U' ', U'\x16', U'\u0663'}) {
    EXPECT_FALSE(duration.userKey(lost));
  }
}

TEST_F(DvrPanelTest, LeavingTheBoxClampsToFiveAndThreeHundred) {
  EXPECT_EQ(clamped("1000"), "300");
  EXPECT_EQ(clamped("301"), "300");
  EXPECT_EQ(clamped("300"), "300");
  EXPECT_EQ(clamped("5"), "5");
  EXPECT_EQ(clamped("4"), "5");
  EXPECT_EQ(clamped("2"), "5");
  EXPECT_EQ(clamped("-20"), "5");
  EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(DvrPanelTest, AnEmptyBoxReadsAsZero) {
  EXPECT_EQ(clamped(""), "5");
  EXPECT_EQ(clamped("abc"), "5");
}

TEST_F(DvrPanelTest, ANumberOfAnyLengthIsClampedWithoutAnError) {
  EXPECT_EQ(clamped(std::string(1000, '9')), "300");
  EXPECT_TRUE(screen.boxes.empty());
}

struct FailingQuery {
  std::string sql;
  std::string procedure;
};

class DvrPanelErrors : public DvrPanelTest, public ::testing::WithParamInterface<FailingQuery> {};

TEST_P(DvrPanelErrors, AreReportedOnceUnderTheProceduresName) {
  database->fail(GetParam().sql, "broken");
  panel.load(0);
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(screen.boxes[0].text,
              AllOf(StartsWith(GetParam().procedure + ": Line: "), HasSubstr(" :broken")));
  EXPECT_EQ(database->openCursors(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Statements, DvrPanelErrors,
    ::testing::Values(
        FailingQuery{"select ID, DVRName from DVR_Config", "frmTriggerAction.LoadDVRUnitCombo"},
        FailingQuery{"select CameraIndex, CameraName from DVR_Cameras where ID_DVR_Config = 21 "
                     "order by CameraIndex",
                     "frmTriggerAction.LoadDVRCameraCombo"},
        FailingQuery{"select ID, PresetName from DVR_PTZ_Preset where ID_DVR_Config = 21 And "
                     "CameraIndex = 1 order by PresetName",
                     "frmTriggerAction.LoadDVRCameraPresets"},
        FailingQuery{"exec WOL_Roles_Fetch_Cached_Commandsets @operatorid=7, @workstationid=3",
                     "frmTriggerAction.LoadCommandSetCombo"},
        FailingQuery{"EXECUTE DVR_Getvendorinfo 21", "frmTriggerAction.ConfigureFormByVendor"},
        FailingQuery{"select ID, Description from DVR_ViewGroups order by Description",
                     "frmTriggerAction.LoadDVRVideoExplorerGroups"},
        FailingQuery{"select * from DVR_TriggerActions (NOLOCK) where DVRActionID = 0",
                     "frmTriggerAction.LoadDVRAction"}));

TEST_F(DvrPanelTest, AHostWithoutOperatorIsReportedByTheCommandSets) {
  services->failing.insert("OperatorID");
  panel.load(0);
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(screen.boxes[0].text, StartsWith("frmTriggerAction.LoadCommandSetCombo: "));
  EXPECT_THAT(texts(panel.cmbCommandSet), ElementsAre("<None>"));
}

TEST_F(DvrPanelTest, UnitsThatFailHalfwayAreNoLongerBeingLoaded) {
  database->failFetch("select ID, DVRName from DVR_Config", 1);
  panel.load(0);
  EXPECT_THAT(texts(panel.cmbDVRUnit), ElementsAre("Recorder A"));
  panel.cmbDVRUnit.userSelect(0);
  EXPECT_THAT(texts(panel.cmbDVRCamera), ElementsAre("Lobby", "Hall"));
}

TEST_F(DvrPanelTest, AFailingVendorQueryKeepsTheVendorThatWasKnown) {
  panel.load(0);
  panel.cmbDVRUnit.userSelect(1);
  database->fail("EXECUTE DVR_Getvendorinfo 21");
  panel.cmbDVRUnit.userSelect(0);
  EXPECT_EQ(panel.vendorType(), 4);
  EXPECT_FALSE(panel.txtDVRAlarmDuration.enabled());
  EXPECT_EQ(panel.txtDVRAlarmDuration.text(), "0");
}

}  // namespace
}  // namespace pelorin::test
