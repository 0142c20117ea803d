// What the journeys have in common: the host, and the way to each window.
#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "driver/find_window.h"
#include "driver/operate.h"
#include "driver/report_list.h"
#include "driver/tree.h"
#include "driver/waiting.h"
#include "tests/windows/journey/host_on_thread.h"

namespace pelorin::test {

class Journey : public testing::Test {
 protected:
  // The windows by the way that an operator takes.
  HWND openSummary();
  HWND openEditor();                                 // to add
  HWND openEditorOn(const std::string& triggerText,  // to change the row with these cells
                    const std::string& location);
  HWND openPicker(HWND editor, const std::string& button);

  HWND grid() const { return driver::control(driver::findForm("frmTASummary"), "MSFlexGrid1"); }
  // The row of the summary with these first two cells; -1 when there is none.
  int summaryRow(const std::string& triggerText, const std::string& location) const;

  // The page that the host's help shows; empty when it shows none.
  static std::string helpText();

  // Ticks the first category and the events with these numbers.
  void checkEvents(HWND editor, const std::vector<std::string>& numbers);
  // Adds doors of the lobby to the editor's list.
  void addDoors(HWND editor, const std::vector<std::string>& captions);
  HTREEITEM lobbyDoor(HWND tree, const std::string& caption);

  // All that was sent, and the audit log as "action kind id description code".
  std::vector<std::string> statements();
  std::vector<std::string> audit();
  // The values of a row, read from the database file; empty when there is none.
  std::string stored(const std::string& sql, const std::string& column);

  // Behind the back of everybody, as another program would.
  void changeSite(const std::string& sql);

  HostOnThread host;
};

}  // namespace pelorin::test
