// Reading the summary: statements, rows, their order.

#include "tests/summary/summary_fixture.h"

namespace pelorin::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class SummaryLoadTest : public SummaryTest {};

TEST_F(SummaryLoadTest, ReadsTypesThenCctvRowsThenTheOthers) {
  answerThree();
  screen.show(form);
  EXPECT_THAT(database.statements(),
              ElementsAre(typesQuery, cctvQuery, descriptionQuery(42), summaryQuery,
                          dvrNameQuery(31), descriptionQuery(5001)));
  EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(SummaryLoadTest, ListsCctvRowsFirst) {
  openThree();
  EXPECT_THAT(rows(), ElementsAre(cctvLine, dvrLine, intercomLine));
}

TEST_F(SummaryLoadTest, KeepsTheOrderOfTheDatabase) {
  answerCctv({cctvRow(9, "1.1", 42, 1, "M"), cctvRow(3, "1.1", 5001, 2, "M"),
              cctvRow(7, "2.1", 42, 3, "M")});
  open();
  EXPECT_THAT(rows(), ElementsAre("00042 - Door forced|1.1|#1677|CCTV|M|9|42|",
                                  "05001 - Alarm input|1.1|#1675|CCTV|M|3|5001|",
                                  "00042 - Door forced|2.1|#1821|CCTV|M|7|42|"));
}

TEST_F(SummaryLoadTest, EmptyDatabaseShowsTheHeaderAlone) {
  open();
  EXPECT_EQ(grid().rows(), 1);
  EXPECT_EQ(grid().fixedRows(), 1);
  EXPECT_FALSE(editAndDeleteEnabled());
  EXPECT_LT(grid().row(), 1);
}

TEST_F(SummaryLoadTest, HeaderHasItsTextsAndWidths) {
  open();
  EXPECT_EQ(row(0), "Trigger|Location|Action|Type|Device|TriggerID|TriggerEventID|");
  std::vector<int> widths;
  for (int column = 0; column < grid().columns(); ++column) {
    widths.push_back(grid().columnWidth(column));
  }
  EXPECT_THAT(widths, ElementsAre(3100, 2500, 1800, 800, 3000, 0, 0));
}

TEST_F(SummaryLoadTest, Event42ShowsWithFiveDigitsAndItsDescription) {
  answerCctv({cctvRow(5, "1.1", 42, 1, "Matrix")});
  open();
  EXPECT_EQ(grid().cell(1, summary_column::trigger), "00042 - Door forced");
}

TEST_F(SummaryLoadTest, EventWithoutDescriptionKeepsTheSeparator) {
  answerCctv({cctvRow(5, "1.1", 43, 1, "Matrix")});
  open();
  EXPECT_EQ(grid().cell(1, summary_column::trigger), "00043 - ");
}

TEST_F(SummaryLoadTest, UnknownCctvActionShowsNoName) {
  answerCctv({cctvRow(5, "1.1", 42, 4, "Matrix")});
  open();
  EXPECT_EQ(grid().cell(1, summary_column::action), "");
}

TEST_F(SummaryLoadTest, DvrActionWithoutNameShowsAnEmptyDevice) {
  answerDevices(
      {deviceRow(5, "2.1", 42, "DVR / NVR", 32), deviceRow(6, "2.1", 42, "DVR / NVR", 33)});
  answerDvrName(33, Null{});
  open();
  EXPECT_THAT(rows(), ElementsAre("00042 - Door forced|2.1|Trigger Alarm|DVR / NVR||5|42|",
                                  "00042 - Door forced|2.1|Trigger Alarm|DVR / NVR||6|42|"));
}

TEST_F(SummaryLoadTest, OnlyTheExactClassNameIsADvr) {
  answerDevices({deviceRow(5, "2.1", 42, "dvr / nvr", 31), deviceRow(6, "2.1", 42, "DVR", 31)});
  open();
  EXPECT_THAT(rows(), ElementsAre("00042 - Door forced|2.1||dvr / nvr||5|42|",
                                  "00042 - Door forced|2.1||DVR||6|42|"));
  EXPECT_THAT(database.statements(), IsEmpty());
}

TEST_F(SummaryLoadTest, NullsAreEmptyAndZeroAndDropNoRow) {
  answerCctv({{Null{}, Null{}, Null{}, Null{}, Null{}, Null{}}});
  answerDevices({{Null{}, Null{}, Null{}, Null{}, Null{}},
                 {std::int64_t{6}, Null{}, std::int64_t{42}, "DVR / NVR", Null{}}});
  open();
  EXPECT_THAT(rows(), ElementsAre("00000 - |||CCTV||0|0|", "00000 - |||||0|0|",
                                  "00042 - Door forced||Trigger Alarm|DVR / NVR||6|42|"));
}

TEST_F(SummaryLoadTest, ActionIdNullAsksForActionZero) {
  answerDevices({{std::int64_t{6}, Null{}, std::int64_t{42}, "DVR / NVR", Null{}}});
  screen.show(form);
  EXPECT_THAT(database.statements(), testing::Contains(dvrNameQuery(0)));
}

TEST_F(SummaryLoadTest, TabsAndLineBreaksBecomeBlanks) {
  answerDescription(42, "Door\tforced\r\nopen");
  answerCctv({cctvRow(5, "1\t1", 42, 1, "Mat\nrix\t")});
  answerDevices({deviceRow(6, "2\r1", 42, "Inter\tcom", 9)});
  open();
  EXPECT_THAT(rows(), ElementsAre("00042 - Door forced  open|1 1|#1677|CCTV|Mat rix |5|42|",
                                  "00042 - Door forced  open|2 1||Inter com||6|42|"));
}

TEST_F(SummaryLoadTest, AsksForEachEventOnceInOneLoad) {
  answerCctv({cctvRow(1, "1.1", 42, 1, "M"), cctvRow(2, "1.2", 42, 1, "M")});
  answerDevices({deviceRow(3, "2.1", 42, "Intercom", 0), deviceRow(4, "2.2", 5001, "Intercom", 0)});
  screen.show(form);
  EXPECT_THAT(database.statements(), ElementsAre(typesQuery, cctvQuery, descriptionQuery(42),
                                                 summaryQuery, descriptionQuery(5001)));
}

TEST_F(SummaryLoadTest, AsksAgainInTheNextLoad) {
  openThree();
  answerDescription(42, "Door held");
  form.ReloadSummary();
  EXPECT_THAT(database.statements(), ElementsAre(cctvQuery, descriptionQuery(42), summaryQuery,
                                                 dvrNameQuery(31), descriptionQuery(5001)));
  EXPECT_EQ(grid().cell(1, summary_column::trigger), "00042 - Door held");
}

TEST_F(SummaryLoadTest, NeverHasTwoResultsOpenAtOnce) {
  openThree();
  EXPECT_EQ(database.mostOpenCursors(), 1);
  EXPECT_EQ(database.openCursors(), 0);
}

TEST_F(SummaryLoadTest, FirstDataRowIsCurrent) {
  openThree();
  EXPECT_EQ(grid().row(), 1);
  EXPECT_EQ(grid().topRow(), 1);
}

TEST_F(SummaryLoadTest, OneDataRowEnablesEditAndDelete) {
  answerDevices({deviceRow(8, "3.1", 5001, "Intercom", 9)});
  open();
  EXPECT_TRUE(editAndDeleteEnabled());
}

TEST_F(SummaryLoadTest, ShowsTheHourglassWhileItWorks) {
  screen.show(form);
  EXPECT_THAT(screen.pointers, ElementsAre(MousePointer::Hourglass, MousePointer::Default));
}

TEST_F(SummaryLoadTest, CustomisedDescriptionIsShownWhenTheHostWantsIt) {
  services.enableCustomize = true;
  database.answer(descriptionQuery(42), {{"EventId", "Description", "DefaultDescription"},
                                         {{std::int64_t{42}, "Our door", "Door forced"}}});
  answerCctv({cctvRow(5, "1.1", 42, 1, "Matrix")});
  open();
  EXPECT_EQ(grid().cell(1, summary_column::trigger), "00042 - Our door");
}

TEST_F(SummaryLoadTest, ThirtyThousandRowsAreShown) {
  constexpr int count = 30000;
  std::vector<Row> many;
  for (int i = 0; i < count; ++i) many.push_back(cctvRow(i + 1, "1.1", i % 50, 1, "Matrix"));
  answerCctv(std::move(many));
  open();
  EXPECT_EQ(grid().rows(), count + 1);
  EXPECT_EQ(grid().cell(count, summary_column::trigger).substr(0, 5), "00049");
}

}  // namespace
}  // namespace pelorin::test
