// Deleting the current trigger.
#include "tests/summary/summary_fixture.h"

namespace pelorin::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;

class SummaryDeleteTest : public SummaryTest {
 protected:
  SummaryDeleteTest() {
    database.answer(findQuery, {{"ActionId", "IntegratedDeviceClassId"},
                                {{std::int64_t{31}, std::int64_t{1}}}});
  }
  void deleteRow(int number) {
    grid().userSelectRow(number);
    form.userPress(remove);
  }

  const std::string deleteCctv = "delete from CCTV_TriggerAction where TA_ID = 5";
  const std::string findQuery =
      "select ActionId, IntegratedDeviceClassId from IntegratedDevicetriggers where TriggerId = 5";
  const std::string deleteAction = "Delete from DVR_TriggerActions where DVRActionID = 31";
  const std::string deleteTrigger = "exec TA_DeleteTrigger 5";
};

TEST_F(SummaryDeleteTest, OfACctvRowDeletesItsActionAndAuditsIt) {
  openThree();
  deleteRow(1);
  EXPECT_THAT(journal.lines(),
              ElementsAre("sql: " + deleteCctv,
                          "host: LogEvent(Delete, TriggerAction, 5, Trigger Event 42, 1186)"));
  EXPECT_THAT(rows(), ElementsAre(dvrLine, intercomLine));
}

TEST_F(SummaryDeleteTest, OfADvrRowDeletesActionAndTriggerAndAuditsIt) {
  openThree();
  deleteRow(2);
  EXPECT_THAT(journal.lines(),
              ElementsAre("sql: " + findQuery, "sql: " + deleteAction, "sql: " + deleteTrigger,
                          "host: LogEvent(Delete, TriggerAction, 5, Trigger Event 42, 1186)"));
  EXPECT_THAT(rows(), ElementsAre(cctvLine, intercomLine));
}

TEST_F(SummaryDeleteTest, OfAnyOtherClassGoesThroughTheTriggerProcedure) {
  openThree();
  deleteRow(3);
  EXPECT_THAT(journal.lines(),
              ElementsAre("sql: select ActionId, IntegratedDeviceClassId from "
                          "IntegratedDevicetriggers where TriggerId = 8",
                          "sql: exec TA_DeleteTrigger 8",
                          "host: LogEvent(Delete, TriggerAction, 8, Trigger Event 5001, 1186)"));
}

TEST_F(SummaryDeleteTest, ComparesTheTypeWithoutRegardToCase) {
  answerDevices({deviceRow(5, "3.1", 42, "cctv", 9)});
  open();
  deleteRow(1);
  EXPECT_THAT(database.statements(), ElementsAre(deleteCctv));
}

TEST_F(SummaryDeleteTest, AsksForNoConfirmation) {
  openThree();
  deleteRow(1);
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(SummaryDeleteTest, LeavesNothingCurrentWithTheCaretNear) {
  openThree();
  deleteRow(2);
  EXPECT_LT(grid().row(), 1);
  EXPECT_EQ(grid().caretRow(), 2);
}

TEST_F(SummaryDeleteTest, OfTheLastRowLeavesTheCaretOnTheRowBefore) {
  openThree();
  deleteRow(3);
  EXPECT_LT(grid().row(), 1);
  EXPECT_EQ(grid().caretRow(), 2);
}

TEST_F(SummaryDeleteTest, PressedASecondTimeDeletesNothing) {
  openThree();
  deleteRow(1);
  journal.clear();
  form.userPress(remove);
  EXPECT_THAT(journal.lines(), IsEmpty());
  EXPECT_EQ(grid().rows(), 3);
}

TEST_F(SummaryDeleteTest, OfTheOnlyRowLeavesTheHeaderAndDisablesTheButtons) {
  answerCctv({cctvRow(5, "1.1", 42, 1, "Matrix")});
  open();
  deleteRow(1);
  EXPECT_EQ(grid().rows(), 1);
  EXPECT_EQ(grid().fixedRows(), 1);
  EXPECT_EQ(row(0), "Trigger|Location|Action|Type|Device|TriggerID|TriggerEventID|");
  EXPECT_FALSE(editAndDeleteEnabled());
  EXPECT_LT(grid().row(), 1);
}

TEST_F(SummaryDeleteTest, OfTheOnlyRowCanBeFollowedByAReload) {
  answerCctv({cctvRow(5, "1.1", 42, 1, "Matrix")});
  open();
  deleteRow(1);
  answerThree();
  form.ReloadSummary();
  EXPECT_THAT(rows(), ElementsAre(cctvLine, dvrLine, intercomLine));
}

TEST_F(SummaryDeleteTest, OfOneRowAmongOthersKeepsTheButtonsEnabled) {
  openThree();
  deleteRow(1);
  EXPECT_TRUE(editAndDeleteEnabled());
}

TEST_F(SummaryDeleteTest, RemovesTheCurrentRowOfATriggerThatIsListedTwice) {
  answerDevices({deviceRow(5, "first", 42, "DVR / NVR", 31),
                 deviceRow(5, "second", 42, "DVR / NVR", 31),
                 deviceRow(8, "third", 5001, "Intercom", 9)});
  open();
  deleteRow(2);
  ASSERT_EQ(grid().rows(), 3);
  EXPECT_EQ(grid().cell(1, summary_column::location), "first");
  EXPECT_EQ(grid().cell(2, summary_column::location), "third");
}

TEST_F(SummaryDeleteTest, FindsTheRowAgainThatAReloadMoved) {
  openThree();
  answerCctv({});
  database.onStatement = [this](const std::string& sql) {
    if (sql == deleteTrigger) form.ReloadSummary();
  };
  deleteRow(2);
  EXPECT_THAT(rows(), ElementsAre(intercomLine));
}

TEST_F(SummaryDeleteTest, WithoutCurrentRowDoesNothing) {
  openThree();
  grid().clearCurrentRow();
  form.userPress(remove);
  EXPECT_THAT(journal.lines(), IsEmpty());
  EXPECT_EQ(grid().rows(), 4);
}

TEST_F(SummaryDeleteTest, WhileDisabledDoesNothing) {
  open();
  form.userPress(remove);
  EXPECT_THAT(journal.lines(), IsEmpty());
}

TEST_F(SummaryDeleteTest, ThatFailsRemovesNoRowAndAuditsNothing) {
  openThree();
  database.fail(deleteCctv);
  deleteRow(1);
  EXPECT_THAT(rows(), ElementsAre(cctvLine, dvrLine, intercomLine));
  EXPECT_EQ(grid().row(), 1);
  EXPECT_THAT(journal.of("host: "), IsEmpty());
  EXPECT_THAT(boxes(),
              ElementsAre(MatchesRegex("Module1.DeleteCCTVTriggerAction: Line: [1-9][0-9]* :.*")));
  EXPECT_TRUE(editAndDeleteEnabled());
}

TEST_F(SummaryDeleteTest, WhoseAuditFailsIsReportedAndTheRowIsGone) {
  answerCctv({cctvRow(5, "1.1", 42, 1, "Matrix")});
  open();
  services.failing = {"LogEvent"};
  deleteRow(1);
  EXPECT_THAT(boxes(), ElementsAre(MatchesRegex(
                           "frmTASummary.cmdDelete_Click: Line: [1-9][0-9]* :LogEvent failed")));
  EXPECT_EQ(grid().rows(), 1);
  EXPECT_FALSE(editAndDeleteEnabled());
}

TEST_F(SummaryDeleteTest, ShowsTheHourglassWhileItWorks) {
  openThree();
  screen.pointers.clear();
  deleteRow(1);
  EXPECT_THAT(screen.pointers, ElementsAre(MousePointer::Hourglass, MousePointer::Default));
}

TEST_F(SummaryDeleteTest, AuditsTheEventAsItsPlainNumber) {
  answerCctv({cctvRow(5, "1.1", 42, 1, "Matrix")});
  open();
  deleteRow(1);
  EXPECT_THAT(journal.of("host: LogEvent"),
              ElementsAre("(Delete, TriggerAction, 5, Trigger Event 42, 1186)"));
}

}  // namespace
}  // namespace pelorin::test
