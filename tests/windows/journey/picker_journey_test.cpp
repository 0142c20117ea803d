// Choosing locations in the real windows.
#include "tests/windows/journey/journey.h"

namespace pelorin::test {
namespace {

using driver::clickButton;
using driver::control;
using driver::textOf;
using driver::waitFor;

class PickerJourney : public Journey {
 protected:
  HWND openOnOneLocation() {
    editor = openEditorOn("00002 - Door open too long", "001.01.001.D01");
    return openPicker(editor, "cmdSingleLocation");
  }
  HWND openOnManyLocations() {
    editor = openEditor();
    return openPicker(editor, "cmdAddLocation");
  }
  void waitForStatus(HWND picker, const std::string& text) {
    const HWND status = control(picker, "lblLocation");
    waitFor(text, [&] { return textOf(status) == text; });
  }

  HWND editor = nullptr;
};

TEST_F(PickerJourney, OneLocationIsTakenOverByOk) {
  const HWND picker = openOnOneLocation();
  EXPECT_EQ(textOf(control(picker, "Label1")), "Single-click to select location");
  const HWND tree = control(picker, "tvTree");
  driver::clickNode(tree, lobbyDoor(tree, "Post room"));
  waitForStatus(picker, "001.01.001.D04 - Post room");
  clickButton(control(picker, "cmdMain(0)"));
  driver::waitUntilClosed(picker);
  EXPECT_EQ(textOf(control(editor, "txtLocation")), "001.01.001.D04 - Post room");
}

TEST_F(PickerJourney, CancelClearsTheLocation) {
  const HWND picker = openOnOneLocation();
  EXPECT_EQ(textOf(control(picker, "cmdMain(1)")), "Cancel");
  clickButton(control(picker, "cmdMain(1)"));
  driver::waitUntilClosed(picker);
  EXPECT_EQ(textOf(control(editor, "txtLocation")), "");
}

TEST_F(PickerJourney, AFolderCannotBeChosen) {
  const HWND picker = openOnOneLocation();
  const HWND tree = control(picker, "tvTree");
  const HTREEITEM door = lobbyDoor(tree, "Post room");
  driver::clickNode(tree, door);
  waitForStatus(picker, "001.01.001.D04 - Post room");
  driver::clickNode(tree, driver::childrenOf(tree, nullptr).at(0));
  waitForStatus(picker, "<None>");
  EXPECT_FALSE(IsWindowEnabled(control(picker, "cmdMain(0)")));
}

TEST_F(PickerJourney, ADoubleClickAddsALocationOnce) {
  const HWND picker = openOnManyLocations();
  EXPECT_FALSE(driver::isShown(control(picker, "cmdMain(0)")));
  const HWND tree = control(picker, "tvTree");
  const HWND locations = control(editor, "lvwLocation");
  driver::doubleClickNode(tree, lobbyDoor(tree, "Post room"));
  waitForStatus(picker, "001.01.001.D04 - Post room added");
  driver::doubleClickNode(tree, lobbyDoor(tree, "Post room"));
  waitForStatus(picker, "001.01.001.D04 - Post room");
  EXPECT_EQ(driver::rowCount(locations), 1);
}

TEST_F(PickerJourney, EscapeClosesItAndKeepsTheList) {
  const HWND picker = openOnManyLocations();
  const HWND tree = control(picker, "tvTree");
  driver::doubleClickNode(tree, lobbyDoor(tree, "Post room"));
  waitForStatus(picker, "001.01.001.D04 - Post room added");
  driver::pressKey(tree, VK_ESCAPE);
  driver::waitUntilClosed(picker);
  EXPECT_EQ(driver::rowCount(control(editor, "lvwLocation")), 1);
}

TEST_F(PickerJourney, ALocationIsTakenOutOfTheListByDelete) {
  const HWND adding = openEditor();
  addDoors(adding, {"Post room", "Visitor gate"});
  const HWND locations = control(adding, "lvwLocation");
  driver::selectRow(locations, 0);
  clickButton(control(adding, "cmdDeleteLocation"));
  waitFor("one location", [&] { return driver::rowCount(locations) == 1; });
  EXPECT_EQ(driver::cell(locations, 0, 0), "001.01.001.D03 - Visitor gate");
}

TEST_F(PickerJourney, WithoutNewerHardwareItsBranchIsAbsent) {
  host.ui().run([&] { host.session().settings().newerHardware = false; });
  const HWND tree = control(openOnManyLocations(), "tvTree");
  for (const HTREEITEM node : driver::childrenOf(tree, driver::childrenOf(tree, nullptr).at(0))) {
    EXPECT_EQ(driver::nodeText(tree, node).find("Zorn"), std::string::npos);
  }
}

}  // namespace
}  // namespace pelorin::test
