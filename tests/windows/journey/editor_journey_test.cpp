// Editing triggers in the real windows.
#include "tests/windows/journey/journey.h"

namespace pelorin::test {
namespace {

using driver::chooseTab;
using driver::chooseText;
using driver::clickButton;
using driver::control;
using driver::textOf;
using driver::waitFor;
using testing::Contains;
using testing::ElementsAre;

constexpr const char* cctvTrigger2 = "select * from CCTV_TriggerAction where TA_ID = 2";

class EditorJourney : public Journey {
 protected:
  void choose(HWND editor, const char* combo, const std::string& text) {
    chooseText(control(editor, combo), text);
  }
  std::string chosen(HWND editor, const char* combo) {
    const HWND window = control(editor, combo);
    const int row = driver::comboRow(window);
    return row < 0 ? "" : driver::comboRows(window).at(static_cast<std::size_t>(row));
  }
  void waitForRows(int count) {
    waitFor(std::to_string(count) + " rows", [&] { return driver::rowCount(grid()) == count; });
  }
};

TEST_F(EditorJourney, WithoutALocationNothingIsSavedAndTheEditorStays) {
  const HWND editor = openEditor();
  clickButton(control(editor, "cmdOK"));
  EXPECT_EQ(driver::answerBox().text,
            "Required field missing. Must specify one or more trigger locations.");
  EXPECT_TRUE(driver::isShown(editor));
  EXPECT_THAT(audit(), testing::IsEmpty());
}

TEST_F(EditorJourney, AnEditedCctvTriggerShowsWhatIsStored) {
  const HWND editor = openEditorOn("00002 - Door open too long", "001.01.001.D01");
  EXPECT_EQ(textOf(editor), "Edit Trigger Action");
  EXPECT_EQ(textOf(control(editor, "txtLocation")), "001.01.001.D01");
  EXPECT_FALSE(IsWindowEnabled(control(editor, "cmbActionDeviceClass")));
  EXPECT_EQ(chosen(editor, "cmbCCTVCameras"), "Lobby overview");
  EXPECT_EQ(chosen(editor, "cmbCCTVPresets"), "Main entrance");
  EXPECT_EQ(chosen(editor, "cmbCCTVMonitors"), "2");
}

TEST_F(EditorJourney, ApplySavesAnEditedCctvTriggerAndLeavesTheEditorOpen) {
  const HWND editor = openEditorOn("00002 - Door open too long", "001.01.001.D01");
  chooseTab(control(editor, "SSTab1"), 1);
  choose(editor, "cmbCCTVMonitors", "5");
  clickButton(control(editor, "cmdApply"));
  waitFor("audit record", [&] { return audit().size() == 1; });
  EXPECT_THAT(audit(), ElementsAre("Update TriggerAction 2 Trigger Event 2 1185"));
  EXPECT_EQ(stored(cctvTrigger2, "Monitor"), "5");
  EXPECT_TRUE(driver::isShown(editor));
}

TEST_F(EditorJourney, CancelLeavesTheDatabaseAsItWas) {
  const HWND editor = openEditorOn("00002 - Door open too long", "001.01.001.D01");
  chooseTab(control(editor, "SSTab1"), 1);
  choose(editor, "cmbCCTVMonitors", "5");
  clickButton(control(editor, "cmdCancel"));
  driver::waitUntilClosed(editor);
  EXPECT_EQ(stored(cctvTrigger2, "Monitor"), "2");
  EXPECT_THAT(audit(), testing::IsEmpty());
}

TEST_F(EditorJourney, ApplyTwiceInAddModeMakesTheRowsTwice) {
  const HWND editor = openEditor();
  const int before = driver::rowCount(grid());
  checkEvents(editor, {"00003"});
  addDoors(editor, {"Post room"});
  clickButton(control(editor, "cmdApply"));
  waitForRows(before + 1);
  clickButton(control(editor, "cmdApply"));
  waitForRows(before + 2);
  EXPECT_THAT(audit(), ElementsAre("Add TriggerAction 0 Trigger Event 3 1184",
                                   "Add TriggerAction 0 Trigger Event 3 1184"));
}

TEST_F(EditorJourney, ADvrTriggerIsAddedThroughTheCommandWithItsOutputParameter) {
  const HWND editor = openEditor();
  const int before = driver::rowCount(grid());
  checkEvents(editor, {"00003"});
  addDoors(editor, {"Post room"});
  chooseTab(control(editor, "SSTab1"), 1);
  choose(editor, "cmbActionDeviceClass", "DVR / NVR");
  choose(editor, "cmbDVRUnit", "Head office recorder");
  clickButton(control(editor, "cmdOK"));
  driver::waitUntilClosed(editor);
  EXPECT_EQ(driver::rowCount(grid()), before + 1);
  EXPECT_THAT(statements(), Contains("pav_AddDeviceTrigger '001.01.001.D04', 00003, 6, 1"));
  EXPECT_THAT(audit(), ElementsAre("Add TriggerAction 6 Trigger Event 3 1184"));
  EXPECT_EQ(
      stored("select * from DVR_TriggerActions (NOLOCK) where DVRActionID = 6", "ID_DVR_Config"),
      "1");
}

TEST_F(EditorJourney, AnEditedDvrTriggerIsSavedByOk) {
  const HWND editor = openEditorOn("00036 - Panic button (reception desk)", "001.01.001.I01");
  chooseTab(control(editor, "SSTab1"), 1);
  EXPECT_EQ(textOf(control(editor, "txtDVRAlarmDuration")), "30");
  choose(editor, "cmbDVRRecordRate", "30.0 ips");
  clickButton(control(editor, "cmdOK"));
  driver::waitUntilClosed(editor);
  EXPECT_EQ(stored("select * from DVR_TriggerActions (NOLOCK) where DVRActionID = 1", "RecordRate"),
            "30");
  EXPECT_THAT(audit(), ElementsAre("Update TriggerAction 0 Trigger Event 36 1185"));
}

TEST_F(EditorJourney, WithoutAnEventAnEditedTriggerIsNotSaved) {
  const HWND editor = openEditorOn("00002 - Door open too long", "001.01.001.D01");
  driver::tickRow(control(editor, "lstEventFilters"), 0);
  waitFor("no event offered",
          [&] { return driver::comboRows(control(editor, "cmbEvents")).empty(); });
  clickButton(control(editor, "cmdOK"));
  EXPECT_EQ(driver::answerBox().text, "Required field missing. Must specify event.");
  EXPECT_TRUE(driver::isShown(editor));
}

TEST_F(EditorJourney, EscapeClosesTheEditorLikeCancel) {
  const HWND editor = openEditor();
  driver::pressKey(control(editor, "lvwEvents"), VK_ESCAPE);
  driver::waitUntilClosed(editor);
  EXPECT_THAT(audit(), testing::IsEmpty());
}

}  // namespace
}  // namespace pelorin::test
