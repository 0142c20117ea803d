// Statements of the component over the embedded site.
#include "site/site_session.h"

#include <gmock/gmock.h>

#include "database/ado_numbers.h"
#include "site/errors.h"
#include "tests/site/site_fixture.h"

namespace pelorin {
namespace {

using testing::ElementsAre;

class Session : public SiteTest {};

struct WrongStatement {
  const char* name;
  const char* sql;
  const char* description;
  std::int32_t number = ado::error::statement;
};

void PrintTo(const WrongStatement& statement, std::ostream* out) {
  *out << statement.name;
}

class FailsAsOnTheServer : public SiteTest, public testing::WithParamInterface<WrongStatement> {};

TEST_P(FailsAsOnTheServer, Statement) {
  const auto& [name, sql, description, number] = GetParam();
  try {
    connection_->execute(sql);
    FAIL() << "it ran";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.description(), description);
    EXPECT_EQ(error.number(), number);
    EXPECT_NE(error.line(), 0U);
  }
}

const WrongStatement wrongStatements[]{
    {"unknownProcedure", "exec NoSuchThing 1", "Could not find stored procedure 'NoSuchThing'."},
    {"unknownBareWord", "hello", "Could not find stored procedure 'hello'."},
    {"unknownTable", "select * from Nowhere", "Invalid object name 'Nowhere'.",
     ado::error::noTable},
    {"unknownColumn", "select Colour from Doors", "Invalid column name 'Colour'."},
    {"trueOutsideACall", "select * from Doors where Active = True", "Invalid column name 'True'."},
    {"twoSelects", "select 1 select 2", "Incorrect syntax near 'select'."},
    {"engineLimit", "select * from Doors limit 1", "Incorrect syntax near '1'."},
    {"cutOff", "select * from Doors where", "Incorrect syntax at the end of the statement."},
    {"ambiguous", "select ID from DVR_Config inner join DVR_Cameras on ID = ID",
     "Ambiguous column name 'ID'."},
    {"tooManyArguments", "exec TA_DeleteTrigger 1, 2",
     "Procedure or function TA_DeleteTrigger has too many arguments specified."},
    {"argumentsForNone", "exec TA_FetchSummary 1",
     "Procedure or function TA_FetchSummary has too many arguments specified."},
    {"missingArgument", "sp_FetchKumbos",
     "Procedure or function 'sp_FetchKumbos' expects parameter '@PortID', which was not supplied.",
     ado::error::missingParameter},
    {"missingLastArgument", "exec CCTV_Insert_TA 1, 1, 1, 0, 1, 'A', 1, '1', 'x', 0",
     "Procedure or function 'CCTV_Insert_TA' expects parameter '@OpenViewer', which was not "
     "supplied.",
     ado::error::missingParameter},
    {"unknownName", "exec TA_DeleteTrigger @id=1",
     "@id is not a parameter for procedure TA_DeleteTrigger."},
    {"sameNameTwice", "exec TA_DeleteTrigger @TriggerID=1, @triggerid=1",
     "Parameter '@triggerid' was supplied multiple times."},
    {"positionAfterName", "CCTV_FetchCameraNoPresets @CameraIndex=1, 2",
     "Must pass parameter number 2 and subsequent parameters as '@name = value'."},
    {"textForNumber", "exec TA_DeleteTrigger 'abc'", "Error converting data type nvarchar to int.",
     ado::error::conversion},
    {"emptyTextForNumber", "exec TA_DeleteTrigger ''",
     "Error converting data type nvarchar to int.", ado::error::conversion},
    {"fractionForNumber", "exec TA_DeleteTrigger 1.5", "Error converting data type numeric to int.",
     ado::error::conversion},
    {"beyondInt", "exec TA_DeleteTrigger 2147483648", "Error converting data type numeric to int.",
     ado::error::conversion},
    {"beyondSmallint", "exec CCTV_Insert_TA 1, 32768, 1, 0, 1, 'A', 1, '1', 'x', 0, True",
     "Error converting data type int to smallint.", ado::error::conversion},
    {"wordForBit", "exec CCTV_Insert_TA 1, 1, 1, 0, 1, 'A', 1, '1', 'x', 0, Maybe",
     "Error converting data type nvarchar to bit.", ado::error::conversion},
    {"undoubledQuote",
     "exec CCTV_Insert_TA 1, 1, 1, 0, 1, 'A', 1, '1', 'A - Drivers' lounge', 0, True",
     "Incorrect syntax near 'lounge'."},
    {"nullIntoKey", "insert into Doors (DoorID, ControllerID) values (4711, null)",
     "Cannot insert the value NULL into column 'ControllerID', table 'Doors'; column does not "
     "allow nulls.",
     ado::error::constraint},
    {"keyTwice", "insert into Servers (ServerID) values (1)",
     "UNIQUE constraint failed: Servers.ServerID.", ado::error::constraint},
};

std::string wrongStatementName(const testing::TestParamInfo<WrongStatement>& wrong) {
  return wrong.param.name;
}

INSTANTIATE_TEST_SUITE_P(Session, FailsAsOnTheServer, testing::ValuesIn(wrongStatements),
                         wrongStatementName);

std::string insertWithAddress(const std::string& address) {
  return "exec CCTV_Insert_TA 1, 1, 1, 0, 1, '" + address + "', 1, '1', 'x', 0, True";
}

TEST_F(Session, ATextOfTheFullLengthFitsAndOneMoreFails) {
  EXPECT_EQ(failure(insertWithAddress(std::string(128, 'a'))), "");
  EXPECT_EQ(failure(insertWithAddress(std::string(129, 'a'))),
            "String or binary data would be truncated.");
}

TEST_F(Session, LengthIsCountedInUtf16Units) {
  std::string pairs;
  for (int at = 0; at < 64; ++at) pairs += "\xF0\x9F\x9A\xAA";
  EXPECT_EQ(failure(insertWithAddress(pairs)), "");
  EXPECT_EQ(failure(insertWithAddress(pairs + "a")), "String or binary data would be truncated.");
}

TEST_F(Session, ARefusedCallWritesNothing) {
  const std::int64_t before = count("CCTV_TriggerAction");
  failure(insertWithAddress(std::string(129, 'a')));
  failure(insertWithAddress("Drivers' lounge"));
  EXPECT_EQ(count("CCTV_TriggerAction"), before);
}

TEST_F(Session, UnicodeTextComesBackAsItWent) {
  const std::string text = "T\xC3\xBCr-\xE6\x89\x89-\xF0\x9F\x9A\xAA";
  connection_->execute(insertWithAddress(text));
  EXPECT_EQ(one("select T_Address from CCTV_TriggerAction where T_Address = N'" + text + "'"),
            text);
}

TEST_F(Session, DoubledQuoteIsOneQuote) {
  connection_->execute(insertWithAddress("O''Brien"));
  EXPECT_EQ(one("select T_Address from CCTV_TriggerAction where T_Address = 'O''Brien'"),
            "O'Brien");
}

TEST_F(Session, ValuesKeepTheirKinds) {
  RecordSet rows = connection_->open(
      "select OpenViewer, T_EventID, T_EventText from CCTV_TriggerAction where TA_ID = 1");
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.value(0), Value(true));
  EXPECT_EQ(rows.value(1), Value(std::int64_t{1}));
  EXPECT_EQ(rows.value(2), Value(std::string("1")));
  RecordSet action = connection_->open("select * from DVR_TriggerActions where DVRActionID = 1");
  ASSERT_TRUE(action.next());
  EXPECT_EQ(action.value("RecordRate"), Value(15.0));
}

TEST_F(Session, NullsReadAsNull) {
  RecordSet rows = connection_->open("select PortStyle, Address from ServerPorts where PortID = 5");
  ASSERT_TRUE(rows.next());
  EXPECT_TRUE(isNull(rows.value("PortStyle")));
  EXPECT_EQ(rows.text("PortStyle"), "");
  EXPECT_FALSE(isNull(rows.value("Address")));
}

TEST_F(Session, TableAndColumnNamesDisregardCase) {
  EXPECT_EQ(one("SELECT switcherID FROM cctv_switchers WHERE SWITCHERID =1"), "1");
}

TEST_F(Session, TextIsComparedAndOrderedWithoutRegardToCase) {
  EXPECT_EQ(one("select ClassName from integratedDeviceclasses "
                "where ClassAddressAbreviation = 'csr'"),
            "Central Station Receiver");
  connection_->execute("insert into DVR_ViewGroups (ID, Description) values (9, 'archive')");
  EXPECT_THAT(allRows(*connection_,
                      "select ID, Description from DVR_ViewGroups order by Description", {"ID"}),
              ElementsAre(ElementsAre("9"), ElementsAre("2"), ElementsAre("1"), ElementsAre("4"),
                          ElementsAre("3")));
}

TEST_F(Session, AComputedColumnHasNoName) {
  const SiteResult result =
      site_.session()->run("select count(EventID), max(EventID) as M from Zorn_EventDefinitions");
  EXPECT_THAT(result.rows->columns(), ElementsAre("", "M"));
}

TEST_F(Session, SeveralResultsCanBeOpenAtOnce) {
  RecordSet outer = connection_->open("select ServerID from Servers");
  int ports = 0;
  while (outer.next()) {
    RecordSet inner = connection_->open("EXECUTE sp_FetchServerPorts " + outer.text(0));
    while (inner.next()) ++ports;
    connection_->execute("exec TA_DeleteTrigger 4711");
  }
  EXPECT_EQ(ports, 5);
}

TEST_F(Session, RowsAffectedAreCounted) {
  const auto& session = site_.session();
  EXPECT_EQ(session->run("delete from CCTV_TriggerAction where SwitcherID = 1").recordsAffected, 5);
  EXPECT_EQ(session->run("exec TA_DeleteTrigger 4711").recordsAffected, 0);
  EXPECT_EQ(session->run("select * from Servers").recordsAffected, -1);
}

TEST_F(Session, AStatementRunsWhenItIsOpenedEvenIfNobodyFetches) {
  { RecordSet ignored = connection_->open("select * from Servers"); }
  EXPECT_THROW(connection_->open("exec TA_DeleteTrigger 1"), RunTimeError);
  EXPECT_EQ(one("select TriggerID from IntegratedDeviceTriggers where TriggerID = 1"), "(no row)");
}

TEST_F(Session, AnOpenResultOutlivesItsDatabase) {
  auto site = std::make_unique<SiteDatabase>(SiteDatabase::inMemory(demonstrationSite));
  std::unique_ptr<Connection> connection = site->connect();
  RecordSet rows = connection->open("select * from Servers");
  connection.reset();
  site.reset();
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.text("Server_Name"), "HeadOffice");
}

TEST_F(Session, ACommandWithTooFewParametersFails) {
  ProcedureCall call{"DVR_AddAction",
                     {{"DVRActionID", ParameterType::Integer, ParameterDirection::Output, Null{}}}};
  EXPECT_THROW(connection_->execute(call), RunTimeError);
  EXPECT_EQ(count("DVR_TriggerActions"), 5);
}

TEST_F(Session, ALongStatementRuns) {
  std::string sql = "select ID from DVR_Config where ID in (0";
  for (int at = 10; at < 20000; ++at) sql += ", " + std::to_string(at);
  EXPECT_EQ(failure(sql + ")"), "");
}

}  // namespace
}  // namespace pelorin
