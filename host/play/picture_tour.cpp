#include "host/play/picture_tour.h"

#include <string>
#include <vector>

#include "driver/find_window.h"
#include "driver/operate.h"
#include "driver/report_list.h"
#include "driver/tree.h"
#include "driver/waiting.h"

namespace pelorin::host {

namespace {

constexpr const char* chosenDoor[] = {" Hardware",
                                      " Lumet Configuration (HEADOFFICE)",
                                      "VOLLO (HEADOFFICE)",
                                      "Network port 1",
                                      "Lobby",
                                      "Doors",
                                      "Post room"};
constexpr int actionTab = 1;

struct Trigger {
  const char* event;
  const char* location;
};
constexpr Trigger cctvTrigger{.event = "00002 - Door open too long", .location = "001.01.001.D01"};
constexpr Trigger dvrTrigger{.event = "00036 - Panic button (reception desk)",
                             .location = "001.01.001.I01"};

void close(HWND form, const std::string& button) {
  driver::clickButton(driver::control(form, button));
  driver::waitUntilClosed(form);
}

int rowOf(HWND grid, const Trigger& trigger) {
  const std::vector<driver::Row> rows = driver::rowsOf(grid);
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (rows[row].at(0) == trigger.event && rows[row].at(1) == trigger.location) {
      return static_cast<int>(row);
    }
  }
  throw driver::DriverError(std::string("the summary has no trigger ") + trigger.event);
}

HWND openEditorOn(HWND summary, const Trigger& trigger) {
  const HWND grid = driver::control(summary, "MSFlexGrid1");
  driver::selectRow(grid, rowOf(grid, trigger));
  driver::clickButton(driver::control(summary, "cmdAddEdit(1)"));
  return driver::waitForForm("frmTriggerAction");
}

void pictureBothTabs(const Stage& stage, HWND editor, const std::string& name) {
  stage.picture(editor, name + "-trigger");
  driver::chooseTab(driver::control(editor, "SSTab1"), actionTab);
  stage.picture(editor, name + "-action");
}

void pictureAddedDvrAction(const Stage& stage, HWND summary) {
  driver::clickButton(driver::control(summary, "cmdAddEdit(0)"));
  const HWND editor = driver::waitForForm("frmTriggerAction");
  driver::chooseTab(driver::control(editor, "SSTab1"), actionTab);
  driver::chooseText(driver::control(editor, "cmbActionDeviceClass"), "DVR / NVR");
  driver::chooseText(driver::control(editor, "cmbDVRUnit"), "Head office recorder");
  stage.picture(editor, "editor-dvr");
  close(editor, "cmdCancel");
}

void resize(HWND window, int width, int height) {
  SetWindowPos(window, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void pictureSizes(const Stage& stage, HWND picker) {
  RECT area{};
  GetWindowRect(picker, &area);
  const int width = area.right - area.left;
  const int height = area.bottom - area.top;
  resize(picker, width * 3 / 2, height * 5 / 4);
  stage.picture(picker, "picker-large");
  // The window itself knows how small it may become.
  resize(picker, 1, 1);
  stage.picture(picker, "picker-small");
}

void picturePicker(const Stage& stage, HWND editor) {
  driver::clickButton(driver::control(editor, "cmdSingleLocation"));
  const HWND picker = driver::waitForForm("FLocation");
  const HWND tree = driver::control(picker, "tvTree");
  driver::clickNode(tree, driver::openPath(tree, {std::begin(chosenDoor), std::end(chosenDoor)}));
  const HWND status = driver::control(picker, "lblLocation");
  driver::waitFor("chosen location", [&] { return driver::textOf(status).ends_with("Post room"); });
  stage.picture(picker, "picker-single");
  pictureSizes(stage, picker);
  close(picker, "cmdMain(1)");
}

void pictureEditedCctvTrigger(const Stage& stage, HWND summary) {
  const HWND editor = openEditorOn(summary, cctvTrigger);
  pictureBothTabs(stage, editor, "edit-cctv");
  driver::chooseTab(driver::control(editor, "SSTab1"), 0);
  picturePicker(stage, editor);
  close(editor, "cmdCancel");
}

void pictureEditedDvrTrigger(const Stage& stage, HWND summary) {
  const HWND editor = openEditorOn(summary, dvrTrigger);
  pictureBothTabs(stage, editor, "edit-dvr");
  close(editor, "cmdCancel");
}

}  // namespace

void makePictureTour(Stage& stage) {
  const HWND summary = driver::waitForForm("frmTASummary");
  pictureAddedDvrAction(stage, summary);
  pictureEditedCctvTrigger(stage, summary);
  pictureEditedDvrTrigger(stage, summary);
  stage.step("pictures of every window made");
}

}  // namespace pelorin::host
