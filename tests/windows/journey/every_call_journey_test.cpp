// Every call that a main journey makes of the host fails once, one at a time, until the journey
// ends without a fault: each is reported once, what is written is right or nothing, and the windows
// can be operated on.
#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <iostream>
#include <map>
#include <utility>

#include "host/window/resource.h"
#include "tests/windows/com/box_watcher.h"
#include "tests/windows/journey/kept_triggers.h"
#include "tests/windows/journey/services_journey.h"
#include "win32/text/utf16.h"

namespace pelorin::test {
namespace {

using driver::control;
using testing::AnyOf;
using testing::IsEmpty;

// The handler has come back, with its boxes answered, when these come back.
void press(HWND button) {
  driver::waitFor("button", [&] { return IsWindowEnabled(button) && driver::isShown(button); });
  SendMessageW(button, BM_CLICK, 0, 0);
}

void tickFirst(HWND listBox) {
  RECT place{};
  SendMessageW(listBox, LB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&place));
  const POINT middle = driver::middleOf(place);
  SendMessageW(listBox, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(middle.x, middle.y));
  SendMessageW(listBox, WM_LBUTTONUP, 0, MAKELPARAM(middle.x, middle.y));
}

// A row that a fault has kept out is not chosen.
void choose(HWND combo, const std::string& text) {
  const std::vector<std::string> rows = driver::comboRows(combo);
  const auto wanted = std::find(rows.begin(), rows.end(), text) - rows.begin();
  if (wanted == std::ssize(rows)) return;
  SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(wanted), 0);
  SendMessageW(GetParent(combo), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(combo), CBN_SELCHANGE),
               reinterpret_cast<LPARAM>(combo));
}

class EveryCallJourney : public ServicesJourney {
 protected:
  struct Trace {
    std::string failed;  // the member
    std::vector<std::string> boxes;
    std::vector<std::string> logged;
    std::vector<std::string> written;
    std::size_t lost = 0;
    std::vector<std::string> audits;
  };
  using Act = std::function<void()>;

  // `open` is the way to where the calls begin to count. The number of faults that were tried.
  int failEveryCall(const Act& open, const Act& act) {
    const Trace whole = play(open, act, 0);
    EXPECT_THAT(whole.boxes, IsEmpty());
    EXPECT_EQ(whole.audits.empty(), whole.written.empty() && whole.lost == 0);
    for (int n = 1;; ++n) {
      SCOPED_TRACE("call " + std::to_string(n));
      const Trace trace = play(open, act, n);
      if (trace.failed.empty()) {
        EXPECT_EQ(trace.written, whole.written);
        return n - 1;
      }
      SCOPED_TRACE(trace.failed);
      ++members_[trace.failed];
      expectOneReport(trace);
      expectRightOrNothing(trace, whole);
      if (HasFailure()) return n;
    }
  }
  void tell(const std::string& journey, int faults) const {
    std::cout << "  " << journey << ": " << faults << " faults:";
    for (const auto& [member, count] : members_) std::cout << ' ' << count << ' ' << member;
    std::cout << '\n';
    EXPECT_GT(faults, 0);
  }

  void pressAdd() { press(control(openSummary(), "cmdAddEdit(0)")); }
  void chooseTrigger(const std::string& triggerText, const std::string& location) {
    openSummary();
    driver::selectRow(grid(), summaryRow(triggerText, location));
  }
  void pressInSummary(const char* button) {
    press(control(driver::findForm("frmTASummary"), button));
  }
  void fillEditor(const Act& chooseAction) {
    const HWND editor = driver::findForm("frmTriggerAction");
    if (editor == nullptr) return;
    chooseAction();
    press(control(editor, "cmdOK"));
  }
  void checkFirstEvent() {
    const HWND editor = driver::findForm("frmTriggerAction");
    const HWND events = control(editor, "lvwEvents");
    tickFirst(control(editor, "lstEventFilters"));
    if (const int row = driver::findRow(events, 1, "00003"); row >= 0)
      driver::clickCheck(events, row);
  }
  void chooseInEditor(const char* combo, const std::string& text) {
    const HWND editor = driver::findForm("frmTriggerAction");
    driver::chooseTab(control(editor, "SSTab1"), 1);
    choose(control(editor, combo), text);
  }
  void pickPostRoom() {
    const HWND editor = driver::findForm("frmTriggerAction");
    if (editor == nullptr) return;
    press(control(editor, "cmdAddLocation"));
    const HWND picker = driver::findForm("FLocation");
    if (picker == nullptr) return;
    const HWND tree = control(picker, "tvTree");
    driver::doubleClickNode(tree, lobbyDoor(tree, "Post room"));
    const HWND status = control(picker, "lblLocation");
    driver::waitFor("post room", [&] { return driver::textOf(status).ends_with(" added"); });
    press(control(picker, "cmdMain(1)"));
  }

 private:
  Trace play(const Act& open, const Act& act, int failingCall) {
    BoxWatcher boxes;
    const std::size_t logged = log.newLines().size();
    const std::size_t audited = audit().size();
    open();
    EXPECT_THAT(boxes.texts(), IsEmpty());
    host.ui().run([&] { services->failCall(failingCall); });
    act();
    Trace trace;
    host.ui().run([&] {
      trace.failed = toUtf8(services->failed());
      services->failCall(0);
    });
    closeWindows();
    trace.boxes = boxes.texts();
    const std::vector<std::string> lines = log.newLines();
    trace.logged.assign(lines.begin() + static_cast<std::ptrdiff_t>(logged), lines.end());
    const std::vector<std::string> records = audit();
    trace.audits.assign(records.begin() + static_cast<std::ptrdiff_t>(audited), records.end());
    trace.written = triggers_.written();
    trace.lost = triggers_.lost();
    triggers_.restore();
    return trace;
  }
  // By their own buttons, which work.
  static void closeWindows() {
    for (const auto& [form, button] :
         {std::pair("FLocation", "cmdMain(1)"), std::pair("frmTriggerAction", "cmdCancel"),
          std::pair("frmTASummary", "cmdClose")}) {
      const HWND window = driver::findForm(form);
      if (window == nullptr) continue;
      press(control(window, button));
      driver::waitUntilClosed(window);
    }
  }
  static bool isReport(const std::string& box) { return box.find(": Line: ") != std::string::npos; }
  // Others may follow only of a list that stayed empty because of it.
  static void expectOneReport(const Trace& trace) {
    std::vector<std::string> reports;
    int failing = 0;
    for (const std::string& box : trace.boxes) {
      if (!isReport(box)) continue;
      reports.push_back(box);
      const bool ofTheCall = box.ends_with(" :The host is busy");
      failing += ofTheCall ? 1 : 0;
      EXPECT_TRUE(ofTheCall || box.find(" :Nothing is selected: ") != std::string::npos) << box;
    }
    EXPECT_EQ(failing, 1);
    ASSERT_EQ(trace.logged.size(), reports.size());
    for (std::size_t i = 0; i < reports.size(); ++i) {
      EXPECT_TRUE(trace.logged[i].ends_with(": " + reports[i])) << trace.logged[i];
    }
  }
  // What is written has its audit record, but for the record that was the failing call itself.
  static void expectRightOrNothing(const Trace& trace, const Trace& whole) {
    const bool asWanted = trace.written == whole.written && trace.lost == whole.lost;
    EXPECT_TRUE(asWanted || (trace.written.empty() && trace.lost == 0))
        << testing::PrintToString(trace.written);
    const bool recorded = asWanted && trace.failed != "LogEvent";
    std::vector<std::string> audits = recorded ? whole.audits : std::vector<std::string>();
    // The record's first word is a text of the host, and empty where that could not be had.
    const bool wordless = trace.failed == "GetResourceString" && trace.audits != audits;
    if (wordless) {
      for (std::string& audit : audits) audit.erase(0, audit.find(' '));
    }
    EXPECT_EQ(trace.audits, audits);
  }

  KeptTriggers triggers_{host.file()};
  std::map<std::string, int> members_;
};

TEST_F(EveryCallJourney, OpeningTheSummary) {
  const HWND button = GetDlgItem(host.window(), IDM_TRIGGER_ACTIONS);
  tell("summary", failEveryCall([] {}, [&] { press(button); }));
}

TEST_F(EveryCallJourney, PickingALocation) {
  tell("picker", failEveryCall([this] { pressAdd(); }, [this] { pickPostRoom(); }));
}

TEST_F(EveryCallJourney, AddingACctvTrigger) {
  const int faults = failEveryCall([this] { openSummary(); },
                                   [this] {
                                     pressInSummary("cmdAddEdit(0)");
                                     fillEditor([this] {
                                       checkFirstEvent();
                                       pickPostRoom();
                                     });
                                   });
  tell("add CCTV", faults);
}

TEST_F(EveryCallJourney, AddingARecordersTrigger) {
  const int faults = failEveryCall([this] { openSummary(); },
                                   [this] {
                                     pressInSummary("cmdAddEdit(0)");
                                     fillEditor([this] {
                                       checkFirstEvent();
                                       pickPostRoom();
                                       chooseInEditor("cmbActionDeviceClass", "DVR / NVR");
                                     });
                                   });
  tell("add DVR", faults);
}

TEST_F(EveryCallJourney, ChangingACctvTrigger) {
  const int faults =
      failEveryCall([this] { chooseTrigger("00002 - Door open too long", "001.01.001.D01"); },
                    [this] {
                      pressInSummary("cmdAddEdit(1)");
                      fillEditor([this] { chooseInEditor("cmbCCTVMonitors", "5"); });
                    });
  tell("edit CCTV", faults);
}

TEST_F(EveryCallJourney, ChangingARecordersTrigger) {
  const int faults = failEveryCall(
      [this] { chooseTrigger("00036 - Panic button (reception desk)", "001.01.001.I01"); },
      [this] {
        pressInSummary("cmdAddEdit(1)");
        fillEditor([this] { chooseInEditor("cmbDVRRecordRate", "60.0 ips"); });
      });
  tell("edit DVR", faults);
}

TEST_F(EveryCallJourney, DeletingTriggers) {
  const auto deleteIt = [this] { pressInSummary("cmdDelete"); };
  int faults = failEveryCall(
      [this] { chooseTrigger("00001 - Door broken open!", "001.01.007.D01"); }, deleteIt);
  faults += failEveryCall(
      [this] { chooseTrigger("00040 - Water leak detected", "001.01.007.I01"); }, deleteIt);
  tell("delete", faults);
}

}  // namespace
}  // namespace pelorin::test
