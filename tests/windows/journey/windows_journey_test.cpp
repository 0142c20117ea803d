// The three windows together: whose they are, how small they get, what stays usable, and how they
// end.
#include <optional>

#include "host/core/options.h"
#include "host/session/host_session.h"
#include "tests/windows/journey/component_log.h"
#include "tests/windows/journey/journey.h"
#include "win32/text/windows_api.h"

namespace pelorin::test {
namespace {

using driver::clickButton;
using driver::control;
using driver::textOf;
using driver::waitFor;

LONG pixelsOf(HWND window, int twips) {
  const HDC canvas = GetDC(window);
  const int dpi = GetDeviceCaps(canvas, LOGPIXELSX);
  ReleaseDC(window, canvas);
  return MulDiv(twips, dpi, 1440);
}

class WindowsJourney : public Journey {
 protected:
  HWND openPickerOnOneLocation() {
    editor = openEditorOn("00002 - Door open too long", "001.01.001.D01");
    return openPicker(editor, "cmdSingleLocation");
  }
  LRESULT ask(UINT message, WPARAM w = 0, LPARAM l = 0) const {
    return SendMessageW(grid(), message, w, l);
  }
  static LONG style(HWND window) { return GetWindowLongW(window, GWL_STYLE); }

  HWND editor = nullptr;
};

TEST_F(WindowsJourney, ThePickerBelongsToTheEditorAndTheEditorToTheSummary) {
  const HWND picker = openPickerOnOneLocation();
  const HWND summary = driver::findForm("frmTASummary");
  EXPECT_EQ(GetWindow(picker, GW_OWNER), editor);
  EXPECT_EQ(GetWindow(editor, GW_OWNER), summary);
  EXPECT_EQ(GetWindow(summary, GW_OWNER), host.window());
  EXPECT_TRUE(IsWindowEnabled(editor));
  EXPECT_TRUE(IsWindowEnabled(summary));
}

TEST_F(WindowsJourney, TheTitleBarsCloseOfThePickerKeepsTheLocation) {
  const HWND picker = openPickerOnOneLocation();
  EXPECT_EQ(textOf(picker), "Select Locations");
  constexpr LONG titleBar = WS_CAPTION | WS_SYSMENU;
  EXPECT_EQ(style(picker) & titleBar, titleBar);
  const HWND tree = control(picker, "tvTree");
  driver::clickNode(tree, lobbyDoor(tree, "Post room"));
  PostMessageW(picker, WM_SYSCOMMAND, SC_CLOSE, 0);
  driver::waitUntilClosed(picker);
  EXPECT_EQ(textOf(control(editor, "txtLocation")), "001.01.001.D01");
}

TEST_F(WindowsJourney, ThePickerGetsNoSmallerThanItsSmallestSize) {
  const HWND picker = openPickerOnOneLocation();
  EXPECT_NE(style(picker) & WS_THICKFRAME, 0);
  SetWindowPos(picker, nullptr, 0, 0, 10, 10, SWP_NOMOVE | SWP_NOZORDER);
  RECT area{};
  GetWindowRect(picker, &area);
  EXPECT_EQ(area.right - area.left, pixelsOf(picker, 4000));
  EXPECT_EQ(area.bottom - area.top, pixelsOf(picker, 3000));
}

TEST_F(WindowsJourney, EveryComboOfTheEditorIsAListToChooseFrom) {
  const HWND adding = openEditor();
  for (const char* name :
       {"cmbEvents", "cmbActionDeviceClass", "cmbCCTVSwitchers", "cmbCCTVActions", "cmbCCTVCameras",
        "cmbCCTVPresets", "cmbCCTVMonitors", "cmbDVRUnit", "cmbDVRCamera", "cmbDVRRecordRate",
        "cmbRecordStandard", "cmbDVRCameraPresets", "cmbDVRViewGroups", "cmbCommandSet"}) {
    const HWND combo = control(adding, name);
    EXPECT_EQ(driver::classOf(combo), L"ComboBox") << name;
    constexpr LONG kind = CBS_SIMPLE | CBS_DROPDOWN | CBS_DROPDOWNLIST;
    EXPECT_EQ(style(combo) & kind, CBS_DROPDOWNLIST) << name;
    EXPECT_EQ(style(combo) & CBS_SORT, 0) << name;
    EXPECT_EQ(FindWindowExW(combo, nullptr, L"Edit", nullptr), nullptr) << name;
  }
}

TEST_F(WindowsJourney, TheColumnsOfTheSummaryHaveTheirWidths) {
  openSummary();
  const int twips[] = {3100, 2500, 1800, 800, 3000, 0, 0};
  for (WPARAM column = 0; column < std::size(twips); ++column) {
    EXPECT_EQ(ask(LVM_GETCOLUMNWIDTH, column), pixelsOf(grid(), twips[column])) << column;
  }
}

TEST_F(WindowsJourney, TheListOfTheSummaryCannotBeWrittenIn) {
  openSummary();
  const auto before = driver::rowsOf(grid());
  driver::selectRow(grid(), 0);
  EXPECT_EQ(ask(LVM_EDITLABELW, 0), 0);
  driver::pressKey(grid(), VK_F2);
  driver::typeText(grid(), "x");
  EXPECT_EQ(ask(LVM_GETEDITCONTROL), 0);
  EXPECT_EQ(style(grid()) & LVS_EDITLABELS, 0);
  EXPECT_EQ(driver::rowsOf(grid()), before);
}

TEST_F(WindowsJourney, TheSummaryStaysUsableWhileTheEditorIsOpen) {
  const HWND adding = openEditor();
  addDoors(adding, {"Post room"});
  const HWND summary = driver::findForm("frmTASummary");
  ASSERT_TRUE(IsWindowEnabled(summary));
  const int before = driver::rowCount(grid());
  driver::selectRow(grid(), summaryRow("00001 - Door broken open!", "001.01.007.D01"));
  clickButton(control(summary, "cmdDelete"));
  waitFor("one row less", [&] { return driver::rowCount(grid()) == before - 1; });
  EXPECT_TRUE(driver::isShown(adding));
  EXPECT_TRUE(IsWindowEnabled(adding));
  EXPECT_EQ(driver::rowCount(control(adding, "lvwLocation")), 1);
}

// A second host in this process, with a window of its own; it ends in the order of any host.
class SecondHost {
 public:
  explicit SecondHost(HostOnThread& first) : ui_(first.ui()) {
    ui_.run([&] {
      window_ = CreateWindowExW(0, L"Static", L"Second host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 10,
                                10, 500, 300, nullptr, nullptr, nullptr, nullptr);
      session_.emplace(window_, first.options(), [](std::int16_t) {});
    });
  }
  SecondHost(const SecondHost&) = delete;
  SecondHost& operator=(const SecondHost&) = delete;
  ~SecondHost() {
    letGo();
    closeWindow();
  }

  void raiseForm() {
    ui_.run([&] { session_->raiseForm(); });
  }
  // `Destroy`, then the release of everything.
  void letGo() {
    ui_.run([&] { session_.reset(); });
  }
  void closeWindow() {
    ui_.run([&] {
      if (IsWindow(window_)) DestroyWindow(window_);
    });
  }

 private:
  const driver::UiCalls& ui_;
  HWND window_ = nullptr;
  std::optional<host::HostSession> session_;
};

TEST_F(WindowsJourney, AfterDestroyEveryOpenWindowGoesWithTheHostsWindow) {
  const ComponentLog log;
  SecondHost second(host);
  second.raiseForm();
  const HWND summary = driver::waitForForm("frmTASummary");
  clickButton(control(summary, "cmdAddEdit(0)"));
  const HWND adding = driver::waitForForm("frmTriggerAction");
  const HWND picker = openPicker(adding, "cmdAddLocation");
  second.letGo();
  second.closeWindow();
  for (const HWND window : {summary, adding, picker}) EXPECT_FALSE(IsWindow(window));
  EXPECT_FALSE(driver::findBox());
  EXPECT_THAT(log.newLines(), testing::IsEmpty());
  EXPECT_GT(driver::rowCount(control(openSummary(), "MSFlexGrid1")), 0);
}

}  // namespace
}  // namespace pelorin::test
