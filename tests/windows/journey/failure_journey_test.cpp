// What the operator is told when something is missing or fails, and what works afterwards.
#include "host/window/resource.h"
#include "tests/windows/journey/component_log.h"
#include "tests/windows/journey/journey.h"

namespace pelorin::test {
namespace {

using driver::clickButton;
using driver::control;
using driver::waitFor;
using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class FailureJourney : public Journey {
 protected:
  void prepareNewTrigger() {
    editor = openEditor();
    checkEvents(editor, {"00001", "00002"});
    addDoors(editor, {"Post room", "Visitor gate"});
  }
  void pressOk() { clickButton(control(editor, "cmdOK")); }
  // One box with that text; then the editor is there as before and nothing was logged as done.
  void expectRefusal(const std::string& text) {
    EXPECT_EQ(driver::answerBox().text, text);
    waitFor("editor to be operated again", [&] { return IsWindowEnabled(editor); });
    EXPECT_FALSE(driver::findBox());
    EXPECT_TRUE(driver::isShown(editor));
    EXPECT_THAT(audit(), IsEmpty());
    EXPECT_THAT(log.newLines(), IsEmpty());
  }

  ComponentLog log;
  HWND editor = nullptr;
};

TEST_F(FailureJourney, WithoutSwitchersATriggerCannotBeSaved) {
  changeSite("delete from CCTV_Switchers");
  prepareNewTrigger();
  pressOk();
  expectRefusal("Cannot save trigger. There are no CCTV units defined for this trigger");
}

TEST_F(FailureJourney, WithoutItsLocationAnEditedTriggerIsNotSaved) {
  editor = openEditorOn("00002 - Door open too long", "001.01.001.D01");
  const HWND picker = openPicker(editor, "cmdSingleLocation");
  clickButton(control(picker, "cmdMain(1)"));
  driver::waitUntilClosed(picker);
  pressOk();
  expectRefusal("Required field missing. Must specify trigger location.");
}

TEST_F(FailureJourney, WithoutAnAlarmDurationADvrTriggerIsNotSaved) {
  changeSite("update DVR_TriggerActions set AlarmDuration = 0 where DVRActionID = 1");
  editor = openEditorOn("00036 - Panic button (reception desk)", "001.01.001.I01");
  pressOk();
  expectRefusal("Required field missing. Must specify Alarm duration.");
}

TEST_F(FailureJourney, WithoutAnEventADvrTriggerIsNotSaved) {
  editor = openEditorOn("00036 - Panic button (reception desk)", "001.01.001.I01");
  driver::tickRow(control(editor, "lstEventFilters"), 0);
  waitFor("no event offered",
          [&] { return driver::comboRows(control(editor, "cmbEvents")).empty(); });
  pressOk();
  expectRefusal("Required field missing. Must specify event.");
}

TEST_F(FailureJourney, AFailingStatementOfTheSummaryIsReportedOnceAndTheRestWorks) {
  changeSite("drop table CCTV_TriggerAction");
  clickButton(GetDlgItem(host.window(), IDM_TRIGGER_ACTIONS));
  const driver::OpenBox box = driver::answerBox();
  EXPECT_EQ(box.title, "Pelorin");
  EXPECT_THAT(box.text, AllOf(StartsWith("frmTASummary.LoadCCTVSummaryData: Line: "),
                              HasSubstr("CCTV_TriggerAction")));
  driver::waitForForm("frmTASummary");
  EXPECT_FALSE(driver::findBox());
  EXPECT_THAT(log.newLines(), ElementsAre(EndsWith(": " + box.text)));

  const int before = driver::rowCount(grid());
  driver::selectRow(grid(), summaryRow("00040 - Water leak detected", "001.01.007.I01"));
  driver::pressMnemonic(grid(), 'D');
  waitFor("one row less", [&] { return driver::rowCount(grid()) == before - 1; });
  EXPECT_THAT(audit(), ElementsAre("Delete TriggerAction 2 Trigger Event 40 1186"));
  EXPECT_EQ(log.newLines().size(), 1U);
}

TEST_F(FailureJourney, AFailingSaveIsReportedOnceAndTheEditorStays) {
  prepareNewTrigger();
  changeSite("drop table CCTV_TriggerAction");
  pressOk();
  const driver::OpenBox box = driver::answerBox();
  EXPECT_THAT(box.text,
              AllOf(StartsWith("frmTriggerAction.InsertCCTVTriggerActionForThisLocation: Line: "),
                    HasSubstr("CCTV_TriggerAction")));
  waitFor("editor to be operated again", [&] { return IsWindowEnabled(editor); });
  EXPECT_FALSE(driver::findBox());
  EXPECT_TRUE(driver::isShown(editor));
  EXPECT_THAT(log.newLines(), ElementsAre(EndsWith(": " + box.text)));
  EXPECT_THAT(audit(), IsEmpty());

  clickButton(control(editor, "cmdCancel"));
  driver::waitUntilClosed(editor);
  EXPECT_TRUE(IsWindowEnabled(driver::findForm("frmTASummary")));
}

}  // namespace
}  // namespace pelorin::test
