// The CCTV panel: its lists, and what hangs on what.
#include "editor/cctv/cctv_panel.h"

#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

using ::testing::AllOf;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class CctvPanelTest : public ::testing::Test, protected EditorSite {
 protected:
  TabControl tabs{noParent, "SSTab1", {0, 0, 1000, 1000}, {"&Trigger", "&Action"}};
  CctvPanel panel{module, catalogue, tabs.page(1)};

  void SetUp() override {
    tabs.setTab(1);
    panel.fraCCTVAction.setVisible(true);
    panel.prepare();
  }
  void forbid(const std::string& name, const std::string& key, const std::string& value) {
    environment.settings["C:\\Component\\CCTV\\" + name + ".INI|UNSUPPORTED|" + key] = value;
  }
  std::vector<bool> cameraControlsVisible() const {
    return {panel.lblCamera.visible(),           panel.cmbCCTVCameras.visible(),
            panel.lblPreset.visible(),           panel.cmbCCTVPresets.visible(),
            panel.lblMonitor.visible(),          panel.cmbCCTVMonitors.visible(),
            panel.chkCCTVDisplayViewer.visible()};
  }
  std::vector<bool> alarmControlsVisible() const {
    return {panel.lblCCTVAlarm.visible(), panel.txtCCTVAlarm.visible()};
  }
};

TEST_F(CctvPanelTest, LoadsTheFirstSwitcherAndAllThatHangsOnIt) {
  panel.load(0);
  EXPECT_THAT(texts(panel.cmbCCTVSwitchers), ElementsAre("North", "South"));
  EXPECT_THAT(texts(panel.cmbCCTVHiddenININameCache), ElementsAre("north", "south"));
  EXPECT_THAT(texts(panel.cmbCCTVActions),
              ElementsAre("Call camera", "Raise alarm", "Acknowledge alarm"));
  EXPECT_THAT(texts(panel.cmbCCTVCameras), ElementsAre("Gate", "Yard"));
  EXPECT_THAT(texts(panel.cmbCCTVPresets), ElementsAre("Entry", "Exit"));
  EXPECT_THAT(texts(panel.cmbCCTVMonitors), ElementsAre("1", "2", "3", "4"));
  for (const ComboBox* combo :
       {&panel.cmbCCTVSwitchers, &panel.cmbCCTVActions, &panel.cmbCCTVCameras,
        &panel.cmbCCTVPresets, &panel.cmbCCTVMonitors}) {
    EXPECT_EQ(combo->listIndex(), 0) << combo->name();
  }
}

TEST_F(CctvPanelTest, SendsItsStatementsInOrder) {
  panel.load(0);
  EXPECT_THAT(database->statements(),
              ElementsAre("select SwitcherID, Name, INI_FILE from CCTV_Switchers",
                          "select Name, [Index] from CCTV_Cameras where SwitcherId =11 order by "
                          "[index]",
                          "CCTV_FetchCameraNoPresets 1, 11",
                          "select nOutputs from CCTV_Switchers where SwitcherId = 11"));
}

TEST_F(CctvPanelTest, RowsCarryTheirNumbers) {
  panel.load(0);
  EXPECT_EQ(panel.cmbCCTVSwitchers.row(1).itemData, 12);
  EXPECT_EQ(panel.cmbCCTVActions.row(2).itemData, 3);
  EXPECT_EQ(panel.cmbCCTVCameras.row(1).itemData, 2);
  EXPECT_EQ(panel.cmbCCTVPresets.row(1).itemData, 32);
  EXPECT_EQ(panel.cmbCCTVMonitors.row(3).itemData, 4);
}

TEST_F(CctvPanelTest, WithoutASwitcherEverythingStaysEmpty) {
  database->answer("select SwitcherID, Name, INI_FILE from CCTV_Switchers",
                   {{"SwitcherID", "Name", "INI_FILE"}, {}});
  panel.load(0);
  for (const ComboBox* combo :
       {&panel.cmbCCTVSwitchers, &panel.cmbCCTVActions, &panel.cmbCCTVCameras,
        &panel.cmbCCTVPresets, &panel.cmbCCTVMonitors}) {
    EXPECT_EQ(combo->listCount(), 0) << combo->name();
  }
  EXPECT_THAT(database->statements(),
              ElementsAre("select SwitcherID, Name, INI_FILE from CCTV_Switchers"));
}

TEST_F(CctvPanelTest, ANullSettingsNameKeepsTheCombosParallel) {
  database->answer(
      "select SwitcherID, Name, INI_FILE from CCTV_Switchers",
      {{"SwitcherID", "Name", "INI_FILE"}, {{11, "North", Null()}, {12, "South", "south"}}});
  forbid("south", "Action2", "1");
  panel.load(0);
  EXPECT_THAT(texts(panel.cmbCCTVHiddenININameCache), ElementsAre("", "south"));
  panel.cmbCCTVSwitchers.userSelect(1);
  EXPECT_THAT(texts(panel.cmbCCTVActions), ElementsAre("Call camera", "Acknowledge alarm"));
}

TEST_F(CctvPanelTest, AnActionInTheSettingsFileIsNotOffered) {
  forbid("north", "Action2", "yes");
  panel.load(0);
  EXPECT_THAT(texts(panel.cmbCCTVActions), ElementsAre("Call camera", "Acknowledge alarm"));
}

TEST_F(CctvPanelTest, AnEmptyValueForbidsTheActionToo) {
  forbid("north", "Action3", "");
  panel.load(0);
  EXPECT_THAT(texts(panel.cmbCCTVActions), ElementsAre("Call camera", "Raise alarm"));
}

TEST_F(CctvPanelTest, TheFirstActionIsAlwaysOffered) {
  forbid("north", "Action1", "1");
  panel.load(0);
  EXPECT_EQ(panel.cmbCCTVActions.listCount(), 3);
}

TEST_F(CctvPanelTest, AValueThatReadsNotInitializedIsAsGoodAsNone) {
  forbid("north", "Action2", "NOTINITIALIZED");
  panel.load(0);
  EXPECT_EQ(panel.cmbCCTVActions.listCount(), 3);
}

TEST_F(CctvPanelTest, TheSettingsOfTheChosenSwitcherCount) {
  forbid("south", "Action2", "1");
  panel.load(0);
  EXPECT_EQ(panel.cmbCCTVActions.listCount(), 3);
  panel.cmbCCTVSwitchers.userSelect(1);
  EXPECT_EQ(panel.cmbCCTVActions.listCount(), 2);
}

TEST_F(CctvPanelTest, AnotherSwitcherRefillsActionsCamerasPresetsAndMonitors) {
  panel.load(0);
  panel.cmbCCTVSwitchers.userSelect(1);
  EXPECT_THAT(texts(panel.cmbCCTVCameras), ElementsAre("Dock"));
  EXPECT_THAT(texts(panel.cmbCCTVPresets), ElementsAre("Ramp"));
  EXPECT_THAT(texts(panel.cmbCCTVMonitors), ElementsAre("1", "2"));
}

TEST_F(CctvPanelTest, ASwitcherWithoutCamerasHasNoPresetsEither) {
  database->answer("select Name, [Index] from CCTV_Cameras where SwitcherId =12 order by [index]",
                   {{"Name", "Index"}, {}});
  panel.load(0);
  panel.cmbCCTVSwitchers.userSelect(1);
  EXPECT_EQ(panel.cmbCCTVCameras.listCount(), 0);
  EXPECT_EQ(panel.cmbCCTVPresets.listCount(), 0);
}

TEST_F(CctvPanelTest, NoOutputsGiveNoMonitors) {
  for (const Value& outputs : std::vector<Value>{0, Null(), -3}) {
    database->answer("select nOutputs from CCTV_Switchers where SwitcherId = 11",
                     {{"nOutputs"}, {{outputs}}});
    panel.InitCCTVMonitors(panel.cmbCCTVMonitors, 11);
    EXPECT_EQ(panel.cmbCCTVMonitors.listCount(), 0);
  }
  database->answer("select nOutputs from CCTV_Switchers where SwitcherId = 11", {{"nOutputs"}, {}});
  panel.InitCCTVMonitors(panel.cmbCCTVMonitors, 11);
  EXPECT_EQ(panel.cmbCCTVMonitors.listCount(), 0);
  EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(CctvPanelTest, MoreOutputsThanSixteenBitsAreAnError) {
  database->answer("select nOutputs from CCTV_Switchers where SwitcherId = 11",
                   {{"nOutputs"}, {{40000}}});
  panel.InitCCTVMonitors(panel.cmbCCTVMonitors, 11);
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(screen.boxes[0].text,
              AllOf(StartsWith("frmTriggerAction.InitCCTVMonitors: "), HasSubstr("Overflow")));
}

TEST_F(CctvPanelTest, AnotherCameraRefillsThePresets) {
  panel.load(0);
  panel.cmbCCTVCameras.userSelect(1);
  EXPECT_THAT(texts(panel.cmbCCTVPresets), ElementsAre("Fence"));
}

TEST_F(CctvPanelTest, CallingACameraShowsTheCameraControls) {
  panel.load(0);
  panel.cmbCCTVActions.userSelect(1);
  panel.chkCCTVAutoRTNTriggers.userToggle();
  panel.cmbCCTVActions.userSelect(0);
  EXPECT_THAT(cameraControlsVisible(), Each(true));
  EXPECT_THAT(alarmControlsVisible(), Each(false));
  EXPECT_FALSE(panel.chkCCTVAutoRTNTriggers.visible());
  EXPECT_FALSE(panel.chkCCTVAutoRTNTriggers.checked());
}

TEST_F(CctvPanelTest, RaisingAnAlarmShowsTheAlarmControls) {
  panel.load(0);
  panel.cmbCCTVActions.userSelect(1);
  EXPECT_THAT(cameraControlsVisible(), Each(false));
  EXPECT_THAT(alarmControlsVisible(), Each(true));
  EXPECT_TRUE(panel.chkCCTVAutoRTNTriggers.visible());
}

TEST_F(CctvPanelTest, AcknowledgingAfterRaisingClearsTheReturnToNormalCheckBox) {
  panel.load(0);
  panel.cmbCCTVActions.userSelect(1);
  panel.chkCCTVAutoRTNTriggers.userToggle();
  ASSERT_TRUE(panel.chkCCTVAutoRTNTriggers.checked());
  panel.cmbCCTVActions.userSelect(2);
  EXPECT_THAT(cameraControlsVisible(), Each(false));
  EXPECT_THAT(alarmControlsVisible(), Each(true));
  EXPECT_FALSE(panel.chkCCTVAutoRTNTriggers.visible());
  EXPECT_FALSE(panel.chkCCTVAutoRTNTriggers.checked());
}

TEST_F(CctvPanelTest, AnUnknownActionChangesNothing) {
  panel.load(0);
  panel.cmbCCTVActions.addItem("Something else", 4);
  panel.cmbCCTVActions.userSelect(3);
  EXPECT_THAT(cameraControlsVisible(), Each(true));
  EXPECT_THAT(alarmControlsVisible(), Each(false));
}

TEST_F(CctvPanelTest, TheAlarmControlsTakeThePlacesOfTheCameraControls) {
  const auto corner = [](const Control& control) {
    return std::pair(control.place().left, control.place().top);
  };
  EXPECT_EQ(corner(panel.txtCCTVAlarm), corner(panel.cmbCCTVCameras));
  EXPECT_EQ(corner(panel.lblCCTVAlarm), corner(panel.lblCamera));
  EXPECT_EQ(panel.chkCCTVAutoRTNTriggers.place().left, panel.txtCCTVAlarm.place().left);
  EXPECT_EQ(panel.chkCCTVAutoRTNTriggers.place().top, panel.cmbCCTVPresets.place().top);
}

TEST_F(CctvPanelTest, ANewPanelShowsNoAlarmControlAndAnEmptyAlarm) {
  EXPECT_THAT(alarmControlsVisible(), Each(false));
  EXPECT_FALSE(panel.chkCCTVAutoRTNTriggers.visible());
  EXPECT_FALSE(panel.chkCCTVAutoRTNTriggers.checked());
  EXPECT_EQ(panel.txtCCTVAlarm.text(), "");
}

TEST_F(CctvPanelTest, TheSettingsNamesAreNeverVisible) {
  EXPECT_FALSE(panel.cmbCCTVHiddenININameCache.visible());
  EXPECT_EQ(panel.cmbCCTVHiddenININameCache.text(), "hidden");
}

TEST_F(CctvPanelTest, ShowsAStoredActionWhole) {
  answerCctvTrigger(5, {5, "1.2.3", 100, 12, 2, 5, 2, 39, true, 17});
  panel.load(5);
  EXPECT_EQ(panel.cmbCCTVSwitchers.selectedData(), 12);
  EXPECT_EQ(panel.cmbCCTVActions.selectedData(), 2);
  EXPECT_EQ(panel.cmbCCTVCameras.selectedData(), 5);
  EXPECT_EQ(panel.cmbCCTVMonitors.selectedData(), 2);
  EXPECT_EQ(panel.cmbCCTVPresets.selectedData(), 39);
  EXPECT_TRUE(panel.chkCCTVDisplayViewer.checked());
  EXPECT_EQ(panel.txtCCTVAlarm.text(), "17");
  EXPECT_TRUE(panel.txtCCTVAlarm.visible());
}

TEST_F(CctvPanelTest, TheViewerOfAStoredActionIsAnyNumberButZero) {
  answerCctvTrigger(5, {5, "1.2.3", 100, 11, 1, 1, 1, 31, -1, 0});
  panel.load(5);
  EXPECT_TRUE(panel.chkCCTVDisplayViewer.checked());
}

TEST_F(CctvPanelTest, TheStoredRowIsReadAfterTheSwitchers) {
  panel.load(5);
  EXPECT_EQ(database->statements().back(), "select * from CCTV_TriggerAction where TA_ID = 5");
}

TEST_F(CctvPanelTest, TheStoredRowIsClosedBeforeTheCombosAreRefilled) {
  answerCctvTrigger(5, {5, "1.2.3", 100, 12, 2, 5, 2, 39, true, 17});
  panel.load(5);
  EXPECT_EQ(database->mostOpenCursors(), 1);
  EXPECT_EQ(database->openCursors(), 0);
}

TEST_F(CctvPanelTest, ACameraThatIsGoneKeepsTheFirstOneAndItsPresets) {
  answerCctvTrigger(5, {5, "1.2.3", 100, 11, 1, 99, 1, 98, 0, 0});
  panel.load(5);
  EXPECT_EQ(panel.cmbCCTVCameras.selectedData(), 1);
  EXPECT_THAT(texts(panel.cmbCCTVPresets), ElementsAre("Entry", "Exit"));
  EXPECT_EQ(panel.cmbCCTVPresets.selectedData(), 31);
}

TEST_F(CctvPanelTest, NullsOfAStoredActionAreEmptyAndZero) {
  answerCctvTrigger(5, {5, Null(), Null(), 11, 1, Null(), Null(), Null(), Null(), Null()});
  panel.load(5);
  EXPECT_EQ(panel.txtCCTVAlarm.text(), "");
  EXPECT_FALSE(panel.chkCCTVDisplayViewer.checked());
  EXPECT_TRUE(screen.boxes.empty());
}

struct FailingStatement {
  std::string sql;
  std::string procedure;
};

class CctvPanelErrors : public CctvPanelTest,
                        public ::testing::WithParamInterface<FailingStatement> {};

TEST_P(CctvPanelErrors, AreReportedOnceUnderTheProceduresName) {
  answerCctvTrigger(5, {5, "1.2.3", 100, 11, 1, 1, 1, 31, 0, 0});
  database->fail(GetParam().sql, "broken");
  panel.load(5);
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(screen.boxes[0].text,
              AllOf(StartsWith(GetParam().procedure + ": Line: "), HasSubstr(" :broken")));
  EXPECT_EQ(screen.boxes[0].icon, BoxIcon::Critical);
  EXPECT_EQ(database->openCursors(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Statements, CctvPanelErrors,
    ::testing::Values(
        FailingStatement{"select SwitcherID, Name, INI_FILE from CCTV_Switchers",
                         "frmTriggerAction.LoadCCTVSwitcherCombo"},
        FailingStatement{
            "select Name, [Index] from CCTV_Cameras where SwitcherId =11 order by [index]",
            "frmTriggerAction.InitCCTVCameras"},
        FailingStatement{"CCTV_FetchCameraNoPresets 1, 11",
                         "frmTriggerAction.InitCCTVCameraPresets"},
        FailingStatement{"select nOutputs from CCTV_Switchers where SwitcherId = 11",
                         "frmTriggerAction.InitCCTVMonitors"},
        FailingStatement{"select * from CCTV_TriggerAction where TA_ID = 5",
                         "frmTriggerAction.LoadCCTVAction"}));

TEST_F(CctvPanelTest, RowsBeforeAFailingFetchStay) {
  database->failFetch(
      "select Name, [Index] from CCTV_Cameras where SwitcherId =11 order by [index]", 1);
  panel.load(0);
  EXPECT_THAT(texts(panel.cmbCCTVCameras), ElementsAre("Gate"));
  EXPECT_EQ(panel.cmbCCTVCameras.listIndex(), -1);
  EXPECT_THAT(texts(panel.cmbCCTVMonitors), ElementsAre("1", "2", "3", "4"));
}

TEST_F(CctvPanelTest, AFailingCameraListLeavesNoPresetsOfAnotherCamera) {
  panel.load(0);
  database->fail("select Name, [Index] from CCTV_Cameras where SwitcherId =12 order by [index]");
  panel.cmbCCTVSwitchers.userSelect(1);
  EXPECT_EQ(panel.cmbCCTVPresets.listCount(), 0);
}

TEST_F(CctvPanelTest, AnActionNameTheHostCannotGiveIsEmpty) {
  services->failing.insert("GetResourceString");
  panel.load(0);
  EXPECT_THAT(texts(panel.cmbCCTVActions), ElementsAre("", "", ""));
  EXPECT_EQ(screen.boxes.size(), 3U);
  EXPECT_THAT(screen.boxTexts(), Each(StartsWith("MPublic: GRS: ")));
}

}  // namespace
}  // namespace pelorin::test
