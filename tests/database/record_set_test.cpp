// Rows of a result: moving, fields, errors in between, draining.
#include <gtest/gtest.h>

#include "base/current_error.h"
#include "tests/fakes/scripted_connection.h"

namespace pelorin::test {
namespace {

const std::string sql = "select ID, DVRName from DVR_Config";

class RecordSetTest : public testing::Test {
 protected:
  void answerRows(std::size_t count) {
    Result result{{"ID", "DVRName"}, {}};
    for (std::size_t i = 1; i <= count; ++i) {
      result.rows.push_back({static_cast<std::int64_t>(i), "Unit " + std::to_string(i)});
    }
    database.answer(sql, std::move(result));
  }

  Journal journal;
  ScriptedConnection database{journal};
};

TEST_F(RecordSetTest, GoesThroughAllRowsInOrder) {
  answerRows(3);
  RecordSet rows = database.open(sql);
  std::vector<std::string> names;
  while (rows.next()) names.push_back(rows.text("DVRName"));
  EXPECT_EQ(names, (std::vector<std::string>{"Unit 1", "Unit 2", "Unit 3"}));
}

TEST_F(RecordSetTest, GoesThroughMoreRowsThanOneBlockHolds) {
  answerRows(1501);
  RecordSet rows = database.open(sql);
  std::int32_t expected = 0;
  while (rows.next()) EXPECT_EQ(rows.int32("ID"), ++expected);
  EXPECT_EQ(expected, 1501);
}

TEST_F(RecordSetTest, FindsFieldsWithoutRegardToCase) {
  answerRows(1);
  RecordSet rows = database.open(sql);
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.int32("id"), 1);
  EXPECT_EQ(rows.text("dvrNAME"), "Unit 1");
}

TEST_F(RecordSetTest, FindsFieldsInWhateverOrderTheyAreAskedFor) {
  answerRows(3);
  RecordSet rows = database.open(sql);
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.text("DVRName"), "Unit 1");
  EXPECT_EQ(rows.text("DVRName"), "Unit 1");
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.int32("ID"), 2);
  EXPECT_EQ(rows.text("DVRName"), "Unit 2");
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.text("DVRName"), "Unit 3");
  EXPECT_EQ(rows.int32("ID"), 3);
  EXPECT_EQ(rows.int32("ID"), 3);
}

TEST_F(RecordSetTest, FindsFieldsByPosition) {
  answerRows(1);
  RecordSet rows = database.open(sql);
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.int32(0), 1);
  EXPECT_EQ(rows.text(1), "Unit 1");
}

TEST_F(RecordSetTest, UnknownFieldIsAnErrorWithTheCallersLine) {
  answerRows(1);
  RecordSet rows = database.open(sql);
  ASSERT_TRUE(rows.next());
  std::uint32_t line = 0;
  const auto error = errorOf([&] {
    line = __LINE__ + 1;
    rows.text("Nonsense");
  });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->number(), 3265);
  EXPECT_EQ(error->line(), line);
  EXPECT_EQ(errorOf([&] { rows.text(2); })->number(), 3265);
  EXPECT_EQ(errorOf([&] { rows.text(-1); })->number(), 3265);
}

TEST_F(RecordSetTest, NullsReadAsEmptyZeroAndFalse) {
  database.answer(sql, {{"ID", "DVRName"}, {{Null{}, Null{}}}});
  RecordSet rows = database.open(sql);
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.text("DVRName"), "");
  EXPECT_EQ(rows.int32("ID"), 0);
  EXPECT_EQ(rows.int16("ID"), 0);
  EXPECT_EQ(rows.real("ID"), 0);
  EXPECT_FALSE(rows.boolean("ID"));
}

TEST_F(RecordSetTest, ValueBeyondTheWidthIsAnErrorWithTheCallersLine) {
  database.answer(sql, {{"ID"}, {{std::int64_t{40000}}}});
  RecordSet rows = database.open(sql);
  ASSERT_TRUE(rows.next());
  std::uint32_t line = 0;
  const auto error = errorOf([&] {
    line = __LINE__ + 1;
    rows.int16("ID");
  });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->number(), 6);
  EXPECT_EQ(error->line(), line);
}

TEST_F(RecordSetTest, HasNoCurrentRowBeforeTheFirst) {
  answerRows(1);
  RecordSet rows = database.open(sql);
  EXPECT_EQ(errorOf([&] { rows.text("DVRName"); })->number(), 3021);
}

TEST_F(RecordSetTest, HasNoCurrentRowPastTheEnd) {
  answerRows(1);
  RecordSet rows = database.open(sql);
  ASSERT_TRUE(rows.next());
  ASSERT_FALSE(rows.next());
  EXPECT_EQ(errorOf([&] { rows.text("DVRName"); })->number(), 3021);
  EXPECT_FALSE(rows.next());
}

TEST_F(RecordSetTest, WithoutRowsEndsAtOnce) {
  answerRows(0);
  RecordSet rows = database.open(sql);
  EXPECT_FALSE(rows.next());
  EXPECT_EQ(database.openCursors(), 0);
}

TEST_F(RecordSetTest, ClosesTheResultOnDestruction) {
  answerRows(2);
  {
    RecordSet rows = database.open(sql);
    ASSERT_TRUE(rows.next());
    EXPECT_EQ(database.openCursors(), 1);
  }
  EXPECT_EQ(database.openCursors(), 0);
}

TEST_F(RecordSetTest, ClosesTheResultWhenAskedTo) {
  answerRows(2);
  RecordSet rows = database.open(sql);
  ASSERT_TRUE(rows.next());
  rows.close();
  EXPECT_EQ(database.openCursors(), 0);
  EXPECT_FALSE(rows.next());
}

TEST_F(RecordSetTest, DrainedRowsAreReadAfterTheResultIsClosed) {
  answerRows(1200);
  RecordSet rows = database.open(sql);
  rows.drain();
  EXPECT_EQ(database.openCursors(), 0);
  std::int32_t expected = 0;
  while (rows.next()) EXPECT_EQ(rows.int32("ID"), ++expected);
  EXPECT_EQ(expected, 1200);
}

TEST_F(RecordSetTest, DrainingKeepsTheCurrentRow) {
  answerRows(700);
  RecordSet rows = database.open(sql);
  ASSERT_TRUE(rows.next());
  rows.drain();
  EXPECT_EQ(rows.int32("ID"), 1);
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.int32("ID"), 2);
}

TEST_F(RecordSetTest, DetachedRowIsReadAfterTheResultIsClosed) {
  answerRows(2);
  RecordSet rows = database.open(sql);
  ASSERT_TRUE(rows.next());
  rows.detach();
  EXPECT_EQ(database.openCursors(), 0);
  EXPECT_EQ(rows.text("DVRName"), "Unit 1");
}

TEST_F(RecordSetTest, DrainedErrorIsRaisedAfterTheLastRowThatCame) {
  answerRows(900);
  database.failFetch(sql, 700);
  RecordSet rows = database.open(sql);
  rows.drain();
  EXPECT_EQ(database.openCursors(), 0);
  for (int i = 0; i < 700; ++i) ASSERT_TRUE(rows.next());
  std::uint32_t line = 0;
  const auto error = errorOf([&] {
    line = __LINE__ + 1;
    rows.next();
  });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->description(), "fetch failed");
  EXPECT_EQ(error->line(), line);
  EXPECT_FALSE(rows.next());
}

TEST_F(RecordSetTest, DrainedErrorBeforeTheFirstRowIsRaisedAtOnce) {
  answerRows(3);
  database.failFetch(sql, 0);
  RecordSet rows = database.open(sql);
  rows.drain();
  EXPECT_TRUE(errorOf([&] { rows.next(); }));
}

TEST_F(RecordSetTest, RowsBeforeAFailingFetchAreRead) {
  answerRows(900);
  database.failFetch(sql, 700);
  RecordSet rows = database.open(sql);
  int read = 0;
  const auto error = errorOf([&] {
    while (rows.next()) ++read;
  });
  ASSERT_TRUE(error);
  EXPECT_EQ(read, 700);
  EXPECT_EQ(error->description(), "fetch failed");
}

TEST_F(RecordSetTest, RowsOfALostBlockAreNotReadButThoseBeforeIt) {
  answerRows(900);
  database.loseBlock(sql, 700);
  for (const bool drained : {false, true}) {
    RecordSet rows = database.open(sql);
    if (drained) rows.drain();
    int read = 0;
    const auto error = errorOf([&] {
      while (rows.next()) ++read;
    });
    ASSERT_TRUE(error);
    EXPECT_EQ(read, 500);
    EXPECT_EQ(database.openCursors(), 0);
  }
}

// Breaks off in the middle of its second row.
class BrokenOffCursor : public Cursor {
 public:
  const std::vector<std::string>& columns() const override { return columns_; }
  std::size_t fetch(std::size_t, std::vector<Value>& cells) override {
    cells.insert(cells.end(), {std::int64_t{1}, std::string("one"), std::int64_t{2}});
    throw RunTimeError(5, "broken off");
  }

 private:
  std::vector<std::string> columns_{"ID", "Name"};
};

TEST_F(RecordSetTest, RowThatBrokeOffIsDropped) {
  RecordSet rows(std::make_unique<BrokenOffCursor>());
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.text("Name"), "one");
  EXPECT_EQ(errorOf([&] { rows.next(); })->description(), "broken off");
  EXPECT_FALSE(rows.next());
}

TEST_F(RecordSetTest, CellOfAnUnknownTypeIsAnErrorOfWhoReadsIt) {
  database.answer(sql, {{"ID", "Shape"}, {{std::int64_t{1}, Unreadable{}}}});
  RecordSet rows = database.open(sql);
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.int32("ID"), 1);
  std::uint32_t line = 0;
  const auto text = errorOf([&] {
    line = __LINE__ + 1;
    rows.text("Shape");
  });
  ASSERT_TRUE(text);
  EXPECT_EQ(text->number(), 13);
  EXPECT_EQ(text->line(), line);
  EXPECT_EQ(errorOf([&] { rows.int32("Shape"); })->number(), 13);
  EXPECT_EQ(errorOf([&] { rows.real("Shape"); })->number(), 13);
  EXPECT_EQ(errorOf([&] { rows.boolean("Shape"); })->number(), 13);
  EXPECT_FALSE(isNull(rows.value("Shape")));
}

TEST_F(RecordSetTest, CanBeHandedOn) {
  answerRows(2);
  RecordSet first = database.open(sql);
  ASSERT_TRUE(first.next());
  RecordSet rows = std::move(first);
  EXPECT_EQ(rows.int32("ID"), 1);
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.int32("ID"), 2);
}

TEST_F(RecordSetTest, FailingStatementCarriesTheCallersLine) {
  database.fail(sql);
  std::uint32_t line = 0;
  const auto opened = errorOf([&] {
    line = __LINE__ + 1;
    database.open(sql);
  });
  EXPECT_EQ(opened->line(), line);
  const auto executed = errorOf([&] {
    line = __LINE__ + 1;
    database.execute(sql);
  });
  EXPECT_EQ(executed->line(), line);
}

TEST_F(RecordSetTest, FailingProcedureCallCarriesTheCallersLine) {
  database.fail("call DVR_AddAction");
  ProcedureCall call{"DVR_AddAction", {}};
  std::uint32_t line = 0;
  const auto error = errorOf([&] {
    line = __LINE__ + 1;
    database.execute(call);
  });
  EXPECT_EQ(error->line(), line);
}

}  // namespace
}  // namespace pelorin::test
