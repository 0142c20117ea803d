// One call that the host fails on the way of each main journey: the operator is told, the journey
// goes on or stays where it is, and the database holds nothing that was not asked for.
#include "host/core/resource_texts.h"
#include "host/window/resource.h"
#include "tests/windows/journey/services_journey.h"

namespace pelorin::test {
namespace {

using driver::clickButton;
using driver::control;
using driver::waitFor;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

class FailingServicesJourney : public ServicesJourney {
 protected:
  void failOnce(const wchar_t* member, int which = 1) {
    host.ui().run([&] { services->failOnce(member, which); });
  }
  // One box, which is also the one line in the log; then the form is there to be operated.
  HWND expectReport(const std::string& procedure, const std::string& form) {
    const driver::OpenBox box = driver::answerBox();
    EXPECT_THAT(box.text, AllOf(StartsWith(procedure + ": Line: "), HasSubstr("The host is busy")));
    const HWND window = driver::waitForForm(form);
    waitFor(form + " to be operated", [&] { return IsWindowEnabled(window); });
    EXPECT_FALSE(driver::findBox());
    EXPECT_THAT(log.newLines(), testing::ElementsAre(EndsWith(": " + box.text)));
    return window;
  }
  void pressTriggerActions() { clickButton(GetDlgItem(host.window(), IDM_TRIGGER_ACTIONS)); }
  // As openEditorOn, for an editor that has a report to show first.
  void pressEditOn(const std::string& triggerText, const std::string& location) {
    const HWND summary = openSummary();
    driver::selectRow(grid(), summaryRow(triggerText, location));
    clickButton(control(summary, "cmdAddEdit(1)"));
  }
  void prepareTrigger(HWND editor) {
    checkEvents(editor, {"00003", "00004"});
    addDoors(editor, {"Post room"});
  }
  std::string cctv(int id, const char* column) {
    return stored("select * from CCTV_TriggerAction where TA_ID = " + std::to_string(id), column);
  }
};

constexpr int firstAdded = 9;

TEST_F(FailingServicesJourney, TheRightToUseIsNotTakenForGranted) {
  failOnce(L"Security");
  pressTriggerActions();
  const std::string report = driver::answerBox().text;
  EXPECT_THAT(report, AllOf(StartsWith("Module1.MyPermissionGranted: Line: "),
                            HasSubstr("The host is busy")));
  EXPECT_EQ(driver::answerBox().text, host::resourceText(3575));
  EXPECT_EQ(driver::findForm("frmTASummary"), nullptr);
  EXPECT_THAT(statements(), IsEmpty());
  EXPECT_NE(openSummary(), nullptr);
}

TEST_F(FailingServicesJourney, TheSummaryShowsEveryTriggerWithoutOneDescription) {
  failOnce(L"EnableCustomize");
  pressTriggerActions();
  const HWND summary = expectReport("Module1.GetEventDescription", "frmTASummary");
  const int rows = driver::rowCount(grid());
  clickButton(control(summary, "cmdClose"));
  driver::waitUntilClosed(summary);
  openSummary();
  EXPECT_EQ(driver::rowCount(grid()), rows);
  EXPECT_GE(summaryRow("00001 - Door broken open!", "001.01.001.D01"), 0);
}

TEST_F(FailingServicesJourney, TheSummaryShowsEveryTriggerWithoutOneActionName) {
  failOnce(L"GetResourceString");
  pressTriggerActions();
  expectReport("MPublic: GRS", "frmTASummary");
  EXPECT_EQ(driver::cell(grid(), 0, 0), "00001 - Door broken open!");
  EXPECT_EQ(driver::cell(grid(), 0, 2), "");
}

TEST_F(FailingServicesJourney, ADeletedTriggerThatCannotBeLoggedIsGoneAndReported) {
  const HWND summary = openSummary();
  const int before = driver::rowCount(grid());
  driver::selectRow(grid(), summaryRow("00001 - Door broken open!", "001.01.007.D01"));
  failOnce(L"LogEvent");
  clickButton(control(summary, "cmdDelete"));
  expectReport("frmTASummary.cmdDelete_Click", "frmTASummary");
  EXPECT_EQ(driver::rowCount(grid()), before - 1);
  EXPECT_EQ(cctv(3, "TA_ID"), "");
  EXPECT_EQ(cctv(2, "TA_ID"), "2");
  EXPECT_THAT(audit(), IsEmpty());
}

TEST_F(FailingServicesJourney, AnAddedTriggerThatCannotBeLoggedEndsTheSaveAndIsThereOnce) {
  const HWND editor = openEditor();
  prepareTrigger(editor);
  failOnce(L"LogEvent");
  clickButton(control(editor, "cmdOK"));
  expectReport("frmTriggerAction.InsertCCTVTriggerActionForThisLocation", "frmTriggerAction");
  EXPECT_EQ(cctv(firstAdded, "T_EventID"), "3");
  EXPECT_EQ(cctv(firstAdded + 1, "TA_ID"), "");
  EXPECT_THAT(audit(), IsEmpty());
}

TEST_F(FailingServicesJourney, TheSecondTriggerThatCannotBeLoggedLeavesTheRecordOfTheFirst) {
  const HWND editor = openEditor();
  prepareTrigger(editor);
  failOnce(L"LogEvent", 2);
  clickButton(control(editor, "cmdOK"));
  expectReport("frmTriggerAction.InsertCCTVTriggerActionForThisLocation", "frmTriggerAction");
  EXPECT_EQ(cctv(firstAdded + 1, "T_EventID"), "4");
  EXPECT_EQ(cctv(firstAdded + 2, "TA_ID"), "");
  EXPECT_THAT(audit(), testing::ElementsAre("Add TriggerAction 0 Trigger Event 3 1184"));
}

TEST_F(FailingServicesJourney, AChangedTriggerThatCannotBeLoggedIsStoredAndTheEditorStays) {
  const HWND editor = openEditorOn("00002 - Door open too long", "001.01.001.D01");
  driver::chooseTab(control(editor, "SSTab1"), 1);
  driver::chooseText(control(editor, "cmbCCTVMonitors"), "5");
  failOnce(L"LogEvent");
  clickButton(control(editor, "cmdOK"));
  expectReport("frmTriggerAction.SaveCCTVTriggerAction", "frmTriggerAction");
  EXPECT_EQ(cctv(2, "Monitor"), "5");
  EXPECT_EQ(cctv(2, "T_EventID"), "2");
  EXPECT_THAT(audit(), IsEmpty());
  clickButton(control(editor, "cmdOK"));
  driver::waitUntilClosed(editor);
  EXPECT_THAT(audit(), testing::ElementsAre("Update TriggerAction 2 Trigger Event 2 1185"));
}

TEST_F(FailingServicesJourney, WithoutTheOperatorARecordersTriggerIsNotOverwritten) {
  constexpr const char* action2 = "select * from DVR_TriggerActions (NOLOCK) where DVRActionID = 2";
  openSummary();
  failOnce(L"OperatorID");
  pressEditOn("00040 - Water leak detected", "001.01.007.I01");
  const HWND editor = expectReport("frmTriggerAction.LoadCommandSetCombo", "frmTriggerAction");
  clickButton(control(editor, "cmdOK"));
  EXPECT_EQ(driver::answerBox().text, "Cannot save trigger. It could not be read completely.");
  EXPECT_TRUE(driver::isShown(editor));
  EXPECT_EQ(stored(action2, "CommandSetID"), "3");
  EXPECT_THAT(audit(), IsEmpty());
}

TEST_F(FailingServicesJourney, WithoutTheOperatorANewCctvTriggerIsSavedAllTheSame) {
  const HWND summary = openSummary();
  failOnce(L"OperatorID");
  clickButton(control(summary, "cmdAddEdit(0)"));
  const HWND editor = expectReport("frmTriggerAction.LoadCommandSetCombo", "frmTriggerAction");
  prepareTrigger(editor);
  clickButton(control(editor, "cmdOK"));
  driver::waitUntilClosed(editor);
  EXPECT_EQ(cctv(firstAdded, "T_EventID"), "3");
  EXPECT_THAT(audit(), SizeIs(2));
}

TEST_F(FailingServicesJourney, EventsThatCannotBeDescribedAreListedAtTheNextTick) {
  const HWND editor = openEditor();
  const HWND filters = control(editor, "lstEventFilters");
  const HWND events = control(editor, "lvwEvents");
  failOnce(L"EnableCustomize");
  driver::tickRow(filters, 0);
  expectReport("Error: LoadEventsByFilterType(): ", "frmTriggerAction");
  EXPECT_EQ(driver::rowCount(events), 0);
  driver::tickRow(filters, 0);
  driver::tickRow(filters, 0);
  waitFor("events", [&] { return driver::rowCount(events) > 0; });
  EXPECT_EQ(driver::cell(events, 0, 2), "Door broken open!");
}

TEST_F(FailingServicesJourney, ThePickerOpensWithItsDesignCaptions) {
  const HWND editor = openEditor();
  failOnce(L"EnableCustomize");
  clickButton(control(editor, "cmdAddLocation"));
  const HWND picker = expectReport("FLocation.LoadCustomResources", "FLocation");
  driver::doubleClickNode(control(picker, "tvTree"),
                          lobbyDoor(control(picker, "tvTree"), "Post room"));
  waitFor("location", [&] { return driver::rowCount(control(editor, "lvwLocation")) == 1; });
}

}  // namespace
}  // namespace pelorin::test
