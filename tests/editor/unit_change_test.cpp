// What choosing another switcher or recorder resets, and what it leaves.
#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;

// Beside the recorders of the site: C of the first one's vendor; the second one, of the vendor
// without duration, has two cameras.
class UnitChangeTest : public EditorTest {
 protected:
  static constexpr int recorderA = 0;
  static constexpr int withoutDuration = 1;
  static constexpr int recorderC = 2;
  static constexpr const char* commandSets =
      "exec WOL_Roles_Fetch_Cached_Commandsets @operatorid=7, @workstationid=3";

  UnitChangeTest() {
    database->answer(
        "select ID, DVRName from DVR_Config",
        {{"ID", "DVRName"}, {{21, "Recorder A"}, {22, "Recorder B"}, {23, "Recorder C"}}});
    database->answer("EXECUTE DVR_Getvendorinfo 23", {{"DVRVendorID"}, {{2}}});
    for (const int recorder : {22, 23}) {
      database->answer("select CameraIndex, CameraName from DVR_Cameras where ID_DVR_Config = " +
                           std::to_string(recorder) + " order by CameraIndex",
                       {{"CameraIndex", "CameraName"}, {{7, "Vault"}, {8, "Cellar"}}});
    }
    database->answer(
        "select ID, PresetName from DVR_PTZ_Preset where ID_DVR_Config = 22 And CameraIndex = 8 "
        "order by PresetName",
        {{"ID", "PresetName"}, {{45, "Stove"}}});
  }

  void openWith(std::int32_t deviceClass) {
    openEditor();
    chooseClass(deviceClass);
  }
  void chooseRecorder(int row) { combo("cmbDVRUnit").userSelect(row); }
  TextBox& duration() { return textBox("txtDVRAlarmDuration"); }
};

TEST_F(UnitChangeTest, AnotherSwitcherStartsWithItsFirstActionCameraAndMonitor) {
  openWith(device_class::cctv);
  combo("cmbCCTVMonitors").userSelect(3);
  combo("cmbCCTVActions").userSelect(1);
  control<CheckBox>("chkCCTVAutoRTNTriggers").userToggle();
  combo("cmbCCTVSwitchers").userSelect(1);
  EXPECT_EQ(combo("cmbCCTVActions").selectedData(), 1);
  EXPECT_EQ(combo("cmbCCTVCameras").selectedData(), 5);
  EXPECT_EQ(combo("cmbCCTVMonitors").selectedData(), 1);
  EXPECT_TRUE(combo("cmbCCTVCameras").visible());
  EXPECT_FALSE(textBox("txtCCTVAlarm").visible());
  EXPECT_FALSE(control<CheckBox>("chkCCTVAutoRTNTriggers").checked());
}

TEST_F(UnitChangeTest, AnotherSwitcherKeepsTheAlarmAndTheViewer) {
  openWith(device_class::cctv);
  control<CheckBox>("chkCCTVDisplayViewer").userToggle();
  combo("cmbCCTVActions").userSelect(1);
  textBox("txtCCTVAlarm").userText("17");
  combo("cmbCCTVSwitchers").userSelect(1);
  EXPECT_EQ(textBox("txtCCTVAlarm").text(), "17");
  EXPECT_TRUE(control<CheckBox>("chkCCTVDisplayViewer").checked());
}

TEST_F(UnitChangeTest, ATypedDurationIsResetAlsoBetweenRecordersThatHaveOne) {
  openWith(device_class::dvr);
  duration().userText("77");
  chooseRecorder(recorderC);
  EXPECT_EQ(duration().text(), "15");
  EXPECT_TRUE(duration().enabled());
}

TEST_F(UnitChangeTest, PresetsStayDisabledWhenTheCameraOfARecorderWithoutDurationChanges) {
  openWith(device_class::dvr);
  chooseRecorder(withoutDuration);
  combo("cmbDVRCamera").userSelect(1);
  const ComboBox& presets = combo("cmbDVRCameraPresets");
  EXPECT_THAT(texts(presets), ElementsAre("<No preset>", "Stove"));
  EXPECT_FALSE(presets.enabled());
  EXPECT_EQ(presets.listIndex(), 0);
  EXPECT_EQ(duration().text(), "0");
  EXPECT_FALSE(duration().enabled());
}

TEST_F(UnitChangeTest, CommandSetsAreAskedForAgainAndStartWithNone) {
  openWith(device_class::dvr);
  combo("cmbCommandSet").userSelect(1);
  services->operatorId = 8;
  database->answer("exec WOL_Roles_Fetch_Cached_Commandsets @operatorid=8, @workstationid=3",
                   {{"ObjectID", "Name"}, {{62, "Open all"}, {61, "Lock all"}}});
  chooseRecorder(recorderC);
  EXPECT_THAT(texts(combo("cmbCommandSet")), ElementsAre("<None>", "Open all", "Lock all"));
  EXPECT_EQ(combo("cmbCommandSet").selectedData(), 0);
  journal.clear();
  services->operatorId = 7;
  chooseRecorder(recorderA);
  EXPECT_THAT(database->statements(), Contains(commandSets));
}

TEST_F(UnitChangeTest, AnotherRecorderKeepsStandardRateAndViewGroup) {
  openWith(device_class::dvr);
  combo("cmbRecordStandard").userSelect(1);
  combo("cmbDVRRecordRate").userSelect(5);
  combo("cmbDVRViewGroups").userSelect(2);
  chooseRecorder(recorderC);
  EXPECT_EQ(combo("cmbRecordStandard").selectedData(), 0);
  EXPECT_EQ(combo("cmbDVRRecordRate").listIndex(), 5);
  EXPECT_EQ(combo("cmbDVRViewGroups").selectedData(), 52);
}

}  // namespace
}  // namespace pelorin::test
