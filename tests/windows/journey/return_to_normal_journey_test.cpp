// Alarms with their acknowledging triggers, through the real windows.
#include <algorithm>

#include "site/site_database.h"
#include "tests/windows/journey/journey.h"

namespace pelorin::test {
namespace {

using driver::chooseText;
using driver::clickButton;
using driver::control;
using driver::waitFor;

class ReturnToNormalJourney : public Journey {
 protected:
  void checkExternalEvents(HWND editor, const std::vector<std::string>& numbers) {
    constexpr int externalEvents = 5;
    driver::tickRow(control(editor, "lstEventFilters"), externalEvents);
    const HWND events = control(editor, "lvwEvents");
    waitFor("events", [&] { return driver::rowCount(events) > 0; });
    for (const std::string& number : numbers) {
      driver::clickCheck(events, driver::findRow(events, 1, number));
    }
  }
  // Address, event and kind of action of all CCTV triggers at those doors.
  std::vector<std::string> storedAt(const std::vector<std::string>& addresses) {
    RecordSet row =
        SiteDatabase::open(host.file())
            .connect()
            ->open(
                "select CCTV_TriggerAction.*, CCTV_Switchers.[name] as SwitcherName from "
                "CCTV_TriggerAction "
                " inner join CCTV_Switchers on CCTV_Switchers.SwitcherId = "
                "CCTV_TriggerAction.SwitcherId "
                "order by t_Address, T_EventID");
    std::vector<std::string> found;
    while (row.next()) {
      const std::string address = row.text("T_Address");
      if (std::find(addresses.begin(), addresses.end(), address) == addresses.end()) continue;
      found.push_back(address + " " + row.text("T_EventID") + " " + row.text("A_type"));
    }
    return found;
  }
};

TEST_F(ReturnToNormalJourney, EachAlarmAtEachDoorGetsItsAcknowledgingTrigger) {
  const std::vector<std::string> doors = {"001.01.001.D03", "001.01.001.D04"};
  ASSERT_THAT(storedAt(doors), testing::IsEmpty());
  const HWND editor = openEditor();
  checkExternalEvents(editor, {"05001", "05002"});
  addDoors(editor, {"Visitor gate", "Post room"});
  driver::chooseTab(control(editor, "SSTab1"), 1);
  chooseText(control(editor, "cmbCCTVActions"), "Raise switcher alarm");
  driver::typeText(control(editor, "txtCCTVAlarm"), "7");
  clickButton(control(editor, "chkCCTVAutoRTNTriggers"));
  waitFor("tick", [&] { return driver::isChecked(control(editor, "chkCCTVAutoRTNTriggers")); });
  const int before = driver::rowCount(grid());
  clickButton(control(editor, "cmdOK"));
  driver::waitUntilClosed(editor);
  EXPECT_THAT(storedAt(doors),
              testing::ElementsAre("001.01.001.D03 5001 2", "001.01.001.D03 5002 2",
                                   "001.01.001.D03 5101 3", "001.01.001.D03 5102 3",
                                   "001.01.001.D04 5001 2", "001.01.001.D04 5002 2",
                                   "001.01.001.D04 5101 3", "001.01.001.D04 5102 3"));
  EXPECT_EQ(driver::rowCount(grid()), before + 8);
  // The acknowledging ones are no operator's act of their own.
  EXPECT_EQ(audit().size(), 4U);
}

}  // namespace
}  // namespace pelorin::test
