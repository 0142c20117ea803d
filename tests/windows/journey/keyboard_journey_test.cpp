// The typical request without a mouse: every key goes to the control that has the focus.
#include "host/play/outcome.h"
#include "host/play/typical_request.h"
#include "tests/windows/journey/journey.h"

namespace pelorin::test {
namespace {

using driver::control;
using driver::waitFor;

class KeyboardJourney : public Journey {
 protected:
  HWND focus() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(host.window(), nullptr), &info);
    return info.hwndFocus;
  }
  void press(WORD key) { driver::pressKey(focus(), key); }
  void tabTo(HWND form, const std::string& name) {
    const HWND wanted = control(form, name);
    waitFor("focus in " + driver::designName(form),
            [&] { return IsChild(form, focus()) != FALSE; });
    constexpr int mostControls = 60;
    for (int step = 0; step < mostControls && focus() != wanted; ++step) {
      const HWND before = focus();
      press(VK_TAB);
      waitFor("focus to leave " + driver::designName(before), [&] { return focus() != before; });
    }
    ASSERT_EQ(driver::designName(focus()), name);
  }
  HWND openAddingEditor() {
    const HWND summary = openSummary();
    tabTo(summary, "cmdAddEdit(0)");
    press(VK_SPACE);
    return driver::waitForForm("frmTriggerAction");
  }
  void tickFirstEvents(HWND editor) {
    const HWND events = control(editor, "lvwEvents");
    tabTo(editor, "lstEventFilters");
    press(VK_SPACE);
    waitFor("events", [&] { return driver::rowCount(events) > 0; });
    tabTo(editor, "lvwEvents");
    press(VK_HOME);
    press(VK_SPACE);
    press(VK_DOWN);
    press(VK_SPACE);
    waitFor("two ticks",
            [&] { return driver::isRowChecked(events, 0) && driver::isRowChecked(events, 1); });
  }
  static std::string caretText(HWND tree) {
    const HTREEITEM node = driver::selectedNode(tree);
    return node == nullptr ? "" : driver::nodeText(tree, node);
  }
  void walkTo(HWND tree, const std::string& caption) {
    constexpr int mostNodes = 40;
    for (int step = 0; step < mostNodes && caretText(tree) != caption; ++step) {
      const std::string before = caretText(tree);
      press(VK_DOWN);
      waitFor("node below " + before, [&] { return caretText(tree) != before; });
    }
    ASSERT_EQ(caretText(tree), caption);
  }
  void addTwoDoors(HWND editor) {
    const HWND locations = control(editor, "lvwLocation");
    tabTo(editor, "cmdAddLocation");
    press(VK_SPACE);
    const HWND picker = driver::waitForForm("FLocation");
    const HWND tree = control(picker, "tvTree");
    tabTo(picker, "tvTree");
    for (const char* folder : {" Lumet Configuration (HEADOFFICE)", "VOLLO (HEADOFFICE)",
                               "Network port 1", "Lobby", "Doors"}) {
      walkTo(tree, folder);
      press(VK_RIGHT);
    }
    walkTo(tree, "Revolving door");
    press(VK_RETURN);
    waitFor("first door", [&] { return driver::rowCount(locations) == 1; });
    walkTo(tree, "Visitor gate");
    press(VK_SPACE);
    waitFor("second door", [&] { return driver::rowCount(locations) == 2; });
    press(VK_ESCAPE);
    driver::waitUntilClosed(picker);
  }
  void chooseByKeys(HWND editor, const std::string& combo, const std::string& text) {
    tabTo(editor, combo);
    driver::chooseText(control(editor, combo), text);
  }
};

TEST_F(KeyboardJourney, TheTypicalRequestNeedsNoMouse) {
  host::Stage stage(host.ui(), host.session(), host.window(), testing::TempDir(), "-keyboard",
                    [](const std::string&) {});
  const host::Standing before = host::standing(stage);
  const HWND editor = openAddingEditor();
  host::SummaryRows rows{.before = driver::rowsOf(grid()), .after = {}};
  tickFirstEvents(editor);
  addTwoDoors(editor);
  tabTo(editor, "SSTab1");
  press(VK_RIGHT);
  chooseByKeys(editor, "cmbCCTVCameras", "Revolving door");
  chooseByKeys(editor, "cmbCCTVMonitors", "2");
  press(VK_RETURN);
  driver::waitUntilClosed(editor);
  rows.after = driver::rowsOf(grid());
  EXPECT_THAT(host::tellOutcome(stage, before, rows), testing::IsEmpty());
}

}  // namespace
}  // namespace pelorin::test
