// Which device classes are offered, and what choosing another class or another action leaves alone.
#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ClassChangeTest : public EditorTest {
 protected:
  void answerClasses(std::vector<std::vector<Value>> rows) {
    database->answer("select * from IntegratedDeviceclasses",
                     {{"IntegratedDeviceClassId", "Classname"}, std::move(rows)});
  }
  ComboBox& classes() { return combo("cmbActionDeviceClass"); }
  std::string chosen(const std::string& name) {
    const ComboBox& rows = combo(name);
    return rows.listIndex() < 0 ? "" : rows.row(rows.listIndex()).text;
  }
  void fillCctv() {
    chooseClass(device_class::cctv);
    combo("cmbCCTVSwitchers").userSelect(1);
    combo("cmbCCTVMonitors").userSelect(1);
    control<CheckBox>("chkCCTVDisplayViewer").userToggle();
    combo("cmbCCTVActions").userSelect(1);
    textBox("txtCCTVAlarm").userText("17");
    control<CheckBox>("chkCCTVAutoRTNTriggers").userToggle();
  }
  void expectCctvAsFilled() {
    EXPECT_EQ(chosen("cmbCCTVSwitchers"), "South");
    EXPECT_EQ(chosen("cmbCCTVMonitors"), "2");
    EXPECT_EQ(chosen("cmbCCTVActions"), "Raise alarm");
    EXPECT_TRUE(control<CheckBox>("chkCCTVDisplayViewer").checked());
    EXPECT_TRUE(control<CheckBox>("chkCCTVAutoRTNTriggers").checked());
    EXPECT_EQ(textBox("txtCCTVAlarm").text(), "17");
  }
  void fillDvr() {
    chooseClass(device_class::dvr);
    combo("cmbDVRCamera").userSelect(1);
    combo("cmbRecordStandard").userSelect(1);
    combo("cmbDVRRecordRate").userSelect(5);
    textBox("txtDVRAlarmDuration").userText("77");
    combo("cmbDVRCameraPresets").userSelect(1);
    combo("cmbDVRViewGroups").userSelect(2);
    combo("cmbCommandSet").userSelect(1);
  }
  void expectDvrAsFilled() {
    EXPECT_EQ(chosen("cmbDVRCamera"), "Hall");
    EXPECT_EQ(chosen("cmbRecordStandard"), "PAL");
    EXPECT_EQ(chosen("cmbDVRRecordRate"), "50.0 ips");
    EXPECT_EQ(textBox("txtDVRAlarmDuration").text(), "77");
    EXPECT_EQ(chosen("cmbDVRCameraPresets"), "Stairs");
    EXPECT_EQ(chosen("cmbDVRViewGroups"), "Outside");
    EXPECT_EQ(chosen("cmbCommandSet"), "Lock all");
  }
};

TEST_F(ClassChangeTest, SendsNothingAndKeepsWhatBothPanelsHold) {
  openEditor();
  fillCctv();
  fillDvr();
  journal.clear();
  chooseClass(device_class::cctv);
  expectCctvAsFilled();
  chooseClass(device_class::dvr);
  expectDvrAsFilled();
  chooseClass(device_class::cctv);
  expectCctvAsFilled();
  EXPECT_THAT(journal.lines(), IsEmpty());
}

TEST_F(ClassChangeTest, WhatTheActionHidesIsThereWhenItIsShownAgain) {
  openEditor();
  chooseClass(device_class::cctv);
  combo("cmbCCTVCameras").userSelect(1);
  combo("cmbCCTVActions").userSelect(1);
  textBox("txtCCTVAlarm").userText("17");
  journal.clear();
  for (const int action : {0, 2, 1, 0}) combo("cmbCCTVActions").userSelect(action);
  EXPECT_EQ(chosen("cmbCCTVCameras"), "Yard");
  EXPECT_EQ(chosen("cmbCCTVPresets"), "Fence");
  EXPECT_EQ(textBox("txtCCTVAlarm").text(), "17");
  EXPECT_THAT(journal.lines(), IsEmpty());
}

TEST_F(ClassChangeTest, HiddenValuesOfTheActionAreSavedWithIt) {
  openEditor();
  addLocations(1);
  tickFilter(1);
  checkEvents({1});
  chooseClass(device_class::cctv);
  combo("cmbCCTVCameras").userSelect(1);
  combo("cmbCCTVActions").userSelect(1);
  textBox("txtCCTVAlarm").userText("17");
  journal.clear();
  EXPECT_TRUE(editor->SaveTriggerAction());
  combo("cmbCCTVActions").userSelect(0);
  EXPECT_TRUE(editor->SaveTriggerAction());
  EXPECT_THAT(database->statements(),
              ElementsAre("exec CCTV_Insert_TA 11, 1, 2, 33, 100, '1.1.1', 2, '100', "
                          "'1.1.1 - Door 1', 17, False",
                          "exec CCTV_Insert_TA 11, 1, 2, 33, 100, '1.1.1', 1, '100', "
                          "'1.1.1 - Door 1', 17, False"));
}

TEST_F(ClassChangeTest, TheRecordersClassHasTheNameOfTheDatabase) {
  answerClasses({{1, "Video recorders"}});
  openEditor();
  EXPECT_THAT(texts(classes()), ElementsAre("CCTV", "Video recorders"));
}

TEST_F(ClassChangeTest, EveryRowOfTheRecordersClassIsOffered) {
  answerClasses({{1, "DVR"}, {2, "Intercom"}, {1, "NVR"}});
  openEditor();
  EXPECT_THAT(texts(classes()), ElementsAre("CCTV", "DVR", "NVR"));
  EXPECT_EQ(classes().row(2).itemData, 1);
}

TEST_F(ClassChangeTest, OfRowsWithOneNumberTheFirstIsShown) {
  answerClasses({{1, "DVR"}, {1, "NVR"}});
  openEditor();
  control<TabControl>("SSTab1").setTab(1);
  classes().userSelect(2);
  EXPECT_EQ(chosen("cmbActionDeviceClass"), "DVR");
  EXPECT_TRUE(control<Frame>("fraDVRAction").visible());
  EXPECT_FALSE(control<Frame>("fraCCTVAction").visible());
}

TEST_F(ClassChangeTest, ARowWithTheNumberOfTheSwitchersIsNotASecondOne) {
  answerClasses({{999, "Matrix"}, {1, "DVR / NVR"}});
  openEditor();
  EXPECT_THAT(texts(classes()), ElementsAre("CCTV", "DVR / NVR"));
  EXPECT_EQ(classes().row(0).itemData, 999);
}

TEST_F(ClassChangeTest, ARowWithoutANumberIsSkipped) {
  answerClasses({{Null(), "Unknown"}, {1, Null()}});
  openEditor();
  EXPECT_THAT(texts(classes()), ElementsAre("CCTV", ""));
  EXPECT_TRUE(screen.boxes.empty());
}

}  // namespace
}  // namespace pelorin::test
