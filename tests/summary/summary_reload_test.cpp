// Reading the summary again, and what stays where it was.
#include "tests/summary/summary_fixture.h"

namespace pelorin::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SummaryReloadTest : public SummaryTest {};

TEST_F(SummaryReloadTest, ShowsWhatTheDatabaseHoldsNow) {
  openThree();
  answerCctv({});
  answerDevices({deviceRow(8, "3.1", 42, "Intercom", 9)});
  form.ReloadSummary();
  EXPECT_THAT(rows(), ElementsAre("00042 - Door forced|3.1||Intercom||8|42|"));
}

TEST_F(SummaryReloadTest, DoesNotReadTheEventTypesAgain) {
  openThree();
  form.ReloadSummary();
  EXPECT_THAT(database.statements(), testing::Not(testing::Contains(typesQuery)));
}

TEST_F(SummaryReloadTest, KeepsTheSameTriggerCurrentWhereverItIsNow) {
  openThree();
  grid().userSelectRow(2);
  answerCctv({cctvRow(2, "0.1", 42, 1, "M"), cctvRow(5, "1.1", 42, 1, "M")});
  form.ReloadSummary();
  EXPECT_EQ(grid().row(), 3);
  EXPECT_EQ(row(3), dvrLine);
}

TEST_F(SummaryReloadTest, TellsTriggersOfTheSameNumberApartByType) {
  openThree();
  grid().userSelectRow(2);
  answerDevices({});
  form.ReloadSummary();
  EXPECT_EQ(grid().rows(), 2);
  EXPECT_LT(grid().row(), 1);
}

TEST_F(SummaryReloadTest, KeepsTheCurrentRowOfATriggerThatIsListedTwice) {
  answerDevices(
      {deviceRow(5, "first", 42, "DVR / NVR", 31), deviceRow(5, "second", 42, "DVR / NVR", 31)});
  open();
  grid().userSelectRow(2);
  form.ReloadSummary();
  EXPECT_EQ(grid().row(), 2);
}

TEST_F(SummaryReloadTest, MakesNothingCurrentWhenTheTriggerIsGone) {
  openThree();
  grid().userSelectRow(3);
  answerDevices({deviceRow(5, "2.1", 42, "DVR / NVR", 31)});
  form.ReloadSummary();
  EXPECT_LT(grid().row(), 1);
  EXPECT_EQ(grid().caretRow(), 2);
}

TEST_F(SummaryReloadTest, LeavesNothingCurrentWhenNothingWas) {
  openThree();
  grid().clearCurrentRow();
  form.ReloadSummary();
  EXPECT_LT(grid().row(), 1);
}

TEST_F(SummaryReloadTest, KeepsTheScrollPosition) {
  std::vector<Row> many;
  for (int i = 1; i <= 100; ++i) many.push_back(cctvRow(i, "1.1", 42, 1, "M"));
  answerCctv(many);
  open();
  grid().userSelectRow(3);
  grid().userScroll(60);
  form.ReloadSummary();
  EXPECT_EQ(grid().topRow(), 60);
  EXPECT_EQ(grid().row(), 3);
}

TEST_F(SummaryReloadTest, OfAShorterListScrollsNoFartherThanItsEnd) {
  std::vector<Row> many;
  for (int i = 1; i <= 100; ++i) many.push_back(cctvRow(i, "1.1", 42, 1, "M"));
  answerCctv(many);
  open();
  grid().userScroll(60);
  answerCctv({cctvRow(1, "1.1", 42, 1, "M")});
  form.ReloadSummary();
  EXPECT_EQ(grid().topRow(), 1);
}

TEST_F(SummaryReloadTest, EnablesTheButtonsWithTheFirstRow) {
  open();
  EXPECT_FALSE(editAndDeleteEnabled());
  answerThree();
  form.ReloadSummary();
  EXPECT_TRUE(editAndDeleteEnabled());
}

TEST_F(SummaryReloadTest, DisablesTheButtonsWithTheLastRow) {
  openThree();
  answerCctv({});
  answerDevices({});
  form.ReloadSummary();
  EXPECT_EQ(grid().rows(), 1);
  EXPECT_FALSE(editAndDeleteEnabled());
}

TEST_F(SummaryReloadTest, OfAClosedWindowDoesNothing) {
  openThree();
  form.unload();
  form.ReloadSummary();
  EXPECT_THAT(database.statements(), IsEmpty());
}

TEST_F(SummaryReloadTest, ShowsTheHourglassWhileItWorks) {
  openThree();
  screen.pointers.clear();
  form.ReloadSummary();
  EXPECT_THAT(screen.pointers, ElementsAre(MousePointer::Hourglass, MousePointer::Default));
}

TEST_F(SummaryReloadTest, UsesTheConnectionThatTheHostSetSince) {
  openThree();
  Journal otherJournal;
  module.setDBConnection(std::make_shared<ScriptedConnection>(otherJournal));
  form.ReloadSummary();
  EXPECT_THAT(database.statements(), IsEmpty());
  EXPECT_THAT(otherJournal.of("sql: "), ElementsAre(cctvQuery, summaryQuery));
}

}  // namespace
}  // namespace pelorin::test
