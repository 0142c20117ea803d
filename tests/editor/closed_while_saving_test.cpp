// The host destroys the windows while a save is at work: it ends with the trigger in hand.
#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;

class ClosedWhileSaving : public EditorTest {
 protected:
  void prepare(std::int32_t deviceClass) {
    openEditor();
    addLocations(2);
    tickFilter(0);
    checkEvents({1, 2});
    chooseClass(deviceClass);
    journal.clear();
  }
  void raiseAlarm() {
    combo("cmbCCTVActions").userSelect(1);
    textBox("txtCCTVAlarm").setText("21");
    control<CheckBox>("chkCCTVAutoRTNTriggers").userToggle();
  }
  void closeDuring(const std::string& sql) {
    database->onStatement = [this, sql](const std::string& sent) {
      if (sent == sql) editor->unload();
    };
  }
  void expectLog(const std::string& progress) {
    ASSERT_EQ(environment.lines.size(), 1U);
    EXPECT_EQ(environment.lines[0].second,
              environment.dateTime +
                  ": frmTriggerAction.SaveTriggerAction: The editor was closed during the save; " +
                  progress + " trigger actions were written.");
  }
};

TEST_F(ClosedWhileSaving, EndsAfterTheTriggerInHandWithItsReturnToNormalRow) {
  prepare(device_class::cctv);
  raiseAlarm();
  database->fail("select ExternalEventId as RTNEventID from RetNormalMatrix where AlarmID = 5001",
                 "no rights");
  closeDuring(
      "exec CCTV_Insert_TA 11, 1, 1, 31, 5002, '1.1.1', 2, '5002', '1.1.1 - Door 1', 21, "
      "False");
  EXPECT_TRUE(editor->SaveTriggerAction());
  EXPECT_THAT(
      writes(),
      ElementsAre("sql: exec CCTV_Insert_TA 11, 1, 1, 31, 5001, '1.1.1', 2, '5001', '1.1.1 - Door "
                  "1', 21, False",
                  "host: LogEvent(Add, TriggerAction, 0, Trigger Event 5001, 1184)",
                  "sql: exec CCTV_Insert_TA 11, 1, 1, 31, 5002, '1.1.1', 2, '5002', '1.1.1 - Door "
                  "1', 21, False",
                  "host: LogEvent(Add, TriggerAction, 0, Trigger Event 5002, 1184)",
                  "sql: exec CCTV_Insert_TA 11, 1, 1, 31, 5402, '1.1.1', 3, '5402', '1.1.1 - Door "
                  "1', 21, False",
                  "reload"));
  ASSERT_EQ(environment.lines.size(), 2U) << "the failing look-up, and how far the save came";
  EXPECT_THAT(environment.lines[1].second, EndsWith("; 2 of 4 trigger actions were written."));
}

TEST_F(ClosedWhileSaving, EndsWhileABoxIsOpen) {
  prepare(device_class::cctv);
  raiseAlarm();
  database->fail("select ExternalEventId as RTNEventID from RetNormalMatrix where AlarmID = 5001",
                 "no rights");
  screen.duringBox = [this](const BoxRequest&) { editor->unload(); };
  editor->SaveTriggerAction();
  EXPECT_EQ(journal.of("sql: exec CCTV_Insert_TA").size(), 1U);
  EXPECT_EQ(journal.of("host: LogEvent").size(), 1U);
  EXPECT_EQ(screen.boxes.size(), 1U) << "how far it came is only logged";
  EXPECT_THAT(environment.lines.back().second, EndsWith("; 1 of 4 trigger actions were written."));
}

TEST_F(ClosedWhileSaving, ARecordersTriggerGetsItsRowAndItsAuditRecord) {
  prepare(device_class::dvr);
  closeDuring(
      "call DVR_AddAction DVRActionID=0 ID_DVR_Config=21 CameraIndex=1 RecordRate=15 "
      "AlarmDuration=15 RecordStandard=1 PresetID=0 ViewGroupID=0 CommandSetID=0");
  editor->SaveTriggerAction();
  EXPECT_EQ(journal.of("sql: call DVR_AddAction").size(), 1U);
  EXPECT_THAT(journal.of("sql: pav_AddDeviceTrigger"), ElementsAre(" '1.1.1', 05001, 901, 1"));
  EXPECT_THAT(journal.of("host: LogEvent"),
              ElementsAre("(Added, TriggerAction, 901, Trigger Event 5001, 1184)"));
  expectLog("1 of 4");
}

TEST_F(ClosedWhileSaving, AnEditedTriggerIsWrittenWhole) {
  answerDvrTrigger(8, 101, 300, device_class::dvr);
  answerDvrAction(300, {21, 2, 1, 7.5, 45, 43, 52, 61});
  editDvr();
  journal.clear();
  closeDuring("DVR_UpdateAction 300, 21, 2, 7.5, 45, 1, 43, 52, 61");
  button("cmdOK").userClick();
  EXPECT_FALSE(editor->isOpen());
  EXPECT_EQ(journal.of("sql: pav_UpdateDeviceTrigger").size(), 1U);
  EXPECT_EQ(journal.of("host: LogEvent").size(), 1U);
  expectLog("1 of 1");
}

TEST_F(ClosedWhileSaving, ASaveThatNeverBeganLogsNothing) {
  openEditor();
  screen.duringBox = [this](const BoxRequest&) { editor->unload(); };
  EXPECT_FALSE(editor->SaveTriggerAction());
  EXPECT_THAT(environment.lines, IsEmpty());
}

TEST_F(ClosedWhileSaving, AWholeSaveLogsNothing) {
  prepare(device_class::cctv);
  button("cmdOK").userClick();
  EXPECT_FALSE(editor->isOpen());
  EXPECT_EQ(journal.of("sql: exec CCTV_Insert_TA").size(), 4U);
  EXPECT_THAT(environment.lines, IsEmpty());
}

}  // namespace
}  // namespace pelorin::test
