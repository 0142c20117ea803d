#include "tests/contract/connection_contract.h"

#include <gmock/gmock.h>

#include <iostream>

#include "base/current_error.h"
#include "site/schema.h"

namespace pelorin::test {

namespace {

using testing::HasSubstr;
using testing::StartsWith;

std::string literal(const Value& value) {
  if (isNull(value)) return "null";
  const auto* text = std::get_if<std::string>(&value);
  return text == nullptr ? toText(value) : "'" + *text + "'";
}

ProcedureParameter input(const char* name, std::int64_t value) {
  return {name, ParameterType::Integer, ParameterDirection::Input, value};
}

ProcedureCall addAction() {
  return {"DVR_AddAction",
          {{"DVRActionID", ParameterType::Integer, ParameterDirection::Output, std::int64_t{0}},
           input("ID_DVR_Config", 1),
           input("CameraIndex", 2),
           {"RecordRate", ParameterType::Double, ParameterDirection::Input, 6.25},
           input("AlarmDuration", 15),
           input("RecordStandard", 0),
           input("PresetID", 0),
           input("ViewGroupID", 0),
           input("CommandSetID", 0)}};
}

}  // namespace

void ContractSubject::fill(const std::vector<ViewGroup>& rows) {
  connection().execute("delete from DVR_ViewGroups");
  for (std::size_t first = 0; first < rows.size(); first += 100) {
    std::string values;
    for (std::size_t row = first; row < rows.size() && row < first + 100; ++row) {
      values += values.empty() ? "(" : ", (";
      values += literal(rows[row].first) + ", " + literal(rows[row].second) + ")";
    }
    connection().execute("insert into DVR_ViewGroups (ID, Description) values " + values);
  }
}

// The absolute value of the smallest number is none.
std::string ContractSubject::failingFrom(std::size_t row) {
  return "select abs(case ID when " + std::to_string(row + 1) +
         " then -9223372036854775808 else ID end) as ID, Description from DVR_ViewGroups";
}

std::vector<ConnectionKind> able(const std::vector<ConnectionKind>& kinds, Ability ability) {
  std::vector<ConnectionKind> found;
  for (const ConnectionKind& kind : kinds) {
    if (!kind.lacking.contains(ability)) found.push_back(kind);
  }
  return found;
}

std::string errorCaseName(
    const testing::TestParamInfo<std::tuple<ConnectionKind, site::ServerError>>& error) {
  return std::get<0>(error.param).name + "_" + std::get<1>(error.param).name;
}

// Numbered from 1: "Group 1", "Group 2", ...
void ConnectionTest::fill(std::size_t count) {
  std::vector<ViewGroup> rows;
  for (std::size_t id = 1; id <= count; ++id) {
    rows.emplace_back(static_cast<std::int64_t>(id), "Group " + std::to_string(id));
  }
  subject->fill(rows);
}

std::string ConnectionTest::one(const std::string& sql) {
  RecordSet rows = connection.open(sql);
  return rows.next() ? rows.text(0) : "(no row)";
}

TEST_P(ConnectionContract, WhatItLacksHasAReason) {
  for (const auto& [ability, reason] : GetParam().lacking) {
    EXPECT_FALSE(reason.empty());
    std::cout << GetParam().name << " is not asked everything: " << reason << "\n";
  }
}

TEST_P(ConnectionContract, RowsComeInOrderEachOnce) {
  fill(1201);
  RecordSet rows = open();
  std::int32_t expected = 0;
  while (rows.next()) ASSERT_EQ(rows.int32("ID"), ++expected);
  EXPECT_EQ(expected, 1201);
  EXPECT_FALSE(rows.next());
}

TEST_P(ConnectionContract, ColumnsAreFoundByNameInAnyCaseAndByPosition) {
  fill(1);
  RecordSet rows = open();
  EXPECT_EQ(rows.columns(), (std::vector<std::string>{"ID", "Description"}));
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.int32("id"), 1);
  EXPECT_EQ(rows.text("descripTION"), "Group 1");
  EXPECT_EQ(rows.int32(0), 1);
  EXPECT_EQ(rows.text(1), "Group 1");
}

TEST_P(ConnectionContract, AnUnknownFieldIsError3265) {
  fill(1);
  RecordSet rows = open();
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(errorOf([&] { rows.text("Colour"); })->number(), 3265);
  EXPECT_EQ(errorOf([&] { rows.text(2); })->number(), 3265);
  EXPECT_EQ(errorOf([&] { rows.text(-1); })->number(), 3265);
}

TEST_P(ConnectionContract, ValuesHaveTheTypesOfTheirColumns) {
  subject->fill({{std::int64_t{-2147483648}, "Main gate"}, {std::int64_t{7}, ""}});
  RecordSet rows = open();
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.value("ID"), Value(std::int64_t{-2147483648}));
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.value("ID"), Value(std::int64_t{7}));
  EXPECT_EQ(rows.value("Description"), Value(std::string()));
}

TEST_P(ConnectionContract, ANullIsNullAndReadsAsEmpty) {
  subject->fill({{std::int64_t{1}, Null{}}});
  RecordSet rows = open();
  ASSERT_TRUE(rows.next());
  EXPECT_TRUE(isNull(rows.value("Description")));
  EXPECT_EQ(rows.text("Description"), "");
  EXPECT_EQ(rows.int32("Description"), 0);
}

TEST_P(ConnectionContract, AnEmptyResultHasItsColumns) {
  fill(0);
  RecordSet rows = open();
  EXPECT_EQ(rows.columns(), (std::vector<std::string>{"ID", "Description"}));
  EXPECT_FALSE(rows.next());
}

// Of a server's block with an error in it ADO may lose all: tests/windows/com/ado_test.cpp.
TEST_P(ConnectionContract, AnErrorInsideABlockComesAfterTheRowsBeforeIt) {
  fill(900);
  for (const bool drained : {false, true}) {
    RecordSet rows = connection.open(subject->failingFrom(700));
    if (drained) rows.drain();
    for (std::int32_t row = 1; row <= 700; ++row) {
      ASSERT_TRUE(rows.next());
      ASSERT_EQ(rows.int32("ID"), row);
    }
    std::uint32_t line = 0;
    const auto error = errorOf([&] {
      line = __LINE__ + 1;
      rows.next();
    });
    ASSERT_TRUE(error);
    EXPECT_LT(error->number(), 0);
    EXPECT_EQ(error->line(), line);
    EXPECT_FALSE(rows.next());
  }
}

TEST_P(ConnectionContract, InnerStatementsRunBetweenDrainedRows) {
  fill(600);
  RecordSet outer = open();
  ASSERT_TRUE(outer.next());
  outer.drain();
  std::int32_t expected = 0;
  do {
    ASSERT_EQ(outer.int32("ID"), ++expected);
    if (expected % 200 == 1) {
      RecordSet inner = open();
      ASSERT_TRUE(inner.next());
      EXPECT_EQ(inner.int32("ID"), 1);
    }
  } while (outer.next());
  EXPECT_EQ(expected, 600);
}

TEST_P(ConnectionContract, AClosedRecordSetHasNoRows) {
  fill(2);
  RecordSet rows = open();
  ASSERT_TRUE(rows.next());
  rows.close();
  EXPECT_FALSE(rows.next());
  EXPECT_EQ(errorOf([&] { rows.text(0); })->number(), 3021);
  connection.execute("delete from DVR_ViewGroups");
}

TEST_P(ConnectionContract, ADetachedRowStaysWhileStatementsRun) {
  fill(2);
  RecordSet rows = open();
  ASSERT_TRUE(rows.next());
  rows.detach();
  connection.execute("delete from DVR_ViewGroups");
  EXPECT_EQ(rows.text("Description"), "Group 1");
}

TEST_P(ConnectionContract, AWrongStatementTellsWhatIsWrongAndLeavesTheConnectionUsable) {
  fill(1);
  std::uint32_t line = 0;
  const auto opened = errorOf([&] {
    line = __LINE__ + 1;
    connection.open("select * from Nowhere");
  });
  ASSERT_TRUE(opened);
  EXPECT_LT(opened->number(), 0);
  EXPECT_THAT(opened->description(), HasSubstr("Nowhere"));
  EXPECT_EQ(opened->line(), line);
  EXPECT_FALSE(opened->connectionLost());
  const auto executed = errorOf([&] { connection.execute("select * from Nowhere"); });
  ASSERT_TRUE(executed);
  EXPECT_EQ(executed->number(), opened->number());
  EXPECT_EQ(one(viewGroups), "1");
}

TEST_P(ProcedureContract, AnOutputParameterComesBackAndInputsStay) {
  ProcedureCall first = addAction();
  connection.execute(first);
  ProcedureCall second = addAction();
  connection.execute(second);
  EXPECT_GT(toInt32(first.parameters[0].value), 0);
  EXPECT_EQ(toInt32(second.parameters[0].value), toInt32(first.parameters[0].value) + 1);
  EXPECT_EQ(second.parameters[3].value, Value(6.25));
}

TEST_P(TextContract, TextsAreFoundAsAServerFindsThem) {
  connection.execute(
      "insert into DVR_ViewGroups (ID, Description) values (90, 'T\xC3\xBCr \xC3\x84u\xC3\x9F"
      "ere  ')");
  const std::string found = "select ID from DVR_ViewGroups where Description = ";
  EXPECT_EQ(one(found + "'t\xC3\x9CR \xC3\xA4ussere'"), "90");
  EXPECT_EQ(one(found + "'Tur Aussere'"), "(no row)");
  EXPECT_EQ(one("select AddInID from ApplicatrionAddIns where AddInObjectName = N'MORVATPELORIN '"),
            "3");
}

TEST_P(TextContract, TextsAreOrderedAsAServerOrdersThem) {
  connection.execute("delete from DVR_ViewGroups");
  connection.execute(
      "insert into DVR_ViewGroups (ID, Description) values (1, 'zebra'), (2, '\xC3\xA4pfel'), "
      "(3, 'Apfelbaum'), (4, '\xC3\x89tage'), (5, 'etagen'), (6, 'apfel'), (7, '_low')");
  std::string order;
  RecordSet rows = connection.open("select ID from DVR_ViewGroups order by Description");
  while (rows.next()) order += rows.text("ID");
  EXPECT_EQ(order, "7623451");
}

TEST_P(KeyContract, ANullIsRefusedInEveryKeyThatTheEngineDoesNotNumber) {
  for (const site::Table& table : site::siteSchema().tables()) {
    if (table.hasIdentity()) continue;
    const std::string count = "select count(*) from " + table.name;
    const std::string before = one(count);
    const auto error = errorOf([&] {
      connection.execute("insert into " + table.name + " (" + table.key.front() +
                         ") values (null)");
    });
    ASSERT_TRUE(error) << table.name;
    EXPECT_THAT(error->description(), StartsWith("Cannot insert the value NULL into c"))
        << table.name;
    EXPECT_EQ(one(count), before) << table.name;
  }
}

TEST_P(ServerErrorContract, HasTheNumberThatAdoGivesIt) {
  const auto& [kind, error] = GetParam();
  const auto subject = kind.make();
  const auto raised = errorOf([&, &wanted = error] { subject->raise(wanted); });
  ASSERT_TRUE(raised) << "it ran";
  EXPECT_EQ(raised->number(), error.ado) << raised->description();
}

}  // namespace pelorin::test
