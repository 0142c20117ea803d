// Add, edit, help and close, by button, mouse and keyboard.
#include "tests/summary/summary_fixture.h"

namespace pelorin::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::SizeIs;

class SummaryActsTest : public SummaryTest {
 protected:
  void editRow(int number) {
    grid().userSelectRow(number);
    form.userPress(edit);
  }
};

TEST_F(SummaryActsTest, AddShowsTheEditorForANewTriggerOwnedByTheSummary) {
  openThree();
  form.userPress(button("cmdAddEdit(0)"));
  ASSERT_THAT(shown, SizeIs(1));
  EXPECT_EQ(shown[0].request.m_TriggerID, 0);
  EXPECT_FALSE(shown[0].request.m_ActionDeviceClass);
  EXPECT_EQ(shown[0].owner, screen.windowOf(form));
  EXPECT_NE(shown[0].owner, 0U);
}

TEST_F(SummaryActsTest, AddNeedsNoRow) {
  open();
  form.userPress(button("cmdAddEdit(0)"));
  EXPECT_THAT(shown, SizeIs(1));
}

TEST_F(SummaryActsTest, EditOfACctvRowGivesItsIdAndClass999) {
  openThree();
  editRow(1);
  ASSERT_THAT(shown, SizeIs(1));
  EXPECT_EQ(shown[0].request.m_TriggerID, 5);
  EXPECT_EQ(shown[0].request.m_ActionDeviceClass, 999);
  EXPECT_EQ(shown[0].owner, screen.windowOf(form));
}

TEST_F(SummaryActsTest, EditOfADvrRowGivesItsIdAndClass1) {
  openThree();
  editRow(2);
  ASSERT_THAT(shown, SizeIs(1));
  EXPECT_EQ(shown[0].request.m_TriggerID, 5);
  EXPECT_EQ(shown[0].request.m_ActionDeviceClass, 1);
}

TEST_F(SummaryActsTest, EditOfAnyOtherRowGivesClass0) {
  openThree();
  editRow(3);
  ASSERT_THAT(shown, SizeIs(1));
  EXPECT_EQ(shown[0].request.m_TriggerID, 8);
  EXPECT_EQ(shown[0].request.m_ActionDeviceClass, 0);
}

TEST_F(SummaryActsTest, EditWithoutCurrentRowDoesNothing) {
  openThree();
  grid().clearCurrentRow();
  form.userPress(edit);
  form.userFocus(&grid());
  form.userKeyDown(key_code::enter);
  grid().userDoubleClick();
  EXPECT_THAT(shown, IsEmpty());
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(SummaryActsTest, DoubleClickOnARowEditsIt) {
  openThree();
  grid().userSelectRow(2);
  grid().userDoubleClick();
  ASSERT_THAT(shown, SizeIs(1));
  EXPECT_EQ(shown[0].request.m_ActionDeviceClass, 1);
}

TEST_F(SummaryActsTest, EnterInTheGridEditsAndLeavesTheFocusThere) {
  openThree();
  form.userFocus(&grid());
  grid().userSelectRow(2);
  form.userKeyDown(key_code::enter);
  ASSERT_THAT(shown, SizeIs(1));
  EXPECT_EQ(shown[0].request.m_ActionDeviceClass, 1);
  EXPECT_EQ(form.focused(), &grid());
}

TEST_F(SummaryActsTest, EnterOnAButtonPressesThatButton) {
  openThree();
  form.userFocus(&button("cmdHelp"));
  form.userKeyDown(key_code::enter);
  EXPECT_THAT(journal.lines(), ElementsAre("host: ShowHelp(217)"));
  EXPECT_THAT(shown, IsEmpty());
}

TEST_F(SummaryActsTest, EnterInAnEmptyGridDoesNothing) {
  open();
  form.userFocus(&grid());
  form.userKeyDown(key_code::enter);
  EXPECT_THAT(shown, IsEmpty());
}

TEST_F(SummaryActsTest, EditorThatCannotBeShownIsReported) {
  frmTASummary failing(module, catalogue, [](const EditorRequest&, WindowHandle) {
    throw RunTimeError(7, "Out of memory", 3);
  });
  screen.show(failing);
  failing.userPress(controlOf<Button>(failing, "cmdAddEdit(0)"));
  EXPECT_THAT(boxes(), ElementsAre("frmTASummary.cmdAddEdit_Click: Line: 3 :Out of memory"));
  failing.unload();
}

TEST_F(SummaryActsTest, HelpShowsTopic217) {
  openThree();
  form.userPress(button("cmdHelp"));
  EXPECT_THAT(journal.lines(), ElementsAre("host: ShowHelp(217)"));
}

TEST_F(SummaryActsTest, FailingHelpIsReported) {
  openThree();
  services.failing = {"ShowHelp"};
  form.userPress(button("cmdHelp"));
  EXPECT_THAT(
      boxes(),
      ElementsAre(MatchesRegex("frmTASummary.cmdHelp_Click: Line: [1-9][0-9]* :ShowHelp failed")));
}

TEST_F(SummaryActsTest, CloseUnloadsTheWindow) {
  openThree();
  form.userPress(button("cmdClose"));
  EXPECT_FALSE(form.isOpen());
  EXPECT_THAT(journal.lines(), IsEmpty());
}

TEST_F(SummaryActsTest, EscapeUnloadsTheWindow) {
  openThree();
  form.userFocus(&grid());
  form.userKeyDown(key_code::escape);
  EXPECT_FALSE(form.isOpen());
}

class OwnedWindows : public SummaryActsTest {
 protected:
  OwnedWindows() {
    openThree();
    screen.show(editor, form.hwnd());
    screen.show(picker, editor.hwnd());
    screen.windowEvents.clear();
  }
  ~OwnedWindows() override { form.unload(); }

  Form editor{"frmTriggerAction", "Add Trigger Action", {100, 100}};
  Form picker{"FLocation", "Select Locations", {100, 100}};
};

TEST_F(OwnedWindows, EscapeBringsTheInnermostToTheFrontAndClosesNothing) {
  form.userKeyDown(key_code::escape);
  EXPECT_TRUE(form.isOpen() && editor.isOpen() && picker.isOpen());
  EXPECT_THAT(screen.windowEvents, ElementsAre("raise FLocation"));
  picker.unload();
  screen.windowEvents.clear();
  form.userKeyDown(key_code::escape);
  EXPECT_TRUE(form.isOpen() && editor.isOpen());
  EXPECT_THAT(screen.windowEvents, ElementsAre("raise frmTriggerAction"));
}

TEST_F(OwnedWindows, EscapeClosesWhenNoneIsOpenAnyMore) {
  editor.unload();
  form.userKeyDown(key_code::escape);
  EXPECT_FALSE(form.isOpen());
}

TEST_F(OwnedWindows, CloseButtonClosesThemAll) {
  form.userPress(button("cmdClose"));
  EXPECT_FALSE(form.isOpen() || editor.isOpen() || picker.isOpen());
}

TEST_F(OwnedWindows, TitleBarClosesThemAll) {
  form.userClose();
  EXPECT_FALSE(form.isOpen() || editor.isOpen() || picker.isOpen());
}

TEST_F(SummaryActsTest, AddAndEditShowTheHourglassWhileTheEditorOpens) {
  openThree();
  screen.pointers.clear();
  form.userPress(button("cmdAddEdit(0)"));
  editRow(1);
  EXPECT_THAT(screen.pointers, ElementsAre(MousePointer::Hourglass, MousePointer::Default,
                                           MousePointer::Hourglass, MousePointer::Default));
}

TEST_F(SummaryActsTest, TitleBarCloseUnloadsTheWindow) {
  openThree();
  form.userClose();
  EXPECT_FALSE(form.isOpen());
}

}  // namespace
}  // namespace pelorin::test
