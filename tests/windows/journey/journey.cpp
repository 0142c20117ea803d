#include "tests/windows/journey/journey.h"

#include "host/window/resource.h"
#include "site/engine.h"
#include "site/site_database.h"

namespace pelorin::test {

using driver::control;
using driver::waitFor;

HWND Journey::openSummary() {
  driver::clickButton(GetDlgItem(host.window(), IDM_TRIGGER_ACTIONS));
  return driver::waitForForm("frmTASummary");
}

HWND Journey::openEditor() {
  driver::clickButton(control(openSummary(), "cmdAddEdit(0)"));
  return driver::waitForForm("frmTriggerAction");
}

int Journey::summaryRow(const std::string& triggerText, const std::string& location) const {
  const std::vector<driver::Row> rows = driver::rowsOf(grid());
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (rows[row].at(0) == triggerText && rows[row].at(1) == location) return static_cast<int>(row);
  }
  return -1;
}

HWND Journey::openEditorOn(const std::string& triggerText, const std::string& location) {
  const HWND summary = openSummary();
  const int row = summaryRow(triggerText, location);
  if (row < 0) throw driver::DriverError("not in the summary: " + triggerText + " " + location);
  driver::selectRow(grid(), row);
  driver::clickButton(control(summary, "cmdAddEdit(1)"));
  return driver::waitForForm("frmTriggerAction");
}

HWND Journey::openPicker(HWND editor, const std::string& button) {
  driver::clickButton(control(editor, button));
  return driver::waitForForm("FLocation");
}

std::string Journey::helpText() {
  const HWND help = driver::findTopLevel(
      [](HWND window) { return driver::classOf(window) == L"PelorinHostHelp"; });
  const HWND page =
      driver::findChild(help, [](HWND child) { return driver::classOf(child) == L"Edit"; });
  return page == nullptr ? std::string() : driver::textOf(page);
}

void Journey::checkEvents(HWND editor, const std::vector<std::string>& numbers) {
  const HWND events = control(editor, "lvwEvents");
  driver::tickRow(control(editor, "lstEventFilters"), 0);
  waitFor("events", [&] { return driver::rowCount(events) > 0; });
  for (const std::string& number : numbers) {
    driver::clickCheck(events, driver::findRow(events, 1, number));
  }
}

HTREEITEM Journey::lobbyDoor(HWND tree, const std::string& caption) {
  return driver::openPath(tree,
                          {" Hardware", " Lumet Configuration (HEADOFFICE)", "VOLLO (HEADOFFICE)",
                           "Network port 1", "Lobby", "Doors", caption});
}

void Journey::addDoors(HWND editor, const std::vector<std::string>& captions) {
  const HWND picker = openPicker(editor, "cmdAddLocation");
  const HWND tree = control(picker, "tvTree");
  const HWND locations = control(editor, "lvwLocation");
  for (const std::string& caption : captions) {
    const int before = driver::rowCount(locations);
    driver::doubleClickNode(tree, lobbyDoor(tree, caption));
    waitFor("location", [&] { return driver::rowCount(locations) == before + 1; });
  }
  driver::clickButton(control(picker, "cmdMain(1)"));
  driver::waitUntilClosed(picker);
}

std::vector<std::string> Journey::statements() {
  return host.ui().run([&] {
    std::vector<std::string> texts;
    for (const auto& statement : host.session().statements().statements()) {
      texts.push_back(statement.text);
    }
    return texts;
  });
}

std::vector<std::string> Journey::audit() {
  return host.ui().run([&] {
    std::vector<std::string> lines;
    for (const AuditRecord& record : host.session().data().audit().records()) {
      lines.push_back(record.operation + " " + record.objectKind + " " +
                      std::to_string(record.objectId) + " " + record.description + " " +
                      std::to_string(record.eventCode));
    }
    return lines;
  });
}

std::string Journey::stored(const std::string& sql, const std::string& column) {
  RecordSet rows = SiteDatabase::open(host.file()).connect()->open(sql);
  return rows.next() ? rows.text(column) : std::string();
}

void Journey::changeSite(const std::string& sql) {
  site::Engine::open(host.file(), site::Engine::Mode::Open)->script(sql);
}

}  // namespace pelorin::test
