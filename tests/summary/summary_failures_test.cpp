// What fails on the way is reported once under the right name; the rest stands.
#include "tests/summary/summary_fixture.h"

namespace pelorin::test {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::SizeIs;

auto report(const std::string& procedure, const std::string& description) {
  return MatchesRegex(procedure + ": Line: [1-9][0-9]* :" + description);
}

class SummaryFailureTest : public SummaryTest {};

TEST_F(SummaryFailureTest, OfTheCctvQueryStillListsTheOthers) {
  answerThree();
  database.fail(cctvQuery);
  open();
  EXPECT_THAT(boxes(), ElementsAre(report("frmTASummary.LoadCCTVSummaryData", "statement failed")));
  EXPECT_THAT(rows(), ElementsAre(dvrLine, intercomLine));
  EXPECT_TRUE(editAndDeleteEnabled());
  EXPECT_EQ(grid().row(), 1);
}

TEST_F(SummaryFailureTest, OfTheSummaryQueryKeepsTheCctvRows) {
  answerThree();
  database.fail(summaryQuery);
  open();
  EXPECT_THAT(boxes(), ElementsAre(report("frmTASummary.LoadSummaryData", "statement failed")));
  EXPECT_THAT(rows(), ElementsAre(cctvLine));
  EXPECT_TRUE(editAndDeleteEnabled());
}

TEST_F(SummaryFailureTest, OfAFetchKeepsTheRowsAddedSoFar) {
  answerCctv({cctvRow(5, "1.1", 42, 1, "Matrix"), cctvRow(6, "1.2", 42, 1, "Matrix")});
  database.failFetch(cctvQuery, 1);
  open();
  EXPECT_THAT(boxes(), ElementsAre(report("frmTASummary.LoadCCTVSummaryData", "fetch failed")));
  EXPECT_THAT(rows(), ElementsAre(cctvLine));
  EXPECT_EQ(database.openCursors(), 0);
}

TEST_F(SummaryFailureTest, OfAValueBeyondItsWidthKeepsTheRowsBefore) {
  answerCctv({cctvRow(5, "1.1", 42, 1, "Matrix"), cctvRow(6, "1.2", 42, 70000, "Matrix"),
              cctvRow(7, "1.3", 42, 1, "Matrix")});
  open();
  EXPECT_THAT(boxes(), ElementsAre(report("frmTASummary.LoadCCTVSummaryData", "Overflow")));
  EXPECT_THAT(rows(), ElementsAre(cctvLine));
}

TEST_F(SummaryFailureTest, OfAMissingColumnNamesIt) {
  database.answer(summaryQuery, {{"TriggerID"}, {{std::int64_t{5}}}});
  open();
  EXPECT_THAT(boxes(), ElementsAre(report("frmTASummary.LoadSummaryData", ".*: Classname\\.")));
}

TEST_F(SummaryFailureTest, OfTheDvrNameLeavesTheDeviceEmptyAndGoesOn) {
  answerThree();
  database.fail(dvrNameQuery(31));
  open();
  EXPECT_THAT(boxes(),
              ElementsAre(report("frmTASummary.GetDVRActionDeviceName", "statement failed")));
  EXPECT_THAT(rows(),
              ElementsAre(cctvLine, "00042 - Door forced|2.1|Trigger Alarm|DVR / NVR||5|42|",
                          intercomLine));
}

TEST_F(SummaryFailureTest, OfADescriptionLeavesItEmptyAndIsReportedOncePerEvent) {
  answerThree();
  database.fail(descriptionQuery(42));
  open();
  EXPECT_THAT(boxes(), ElementsAre(report("Module1.GetEventDescription", "statement failed")));
  EXPECT_EQ(grid().cell(1, summary_column::trigger), "00042 - ");
  EXPECT_EQ(grid().cell(2, summary_column::trigger), "00042 - ");
  EXPECT_EQ(row(3), intercomLine);
}

TEST_F(SummaryFailureTest, OfAnActionNameIsReportedOncePerAction) {
  answerCctv({cctvRow(5, "1.1", 42, 1, "M"), cctvRow(6, "1.2", 42, 1, "M")});
  services.failing = {"GetResourceString"};
  open();
  EXPECT_THAT(boxes(), ElementsAre(report("MPublic: GRS", "GetResourceString failed")));
  EXPECT_THAT(rows(), SizeIs(2));
}

TEST_F(SummaryFailureTest, OfTheEventTypesLeavesTheDescriptionsEmpty) {
  answerThree();
  database.fail(typesQuery);
  open();
  EXPECT_THAT(boxes(), ElementsAre(report("Module1.InitEventTypeInfoArray", "statement failed")));
  EXPECT_THAT(rows(), SizeIs(3));
  EXPECT_EQ(grid().cell(1, summary_column::trigger), "00042 - ");
}

TEST_F(SummaryFailureTest, OfAReloadShowsWhatCameAndTheButtonsFollow) {
  openThree();
  database.fail(cctvQuery);
  database.fail(summaryQuery);
  form.ReloadSummary();
  EXPECT_THAT(boxes(), ElementsAre(report("frmTASummary.LoadCCTVSummaryData", ".*"),
                                   report("frmTASummary.LoadSummaryData", ".*")));
  EXPECT_EQ(grid().rows(), 1);
  EXPECT_FALSE(editAndDeleteEnabled());
}

TEST_F(SummaryFailureTest, WithoutServicesOrConnectionEachStepReportsAndTheHeaderShows) {
  module.setNTConnection(nullptr);
  module.setDBConnection(nullptr);
  open();
  const std::string missing = "Object variable or With block variable not set";
  EXPECT_THAT(boxes(), ElementsAre(report("Module1.InitEventTypeInfoArray", missing),
                                   report("frmTASummary.LoadCCTVSummaryData", missing),
                                   report("frmTASummary.LoadSummaryData", missing)));
  EXPECT_EQ(row(0), "Trigger|Location|Action|Type|Device|TriggerID|TriggerEventID|");
  EXPECT_FALSE(editAndDeleteEnabled());
  EXPECT_TRUE(form.isOpen());
}

TEST_F(SummaryFailureTest, EachReportIsOneLineOfTheLog) {
  answerThree();
  database.fail(cctvQuery);
  open();
  EXPECT_THAT(surroundings.environment.lines, SizeIs(1));
  EXPECT_EQ(surroundings.environment.lines[0].second,
            surroundings.environment.dateTime + ": " + boxes()[0]);
}

TEST_F(SummaryFailureTest, OfManyNamesShowsTenReportsAndOneBoxForTheRest) {
  std::vector<Row> many;
  for (int action = 1; action <= 1000; ++action) {
    many.push_back(deviceRow(action, "2.1", 42, "DVR / NVR", action));
    database.fail(dvrNameQuery(action));
  }
  answerDevices(many);
  open();
  ASSERT_THAT(boxes(), SizeIs(11));
  EXPECT_EQ(boxes().back(), "990 more errors were written to Pelorin.txt.");
  EXPECT_THAT(surroundings.environment.lines, SizeIs(1000));
  EXPECT_THAT(rows(), SizeIs(1000));
}

TEST_F(SummaryFailureTest, OfTheConnectionEndsTheLoadWithOneReport) {
  answerThree();
  database.lose(dvrNameQuery(31));
  open();
  EXPECT_THAT(boxes(),
              ElementsAre(report("frmTASummary.GetDVRActionDeviceName", "connection lost")));
  EXPECT_THAT(rows(), ElementsAre(cctvLine, testing::StartsWith("00042 - ")));
  EXPECT_TRUE(editAndDeleteEnabled());
  journal.clear();
  form.ReloadSummary();
  EXPECT_THAT(database.statements(), testing::IsSupersetOf({cctvQuery, summaryQuery}));
}

TEST_F(SummaryFailureTest, OfTheConnectionAtTheStartSendsNothingMore) {
  answerThree();
  database.lose(typesQuery);
  screen.show(form);
  EXPECT_THAT(database.statements(), ElementsAre(typesQuery));
  EXPECT_THAT(boxes(), ElementsAre(report("Module1.InitEventTypeInfoArray", "connection lost")));
  EXPECT_TRUE(form.isOpen());
}

TEST_F(SummaryFailureTest, WindowClosedDuringAReportStopsTheLoad) {
  answerThree();
  database.fail(typesQuery);
  screen.duringBox = [this](const BoxRequest&) { form.unload(); };
  screen.show(form);
  EXPECT_THAT(database.statements(), ElementsAre(typesQuery));
  EXPECT_FALSE(form.isOpen());
}

TEST_F(SummaryFailureTest, WindowClosedDuringAReportOfTheListStopsTheLoad) {
  answerCctv({cctvRow(5, "1.1", 42, 1, "Matrix"), cctvRow(6, "1.2", 5001, 1, "Matrix")});
  database.fail(descriptionQuery(42));
  screen.duringBox = [this](const BoxRequest&) { form.unload(); };
  screen.show(form);
  EXPECT_THAT(database.statements(), ElementsAre(typesQuery, cctvQuery, descriptionQuery(42)));
  EXPECT_FALSE(form.isOpen());
  EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(SummaryFailureTest, WindowClosedDuringAReportOfTheOthersStopsTheLoad) {
  answerThree();
  database.fail(dvrNameQuery(31));
  screen.duringBox = [this](const BoxRequest&) { form.unload(); };
  screen.show(form);
  EXPECT_THAT(database.statements(),
              AllOf(Contains(dvrNameQuery(31)), testing::Not(Contains(descriptionQuery(5001)))));
  EXPECT_THAT(rows(), ElementsAre(cctvLine));
}

}  // namespace
}  // namespace pelorin::test
