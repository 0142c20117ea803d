// The languages in which tables, procedures, data and statements are written down.
#include <gmock/gmock.h>

#include "base/run_time_error.h"
#include "site/embedded_schema.h"
#include "site/procedure.h"
#include "site/row_data.h"
#include "site/schema.h"
#include "site/statement_table.h"

namespace pelorin::site {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

template <class Work>
std::string errorOf(Work&& work) {
  try {
    work();
  } catch (const RunTimeError& error) {
    return error.description();
  }
  return "";
}

std::string schemaError(std::string_view text) {
  return errorOf([&] {
    Schema schema;
    schema.read(text);
  });
}

TEST(TableDescription, ReadsTablesColumnsKeysAndIndexes) {
  Schema schema;
  schema.read(
      "# note\ntable T  What it is for.\n  A int identity\n  B nvarchar(20) required\n"
      "  C float\n  key A\n  index B, C\n");
  const Table* table = schema.table("t");
  ASSERT_TRUE(table);
  EXPECT_EQ(table->purpose, "What it is for.");
  EXPECT_TRUE(table->hasIdentity());
  EXPECT_EQ(table->column("b")->type, (SqlType{SqlType::Kind::Text, 20}));
  EXPECT_TRUE(table->column("B")->required);
  EXPECT_FALSE(table->column("C")->required);
  EXPECT_THAT(table->key, ElementsAre("A"));
  EXPECT_THAT(table->indexes, ElementsAre(ElementsAre("B", "C")));
  EXPECT_FALSE(schema.table("U"));
}

TEST(TableDescription, RefusesWhatItDoesNotUnderstand) {
  EXPECT_THAT(schemaError("  A int\n"), HasSubstr("A int"));
  EXPECT_THAT(schemaError("tabel T\n"), HasSubstr("tabel T"));
  EXPECT_THAT(schemaError("table T\n  A money\n"), HasSubstr("money"));
  EXPECT_THAT(schemaError("table T\n  A int always\n"), HasSubstr("always"));
  EXPECT_THAT(schemaError("table T\n  A int\n  key B\n"), HasSubstr("B"));
  EXPECT_THAT(schemaError("table T\n  A nvarchar(0)\n"), HasSubstr("nvarchar(0)"));
}

TEST(TableDescription, EveryTableHasAPurposeAndARequiredKey) {
  for (const Table& table : siteSchema().tables()) {
    EXPECT_FALSE(table.purpose.empty()) << table.name;
    ASSERT_FALSE(table.key.empty()) << table.name;
    for (const std::string& name : table.key) {
      EXPECT_TRUE(table.column(name)->required) << table.name;
    }
  }
}

TEST(TableDescription, ColumnsThatAreReadByPositionComeFirst) {
  const std::vector<std::pair<const char*, const char*>> first{{"ApplicatrionAddIns", "AddInID"},
                                                               {"CCTV_Cameras", "ID"},
                                                               {"DVR_Config", "ID"},
                                                               {"DVR_Cameras", "ID"},
                                                               {"Servers", "ServerID"},
                                                               {"Controllers", "Controller_ID"},
                                                               {"Inputs", "InputID"},
                                                               {"Outputs", "OutputID"},
                                                               {"Readers", "ReaderID"},
                                                               {"ExpInputs", "ExpInputID"},
                                                               {"ExpOutputs", "ExpOutputID"}};
  for (const auto& [table, column] : first) {
    EXPECT_EQ(siteSchema().table(table)->columns.front().name, column);
  }
}

TEST(EmbeddedDefinition, NamesAreQuotedAndTextsDisregardCase) {
  Schema schema;
  schema.read("table T\n  A int identity\n  Index nvarchar(20) required\n  key A\n  index Index\n");
  EXPECT_EQ(embeddedDefinition(*schema.table("T")),
            "create table \"T\" (\"A\" integer primary key autoincrement, "
            "\"Index\" nvarchar(20) collate server_text not null);"
            "create index \"IX_T_Index\" on \"T\" (\"Index\");");
}

TEST(ProcedureFile, ReadsHeaderAndBody) {
  const Procedure procedure =
      readProcedure("P",
                    "-- What it does.\n-- parameter @a int\n-- parameter @b nvarchar(5) output\n"
                    "-- result C bit\nselect 1\nwhere 2\n");
  EXPECT_EQ(procedure.purpose, "What it does.");
  ASSERT_EQ(procedure.parameters.size(), 2U);
  EXPECT_EQ(procedure.parameters[0].name, "@a");
  EXPECT_FALSE(procedure.parameters[0].output);
  EXPECT_TRUE(procedure.parameters[1].output);
  EXPECT_EQ(procedure.results[0].name, "C");
  EXPECT_EQ(procedure.serverBody, "select 1\nwhere 2\n");
  EXPECT_EQ(procedure.embeddedBody, procedure.serverBody);
}

TEST(ProcedureFile, EngineLinesPartTheBodies) {
  const Procedure procedure =
      readProcedure("P", "-- Purpose.\n-- engine server\na\n-- engine embedded\nb\n");
  EXPECT_EQ(procedure.serverBody, "a\n");
  EXPECT_EQ(procedure.embeddedBody, "b\n");
}

TEST(ProcedureFile, RefusesWhatItDoesNotUnderstand) {
  EXPECT_THROW(readProcedure("P", "-- Purpose.\n-- more purpose\n"), RunTimeError);
  EXPECT_THROW(readProcedure("P", "-- parameter a int\n"), RunTimeError);
  EXPECT_THROW(readProcedure("P", "-- parameter @a int inout\n"), RunTimeError);
  EXPECT_THROW(readProcedure("P", "-- engine other\n"), RunTimeError);
}

class Seen final : public RowSink {
 public:
  void begin(const Table& table, const ColumnNames& columns) override {
    tables.push_back(table.name);
    names = columns;
  }
  void row(const Row& row) override { rows.push_back(row); }

  std::vector<std::string> tables;
  ColumnNames names;
  std::vector<Row> rows;
};

std::string dataError(std::string_view text) {
  return errorOf([&] {
    Seen seen;
    readRows(text, seen);
  });
}

TEST(DataFile, CellsTakeTheTypesOfTheirColumns) {
  Seen seen;
  readRows("table Doors\nDoorID | DoorName | Active\n1 | Main  door | 1\n2 | null | 0\n3 | | 1\n",
           seen);
  EXPECT_THAT(seen.tables, ElementsAre("Doors"));
  EXPECT_THAT(seen.names, ElementsAre("DoorID", "DoorName", "Active"));
  EXPECT_EQ(seen.rows[0], (Row{std::int64_t{1}, std::string("Main  door"), true}));
  EXPECT_EQ(seen.rows[1], (Row{std::int64_t{2}, Null{}, false}));
  EXPECT_EQ(seen.rows[2], (Row{std::int64_t{3}, std::string(), true}));
}

TEST(DataFile, RefusesWhatDoesNotFitTheTable) {
  EXPECT_THAT(dataError("table Nothing\n"), HasSubstr("Nothing"));
  EXPECT_THAT(dataError("1 | 2\n"), HasSubstr("1 | 2"));
  EXPECT_THAT(dataError("table Doors\nDoorID | Colour\n"), HasSubstr("Colour"));
  EXPECT_THAT(dataError("table Doors\nDoorID | DoorName\n1\n"), HasSubstr("'1'"));
  EXPECT_THAT(dataError("table Doors\nDoorID\nabc\n"), HasSubstr("converting"));
}

TEST(StatementFile, SamplesReplaceTheirPlaces) {
  const auto statements = readStatements(
      "statement S writes\n  \"do {a} and {a} \"\n  {a} = x y\nstatement T\n  \"t\"\n  columns A, "
      "#0\n");
  ASSERT_EQ(statements.size(), 2U);
  EXPECT_EQ(statements[0].text, "do x y and x y ");
  EXPECT_TRUE(statements[0].writes);
  EXPECT_THAT(statements[1].columns, ElementsAre("A", "#0"));
}

TEST(StatementFile, RefusesWhatItDoesNotUnderstand) {
  EXPECT_THROW(readStatements("  \"orphan\"\n"), RunTimeError);
  EXPECT_THROW(readStatements("statement S\n  whatever\n"), RunTimeError);
}

}  // namespace
}  // namespace pelorin::site
