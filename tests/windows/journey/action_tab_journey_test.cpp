// What the action tab offers: actions by the switcher's settings file, seconds and rates of a
// recorder.
#include "site/engine.h"
#include "tests/windows/journey/journey.h"

namespace pelorin::test {
namespace {

using driver::chooseTab;
using driver::chooseText;
using driver::control;
using driver::textOf;
using driver::waitFor;
using testing::ElementsAre;

constexpr const char* callCamera = "Call camera to monitor";
constexpr const char* raiseAlarm = "Raise switcher alarm";
constexpr const char* acknowledgeAlarm = "Acknowledge switcher alarm";

class ActionTabJourney : public Journey {
 protected:
  void openActionTab() {
    editor = openEditor();
    chooseTab(control(editor, "SSTab1"), 1);
  }
  void openRecorderPanel() {
    openActionTab();
    choose("cmbActionDeviceClass", "DVR / NVR");
  }
  void choose(const char* combo, const std::string& text) {
    chooseText(control(editor, combo), text);
  }
  std::string chosen(const char* combo) {
    const HWND window = control(editor, combo);
    return driver::comboRows(window).at(static_cast<std::size_t>(driver::comboRow(window)));
  }
  std::vector<std::string> offered(const char* combo) {
    return driver::comboRows(control(editor, combo));
  }
  // Types over what the box holds.
  void type(const std::string& text) {
    const HWND box = control(editor, "txtDVRAlarmDuration");
    RECT area{};
    GetClientRect(box, &area);
    driver::clickAt(box, driver::middleOf(area));
    driver::replaceText(box, text);
  }
  std::string seconds() { return textOf(control(editor, "txtDVRAlarmDuration")); }
  void leaveFor(const std::string& expected) {
    driver::pressKey(control(editor, "txtDVRAlarmDuration"), VK_TAB);
    waitFor(expected + " seconds", [&] { return seconds() == expected; });
  }

  HWND editor = nullptr;
};

TEST_F(ActionTabJourney, TheSettingsFileBesideTheComponentTakesAnActionAway) {
  openActionTab();
  choose("cmbActionDeviceClass", "CCTV");
  EXPECT_THAT(offered("cmbCCTVActions"), ElementsAre(callCamera, raiseAlarm, acknowledgeAlarm));
  choose("cmbCCTVSwitchers", "Perimeter switcher");
  EXPECT_THAT(offered("cmbCCTVActions"), ElementsAre(callCamera, raiseAlarm));
}

TEST_F(ActionTabJourney, ASwitcherWhoseSettingsFileIsMissingOffersEveryAction) {
  site::Engine::open(host.file(), site::Engine::Mode::Open)
      ->script("update CCTV_Switchers set INI_FILE = 'NOSUCHFILE' where SwitcherID = 2");
  openActionTab();
  choose("cmbActionDeviceClass", "CCTV");
  choose("cmbCCTVSwitchers", "Perimeter switcher");
  EXPECT_THAT(offered("cmbCCTVActions"), ElementsAre(callCamera, raiseAlarm, acknowledgeAlarm));
}

TEST_F(ActionTabJourney, TheDurationTakesDigitsOnly) {
  openRecorderPanel();
  EXPECT_EQ(seconds(), "15");
  type("4a-5,x");
  EXPECT_EQ(seconds(), "45");
  type("46\b");
  EXPECT_EQ(seconds(), "4");
}

TEST_F(ActionTabJourney, TheDurationIsBroughtIntoItsLimitsWhenItsBoxIsLeft) {
  openRecorderPanel();
  type("1000");
  leaveFor("300");
  type("2");
  leaveFor("5");
  type("\b");
  EXPECT_EQ(seconds(), "");
  leaveFor("5");
  EXPECT_FALSE(driver::findBox());
}

TEST_F(ActionTabJourney, ARecorderWithoutDurationGreysItAndThePresetsAndAnotherBringsThemBack) {
  openRecorderPanel();
  choose("cmbDVRUnit", "Warehouse network recorder");
  EXPECT_EQ(seconds(), "0");
  EXPECT_FALSE(IsWindowEnabled(control(editor, "txtDVRAlarmDuration")));
  EXPECT_FALSE(IsWindowEnabled(control(editor, "cmbDVRCameraPresets")));
  EXPECT_EQ(chosen("cmbDVRCameraPresets"), "<No preset>");
  choose("cmbDVRUnit", "Car park recorder");
  EXPECT_EQ(seconds(), "15");
  EXPECT_TRUE(IsWindowEnabled(control(editor, "txtDVRAlarmDuration")));
  EXPECT_TRUE(IsWindowEnabled(control(editor, "cmbDVRCameraPresets")));
}

TEST_F(ActionTabJourney, ARecorderWithoutDurationIsSavedWithNone) {
  openRecorderPanel();
  choose("cmbDVRUnit", "Warehouse network recorder");
  chooseTab(control(editor, "SSTab1"), 0);
  checkEvents(editor, {"00003"});
  addDoors(editor, {"Post room"});
  driver::clickButton(control(editor, "cmdOK"));
  driver::waitUntilClosed(editor);
  EXPECT_FALSE(driver::findBox());
  EXPECT_EQ(
      stored("select * from DVR_TriggerActions (NOLOCK) where DVRActionID = 6", "AlarmDuration"),
      "0");
}

TEST_F(ActionTabJourney, TheRecordStandardDecidesTheRates) {
  openRecorderPanel();
  EXPECT_EQ(chosen("cmbRecordStandard"), "NTSC");
  EXPECT_THAT(offered("cmbDVRRecordRate"),
              ElementsAre(" 1.0 ips", " 2.5 ips", " 7.5 ips", "15.0 ips", "30.0 ips", "60.0 ips"));
  EXPECT_EQ(chosen("cmbDVRRecordRate"), "15.0 ips");
  choose("cmbDVRRecordRate", "60.0 ips");
  choose("cmbRecordStandard", "PAL");
  EXPECT_THAT(offered("cmbDVRRecordRate"),
              ElementsAre("  .8 ips", " 2.0 ips", " 6.3 ips", "12.5 ips", "25.0 ips", "50.0 ips"));
  EXPECT_EQ(chosen("cmbDVRRecordRate"), "12.5 ips");
}

}  // namespace
}  // namespace pelorin::test
