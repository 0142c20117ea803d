// What the windows of the thread share: acts, the mouse pointer, how deep inside they are.
#include <stdexcept>

#include "tests/windows/views/desk.h"
#include "tests/windows/views/sample_form.h"

namespace pelorin::test {

namespace {

class Acting : public Desk {
 protected:
  void SetUp() override { open(form); }
  void TearDown() override { screen().acts().onEnded = nullptr; }

  SampleForm form;
};

class ThreadOfWindows : public ::testing::Test {
 protected:
  Acts acts;
  UiThread ui{GetModuleHandleW(nullptr), acts};
};

}  // namespace

TEST_F(Acting, AClickIsAnActThatEndsAfterItsHandlers) {
  bool handled = false;
  int ended = 0;
  int endedAfterTheHandler = 0;
  form.cmdHelp.onClick = [&] {
    const int before = ended;
    { const Act callOfTheHost(screen().acts()); }
    EXPECT_EQ(ended, before) << "an act inside an act belongs to it";
    handled = true;
  };
  screen().acts().onEnded = [&] {
    ++ended;
    if (std::exchange(handled, false)) ++endedAfterTheHandler;
  };
  clickMiddle(find(form, "cmdHelp"));
  EXPECT_EQ(endedAfterTheHandler, 1);
}

TEST_F(Acting, AKeyIsAnAct) {
  bool handled = false;
  int endedAfterTheHandler = 0;
  form.cmdCancel.onClick = [&] { handled = true; };
  screen().acts().onEnded = [&] {
    if (std::exchange(handled, false)) ++endedAfterTheHandler;
  };
  SetFocus(find(form, "txtName"));
  press(VK_ESCAPE);
  EXPECT_EQ(endedAfterTheHandler, 1);
}

TEST_F(ThreadOfWindows, TheDefaultPointerIsSetAlsoWhenTheHostHadShownAnother) {
  SetCursor(LoadCursorW(nullptr, IDC_WAIT));
  ui.setPointer(MousePointer::Default);
  EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
}

TEST_F(ThreadOfWindows, AFailureToFollowLeavesNoCountTooHigh) {
  ui.onFlush = [] { throw std::runtime_error("cannot follow"); };
  {
    ui.requestFlush();
    EXPECT_THROW(UiThread::Scope scope(ui), std::runtime_error);
    EXPECT_FALSE(ui.insideWindowProcedure());
  }
  ui.requestFlush();
  EXPECT_THROW(UiThread::ModalScope scope(ui), std::runtime_error);
  EXPECT_FALSE(ui.insideWindowProcedure());
  int followed = 0;
  ui.onFlush = [&followed] { ++followed; };
  ui.requestFlush();
  ui.flush();
  EXPECT_EQ(followed, 1);
  {
    const UiThread::Scope outermost(ui);
    ui.requestFlush();
  }
  EXPECT_EQ(followed, 2) << "no loop counts as running any more";
  ui.onFlush = nullptr;
}

}  // namespace pelorin::test
