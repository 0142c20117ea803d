// Every box that the component shows, with its icon and its buttons.
#include <array>
#include <thread>

#include "host/core/resource_texts.h"
#include "host/session/component.h"
#include "host/window/resource.h"
#include "tests/windows/journey/box_look.h"
#include "tests/windows/journey/journey.h"
#include "win32/text/utf16.h"

namespace pelorin::test {
namespace {

using driver::answerBox;
using driver::clickButton;
using driver::control;
using driver::OpenBox;
using driver::waitFor;
using driver::waitForBox;
using testing::HasSubstr;
using testing::StartsWith;

class BoxJourney : public Journey {
 protected:
  void raise() { clickButton(GetDlgItem(host.window(), IDM_TRIGGER_ACTIONS)); }

  // The next box looks like that; then it is answered.
  std::string expectLook(const char* look) {
    const OpenBox box = waitForBox();
    EXPECT_EQ(boxLook(box.window), look) << box.text;
    EXPECT_EQ(box.title, "Pelorin");
    return answerBox().text;
  }

  void untickAnswering(HWND editor, int button) {
    driver::pressKey(control(editor, "lstEventFilters"), VK_SPACE);
    const OpenBox box = waitForBox();
    EXPECT_EQ(boxLook(box.window), "question: Yes* No");
    EXPECT_THAT(box.text, StartsWith("There are events of this type selected."));
    PostMessageW(box.window, WM_COMMAND, static_cast<WPARAM>(button), 0);
    driver::waitUntilClosed(box.window);
    waitFor("editor to be operated again", [&] { return IsWindowEnabled(editor); });
  }

  static std::string componentFile() {
    std::array<wchar_t, 1024> file{};
    GetModuleFileNameW(GetModuleHandleW(L"Pelorin.dll"), file.data(),
                       static_cast<DWORD>(file.size()));
    return toUtf8(file.data());
  }
};

TEST_F(BoxJourney, AReportIsCritical) {
  changeSite("drop table CCTV_TriggerAction");
  raise();
  EXPECT_THAT(expectLook("critical: OK*"), StartsWith("frmTASummary.LoadCCTVSummaryData: "));
}

TEST_F(BoxJourney, TheTreeThatCouldNotBeBuiltHasABoxWithoutIconAfterItsReport) {
  changeSite("drop table Servers");
  const HWND editor = openEditor();
  clickButton(control(editor, "cmdAddLocation"));
  EXPECT_THAT(expectLook("critical: OK*"), StartsWith("RefreshHardware: Line: "));
  EXPECT_EQ(expectLook("none: OK*"), "error in refreshhardware");
  const HWND picker = driver::waitForForm("FLocation");
  const HWND tree = control(picker, "tvTree");
  const std::vector<HTREEITEM> roots = driver::childrenOf(tree, nullptr);
  ASSERT_EQ(roots.size(), 1U);
  EXPECT_EQ(driver::nodeText(tree, roots.front()), " Hardware");
  clickButton(control(picker, "cmdMain(1)"));
  driver::waitUntilClosed(picker);
}

TEST_F(BoxJourney, ReportsBeyondTheTenthAreCountedInACriticalOne) {
  changeSite("drop table Doors");
  clickButton(control(openEditor(), "cmdAddLocation"));
  std::string text;
  int reports = 0;
  while (text != "error in refreshhardware") {
    text = answerBox().text;
    if (text.starts_with("AddFolderInfo: ")) ++reports;
  }
  EXPECT_EQ(reports, 10);
  EXPECT_THAT(expectLook("critical: OK*"), HasSubstr(" more errors were written to Pelorin.txt."));
}

TEST_F(BoxJourney, WhatIsRefusedIsAnInformation) {
  host.ui().run([&] { host.session().settings().permitted = false; });
  raise();
  EXPECT_EQ(expectLook("information: OK*"), host::resourceText(3575));
}

TEST_F(BoxJourney, WhatIsMissingIsAnInformation) {
  clickButton(control(openEditor(), "cmdOK"));
  EXPECT_EQ(expectLook("information: OK*"),
            "Required field missing. Must specify one or more trigger locations.");
}

TEST_F(BoxJourney, TakingOutChosenEventsIsAQuestionAndNoKeepsThem) {
  const HWND editor = openEditor();
  checkEvents(editor, {"00001"});
  const HWND categories = control(editor, "lstEventFilters");
  const HWND events = control(editor, "lvwEvents");
  const int listed = driver::rowCount(events);
  untickAnswering(editor, IDNO);
  EXPECT_TRUE(driver::isTicked(categories, 0));
  EXPECT_EQ(driver::rowCount(events), listed);
  untickAnswering(editor, IDYES);
  waitFor("no event", [&] { return driver::rowCount(events) == 0; });
  EXPECT_FALSE(driver::isTicked(categories, 0));
}

TEST_F(BoxJourney, AnErrorOfAMemberHasABoxWithoutIcon) {
  openSummary();
  // The windows belong to another thread than the one that calls.
  std::thread stranger([file = componentFile()] {
    OleInitialize(nullptr);
    host::Component::load(file).raiseForm();
    OleUninitialize();
  });
  const std::string raising = expectLook("none: OK*");
  const std::string destroying = expectLook("none: OK*");
  stranger.join();
  EXPECT_THAT(raising, StartsWith("Exception in class MorvatPelorin.RaiseForm: "));
  EXPECT_THAT(destroying, StartsWith("Exception in class MorvatPelorin.Destroy: "));
}

}  // namespace
}  // namespace pelorin::test
