// What is particular to ODBC: widths of numbers, long texts, broken connections.
#include "host/odbc/odbc_connection.h"

#include <gtest/gtest.h>

#include <clocale>
#include <filesystem>

#include "host/odbc/odbc_handle.h"
#include "test_paths.h"

namespace pelorin::host {
namespace {

std::string stringFor(const std::string& file) {
  return "Driver=" PELORIN_SQLITE_ODBC ";Database=" + file;
}

class OdbcConnectionTest : public testing::Test {
 protected:
  // This driver has no wide calls: unixODBC converts for it, to the encoding of the locale.
  static void SetUpTestSuite() { std::setlocale(LC_CTYPE, "C.UTF-8"); }

  OdbcConnectionTest() {
    connection.execute(
        "create table Things (ID integer, Small smallint, Rate double, Flag bit, "
        "Name nvarchar(100), Long ntext, Day timestamp)");
  }

  Value single(const std::string& expression) {
    RecordSet rows = connection.open("select " + expression + " from Things");
    EXPECT_TRUE(rows.next());
    return rows.value(0);
  }

  OdbcConnection connection{stringFor(":memory:")};
};

TEST_F(OdbcConnectionTest, WholeNumbersOfEveryWidthAreWholeNumbers) {
  connection.execute("insert into Things (ID, Small) values (-2147483648, 32767)");
  EXPECT_EQ(single("ID"), Value(std::int64_t{-2147483648}));
  EXPECT_EQ(single("Small"), Value(std::int64_t{32767}));
}

TEST_F(OdbcConnectionTest, AFractionComesBackAsItWasWritten) {
  connection.execute("insert into Things (Rate) values (0.8)");
  EXPECT_EQ(single("Rate"), Value(0.8));
  EXPECT_EQ(toText(single("Rate")), "0.8");
}

TEST_F(OdbcConnectionTest, ABitIsTrueOrFalse) {
  connection.execute("insert into Things (Flag) values (1)");
  EXPECT_TRUE(toBoolean(single("Flag")));
}

TEST_F(OdbcConnectionTest, TextKeepsEveryCharacter) {
  const std::string name = "T\xC3\xBCr \xE2\x82\xAC \xE9\x96\x80";
  connection.execute("insert into Things (Name) values ('" + name + "')");
  EXPECT_EQ(single("Name"), Value(name));
}

TEST_F(OdbcConnectionTest, AnEmptyTextIsNoNull) {
  connection.execute("insert into Things (Name) values ('')");
  EXPECT_EQ(single("Name"), Value(std::string()));
}

TEST_F(OdbcConnectionTest, NullsOfEveryTypeAreNull) {
  connection.execute("insert into Things (ID) values (null)");
  for (const char* column : {"ID", "Small", "Rate", "Flag", "Name", "Long", "Day"}) {
    EXPECT_EQ(single(column), Value(Null{})) << column;
  }
}

// This driver reads row by row only when it is told to.
class StepwiseOdbcTest : public testing::Test {
 protected:
  static constexpr const char* failsAtItsThirdRow =
      "select abs(N) from (select 1 N union all select 2 union all select -9223372036854775808)";

  OdbcConnection connection{stringFor(":memory:") + ";StepAPI=1"};
};

TEST_F(StepwiseOdbcTest, RowsBeforeAnErrorAreRead) {
  RecordSet rows = connection.open(failsAtItsThirdRow);
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.int32(0), 1);
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.int32(0), 2);
  EXPECT_THROW(rows.next(), DatabaseError);
}

TEST_F(StepwiseOdbcTest, ErrorBehindRowsThatNobodyWantsIsRaised) {
  EXPECT_THROW(connection.execute(failsAtItsThirdRow), DatabaseError);
}

TEST_F(OdbcConnectionTest, ALongTextArrivesWhole) {
  for (const std::size_t length : {1022U, 1023U, 1024U, 1025U, 2046U, 2047U, 70000U}) {
    std::string text;
    while (text.size() < length) text += static_cast<char>('a' + text.size() % 26);
    connection.execute("delete from Things");
    connection.execute("insert into Things (Long) values ('" + text + "')");
    EXPECT_EQ(single("Long"), Value(text)) << length;
  }
}

TEST_F(OdbcConnectionTest, ADateIsDaysSinceTheEndOf1899) {
  connection.execute("insert into Things (Day) values ('2026-11-21 12:00:00')");
  const Value day = single("Day");
  ASSERT_TRUE(std::holds_alternative<Date>(day));
  EXPECT_DOUBLE_EQ(std::get<Date>(day).days, 46347.5);
}

TEST_F(OdbcConnectionTest, RowsComeInOrderAndColumnsByTheirNames) {
  connection.execute("insert into Things (ID, Name) values (1, 'one')");
  connection.execute("insert into Things (ID, Name) values (2, 'two')");
  RecordSet rows = connection.open("select ID, Name as Caption from Things order by ID desc");
  EXPECT_EQ(rows.columns(), (std::vector<std::string>{"ID", "Caption"}));
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.text("caption"), "two");
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.int32("id"), 1);
  EXPECT_FALSE(rows.next());
}

TEST_F(OdbcConnectionTest, OtherStatementsRunWhileAResultIsBeingRead) {
  connection.execute("insert into Things (ID) values (1)");
  connection.execute("insert into Things (ID) values (2)");
  RecordSet outer = connection.open("select ID from Things order by ID");
  ASSERT_TRUE(outer.next());
  connection.execute("delete from Things");
  EXPECT_TRUE(outer.next());
}

TEST_F(OdbcConnectionTest, AStatementWithoutRowsHasNoColumns) {
  const auto results = connection.openResults("insert into Things (ID) values (1)");
  EXPECT_TRUE(results->columns().empty());
  std::vector<Value> cells;
  EXPECT_EQ(results->fetch(10, cells), 0U);
  EXPECT_FALSE(results->nextResult());
}

TEST_F(OdbcConnectionTest, AWrongStatementIsAnErrorWithTheServersTextAndNumber) {
  try {
    connection.open("select Missing from Nowhere");
    FAIL() << "no error";
  } catch (const DatabaseError& error) {
    EXPECT_NE(error.description().find("Nowhere"), std::string::npos) << error.description();
    EXPECT_LT(error.number(), 0);
    EXPECT_NE(error.messages().at(0).nativeNumber, 0);
    EXPECT_EQ(error.messages().at(0).sqlState.size(), 5U);
  }
  EXPECT_NO_THROW(connection.execute("delete from Things"));
}

TEST_F(OdbcConnectionTest, ADoubledKeyIsToldApartFromAWrongStatement) {
  connection.execute("create table Keys (ID integer primary key)");
  connection.execute("insert into Keys values (1)");
  EXPECT_THROW(connection.execute("insert into Keys values (1)"), DatabaseError);
}

TEST_F(OdbcConnectionTest, AProcedureThatTheServerDoesNotHaveIsAnErrorAndLeavesTheValuesAlone) {
  ProcedureCall call{
      "DVR_AddAction",
      {{"DVRActionID", ParameterType::Integer, ParameterDirection::Output, std::int64_t{7}},
       {"RecordRate", ParameterType::Double, ParameterDirection::Input, 0.8}}};
  EXPECT_THROW(connection.execute(call), DatabaseError);
  EXPECT_EQ(call.parameters[0].value, Value(std::int64_t{7}));
}

TEST(OdbcConnecting, ADriverThatIsNotThereIsAClearError) {
  try {
    const OdbcConnection connection("Driver=/nowhere/driver.so;Database=x");
    FAIL() << "no error";
  } catch (const DatabaseError& error) {
    EXPECT_NE(error.description().find("/nowhere/driver.so"), std::string::npos)
        << error.description();
  }
}

TEST(OdbcConnecting, AnUnknownDataSourceIsAClearError) {
  EXPECT_THROW(OdbcConnection("DSN=pelorin-has-no-such-source"), DatabaseError);
}

#ifndef _WIN32  // under Wine the driver has another idea of paths
TEST(OdbcConnecting, TheDataStaysWhenTheConnectionIsClosed) {
  const std::string file = testing::TempDir() + "pelorin-odbc-test.db";
  std::filesystem::remove(file);
  {
    OdbcConnection first(stringFor(file));
    first.execute("create table Kept (ID integer)");
    first.execute("insert into Kept values (5)");
  }
  OdbcConnection second(stringFor(file));
  RecordSet rows = second.open("select ID from Kept");
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.int32("ID"), 5);
  std::filesystem::remove(file);
}
#endif

}  // namespace
}  // namespace pelorin::host
