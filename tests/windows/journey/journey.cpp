#include "tests/windows/journey/journey.h"

#include "host/window/resource.h"
#include "site/engine.h"
#include "site/site_database.h"

namespace pelorin::test {

using host::control;
using host::waitFor;

HWND Journey::openSummary() {
  host::clickButton(GetDlgItem(host.window(), IDM_TRIGGER_ACTIONS));
  return host::waitForForm("frmTASummary");
}

HWND Journey::openEditor() {
  host::clickButton(control(openSummary(), "cmdAddEdit(0)"));
  return host::waitForForm("frmTriggerAction");
}

int Journey::summaryRow(const std::string& triggerText, const std::string& location) const {
  const std::vector<host::Row> rows = host::rowsOf(grid());
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (rows[row].at(0) == triggerText && rows[row].at(1) == location) return static_cast<int>(row);
  }
  return -1;
}

HWND Journey::openEditorOn(const std::string& triggerText, const std::string& location) {
  const HWND summary = openSummary();
  const int row = summaryRow(triggerText, location);
  if (row < 0) throw host::DriverError("not in the summary: " + triggerText + " " + location);
  host::selectRow(grid(), row);
  host::clickButton(control(summary, "cmdAddEdit(1)"));
  return host::waitForForm("frmTriggerAction");
}

HWND Journey::openPicker(HWND editor, const std::string& button) {
  host::clickButton(control(editor, button));
  return host::waitForForm("FLocation");
}

void Journey::checkEvents(HWND editor, const std::vector<std::string>& numbers) {
  const HWND events = control(editor, "lvwEvents");
  host::tickRow(control(editor, "lstEventFilters"), 0);
  waitFor("events", [&] { return host::rowCount(events) > 0; });
  for (const std::string& number : numbers) {
    host::clickCheck(events, host::findRow(events, 1, number));
  }
}

HTREEITEM Journey::lobbyDoor(HWND tree, const std::string& caption) {
  return host::openPath(tree, {" Hardware", " Lumet Configuration (HEADOFFICE)",
                               "VOLLO (HEADOFFICE)", "Network port 1", "Lobby", "Doors", caption});
}

void Journey::addDoors(HWND editor, const std::vector<std::string>& captions) {
  const HWND picker = openPicker(editor, "cmdAddLocation");
  const HWND tree = control(picker, "tvTree");
  const HWND locations = control(editor, "lvwLocation");
  for (const std::string& caption : captions) {
    const int before = host::rowCount(locations);
    host::doubleClickNode(tree, lobbyDoor(tree, caption));
    waitFor("location", [&] { return host::rowCount(locations) == before + 1; });
  }
  host::clickButton(control(picker, "cmdMain(1)"));
  host::waitUntilClosed(picker);
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
