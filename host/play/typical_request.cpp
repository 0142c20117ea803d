#include "host/play/typical_request.h"

#include <algorithm>

#include "driver/find_window.h"
#include "driver/operate.h"
#include "driver/tree.h"
#include "driver/waiting.h"
#include "host/core/played_rows.h"
#include "host/window/resource.h"

namespace pelorin::host {

namespace {

constexpr const char* category = "Alarm";
constexpr const char* eventNumbers[] = {"00001", "00002"};
constexpr const char* cameraName = "Revolving door";
constexpr const char* monitorName = "2";

int rowOf(HWND list, int column, const std::string& text) {
  return *driver::waitFor("row " + text, [&]() -> std::optional<int> {
    const int row = driver::findRow(list, column, text);
    return row < 0 ? std::nullopt : std::optional(row);
  });
}

HWND openSummary(Stage& stage) {
  driver::clickButton(GetDlgItem(stage.mainWindow(), IDM_TRIGGER_ACTIONS));
  const HWND summary = driver::waitForForm("frmTASummary");
  stage.step("\"Trigger actions...\" pressed: the summary opens with " +
             std::to_string(driver::rowCount(driver::control(summary, "MSFlexGrid1"))) + " rows");
  return summary;
}

HWND openEditor(Stage& stage, HWND summary) {
  driver::clickButton(driver::control(summary, "cmdAddEdit(0)"));
  const HWND editor = driver::waitForForm("frmTriggerAction");
  stage.step(R"("Add..." pressed: the editor opens, titled ")" + driver::textOf(editor) + "\"");
  return editor;
}

void tickCategory(Stage& stage, HWND editor) {
  const HWND filters = driver::control(editor, "lstEventFilters");
  const std::vector<std::string> rows = driver::listBoxRows(filters);
  const auto found = std::find_if(rows.begin(), rows.end(),
                                  [](const std::string& row) { return row.starts_with(category); });
  if (found == rows.end()) throw driver::DriverError(std::string("no category ") + category);
  driver::tickRow(filters, static_cast<int>(found - rows.begin()));
  const HWND events = driver::control(editor, "lvwEvents");
  driver::waitFor("events", [&] { return driver::rowCount(events) > 0; });
  stage.step("category \"" + *found + "\" ticked: " + std::to_string(driver::rowCount(events)) +
             " events listed");
}

void checkEvents(Stage& stage, HWND editor) {
  const HWND events = driver::control(editor, "lvwEvents");
  for (const char* number : eventNumbers) {
    const int row = rowOf(events, 1, number);
    driver::clickCheck(events, row);
    stage.step("event " + driver::cell(events, row, 1) + " \"" + driver::cell(events, row, 2) +
               "\" checked");
  }
}

HWND openPicker(Stage& stage, HWND editor) {
  driver::clickButton(driver::control(editor, "cmdAddLocation"));
  const HWND picker = driver::waitForForm("FLocation");
  stage.step("\"Add...\" beside the locations pressed: the picker opens");
  return picker;
}

void chooseDoors(Stage& stage, HWND editor, HWND picker) {
  const HWND tree = driver::control(picker, "tvTree");
  const HWND locations = driver::control(editor, "lvwLocation");
  for (const char* door : typical::doors) {
    const int before = driver::rowCount(locations);
    driver::doubleClickNode(
        tree,
        driver::openPath(tree, {" Hardware", " Lumet Configuration (HEADOFFICE)",
                                "VOLLO (HEADOFFICE)", "Network port 1", "Lobby", "Doors", door}));
    driver::waitFor("location in the list",
                    [&] { return driver::rowCount(locations) == before + 1; });
    stage.step("door \"" + std::string(door) +
               "\" double-clicked: " + driver::cell(locations, before, 0) + " is in the list");
  }
}

void closePicker(Stage& stage, HWND picker) {
  stage.picture(picker, "picker");
  driver::clickButton(driver::control(picker, "cmdMain(1)"));
  driver::waitUntilClosed(picker);
  stage.step("picker closed");
}

void chooseAction(Stage& stage, HWND editor) {
  driver::chooseTab(driver::control(editor, "SSTab1"), 1);
  const auto choose = [&](const char* combo, const std::string& text) {
    driver::chooseText(driver::control(editor, combo), text);
    stage.step(std::string(combo) + ": \"" + text + "\" chosen");
  };
  choose("cmbActionDeviceClass", "CCTV");
  choose("cmbCCTVSwitchers", typical::switcherName);
  choose("cmbCCTVMonitors", monitorName);
  choose("cmbCCTVCameras", cameraName);
}

void save(Stage& stage, HWND editor) {
  stage.picture(editor, "editor-action");
  driver::clickButton(driver::control(editor, "cmdOK"));
  driver::waitUntilClosed(editor);
  stage.step("\"OK\" pressed: the editor saves and closes");
}

}  // namespace

SummaryRows playTypicalRequest(Stage& stage) {
  SummaryRows rows;
  const HWND summary = openSummary(stage);
  const HWND grid = driver::control(summary, "MSFlexGrid1");
  rows.before = driver::rowsOf(grid);
  stage.picture(summary, "summary-before");
  const HWND editor = openEditor(stage, summary);
  tickCategory(stage, editor);
  checkEvents(stage, editor);
  const HWND picker = openPicker(stage, editor);
  chooseDoors(stage, editor, picker);
  closePicker(stage, picker);
  stage.picture(editor, "editor");
  chooseAction(stage, editor);
  save(stage, editor);
  rows.after = driver::rowsOf(grid);
  stage.picture(summary, "summary");
  stage.step("the summary shows " + std::to_string(rows.after.size()) + " rows");
  stage.picture(stage.mainWindow(), "host");
  return rows;
}

}  // namespace pelorin::host
