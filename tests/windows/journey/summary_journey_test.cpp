// Listing and deleting in the real windows.
#include "host/core/resource_texts.h"
#include "host/window/resource.h"
#include "tests/windows/journey/journey.h"
#include "win32/text/windows_api.h"

namespace pelorin::test {
namespace {

using driver::clickButton;
using driver::control;
using driver::waitFor;
using testing::ElementsAre;

using SummaryJourney = Journey;

TEST_F(SummaryJourney, TheListShowsCctvTriggersFirstUnderItsSevenHeaders) {
  openSummary();
  EXPECT_THAT(driver::headersOf(grid()), ElementsAre("Trigger", "Location", "Action", "Type",
                                                     "Device", "TriggerID", "TriggerEventID"));
  EXPECT_THAT(driver::rowsOf(grid()).at(0),
              ElementsAre("00001 - Door broken open!", "001.01.001.D01", "Call camera to monitor",
                          "CCTV", "Main building switcher", "1", "1"));
  for (const WPARAM column : {WPARAM{5}, WPARAM{6}}) {
    EXPECT_EQ(SendMessageW(grid(), LVM_GETCOLUMNWIDTH, column, 0), 0);
  }
}

TEST_F(SummaryJourney, DeleteByMouseRemovesTheRowTheTriggerAndIsLogged) {
  const HWND summary = openSummary();
  const int before = driver::rowCount(grid());
  driver::selectRow(grid(), summaryRow("00001 - Door broken open!", "001.01.007.D01"));
  clickButton(control(summary, "cmdDelete"));
  waitFor("one row less", [&] { return driver::rowCount(grid()) == before - 1; });
  EXPECT_EQ(summaryRow("00001 - Door broken open!", "001.01.007.D01"), -1);
  EXPECT_EQ(stored("select * from CCTV_TriggerAction where TA_ID = 3", "TA_ID"), "");
  EXPECT_THAT(audit(), ElementsAre("Delete TriggerAction 3 Trigger Event 1 1186"));
}

TEST_F(SummaryJourney, DeleteByKeyboardRemovesADvrTrigger) {
  openSummary();
  const int before = driver::rowCount(grid());
  driver::selectRow(grid(), summaryRow("00040 - Water leak detected", "001.01.007.I01"));
  driver::pressMnemonic(grid(), 'D');
  waitFor("one row less", [&] { return driver::rowCount(grid()) == before - 1; });
  EXPECT_THAT(statements(), testing::Contains("exec TA_DeleteTrigger 2"));
  EXPECT_THAT(audit(), ElementsAre("Delete TriggerAction 2 Trigger Event 40 1186"));
}

TEST_F(SummaryJourney, WithoutPermissionATextIsShownAndNoWindow) {
  host.ui().run([&] { host.session().settings().permitted = false; });
  clickButton(GetDlgItem(host.window(), IDM_TRIGGER_ACTIONS));
  EXPECT_EQ(driver::answerBox().text, host::resourceText(3575));
  EXPECT_EQ(driver::findForm("frmTASummary"), nullptr);
}

TEST_F(SummaryJourney, RaisedTwiceItIsStillOneWindow) {
  const HWND first = openSummary();
  EXPECT_EQ(openSummary(), first);
}

TEST_F(SummaryJourney, HelpShowsTheHostsPage) {
  clickButton(control(openSummary(), "cmdHelp"));
  waitFor("help page", [] { return helpText().starts_with("Trigger actions"); });
}

TEST_F(SummaryJourney, CloseClosesItAndItCanBeOpenedAgain) {
  const HWND summary = openSummary();
  clickButton(control(summary, "cmdClose"));
  driver::waitUntilClosed(summary);
  EXPECT_NE(openSummary(), nullptr);
}

}  // namespace
}  // namespace pelorin::test
