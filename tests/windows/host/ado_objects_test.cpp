// The reference host's objects behave as ADO's do.
#include <gmock/gmock.h>

#include "host/ado/ado_command_object.h"
#include "host/ado/ado_connection_object.h"
#include "host/ado/ado_failure.h"
#include "host/ado/ado_recordset_object.h"
#include "host/automation/class_registration.h"
#include "host/core/embedded_connection.h"
#include "site/site_database.h"
#include "win32/ado/ado_connection.h"
#include "win32/com/ado_ids.h"
#include "win32/com/late_bound.h"
#include "win32/services/recognise.h"

namespace pelorin::test {
namespace {

using host::AdoCommandObject;
using host::AdoConnectionObject;
using host::AdoRecordsetObject;
using testing::ElementsAre;

constexpr const char* switchers = "select SwitcherID, Name, INI_FILE from CCTV_Switchers";

std::shared_ptr<host::ResultConnection> noConnection(const std::string&) {
  throw RunTimeError(5, "not here");
}

std::string textOf(const Variant& variant) {
  return toText(valueOf(variant));
}

// 150 rows, then the server is gone: inside the second block that is fetched.
class BrokenOffResults : public host::ResultCursor {
 public:
  const std::vector<std::string>& columns() const override { return columns_; }
  bool nextResult() override { return false; }
  std::size_t fetch(std::size_t rows, std::vector<Value>& cells) override {
    for (std::size_t fetched = 0; fetched < rows; ++fetched) {
      if (given_ == 150) throw host::DatabaseError(-2147467259, {{"link failure", 0, "08S01"}});
      cells.emplace_back(std::int64_t{given_++});
    }
    return rows;
  }

 private:
  std::vector<std::string> columns_{"ID"};
  int given_ = 0;
};

class BrokenOffDatabase : public host::ResultConnection {
 public:
  std::unique_ptr<host::ResultCursor> openResults(std::string_view) override {
    return std::make_unique<BrokenOffResults>();
  }
  std::vector<host::ServerMessage> messages() const override { return {}; }

 protected:
  void run(std::string_view) override {}
  void call(ProcedureCall&) override {}
};

class AdoObjects : public testing::Test {
 protected:
  ComPtr<IDispatch> connection() const {
    return ComPtr<IDispatch>(
        host::makeObject<AdoConnectionObject>(
            noConnection, std::make_shared<host::EmbeddedConnection>(site.session()), "site")
            .get());
  }
  LateBound open(const char* sql) {
    return LateBound(ado).object(L"Execute", {Variant::text(sql)});
  }
  std::int32_t errorOfCall(LateBound object, const wchar_t* member,
                           std::initializer_list<Variant> arguments = {}) {
    try {
      object.call(member, arguments);
    } catch (const RunTimeError& error) {
      return error.number();
    }
    return 0;
  }

  SiteDatabase site = SiteDatabase::inMemory(demonstrationSite);
  ComPtr<IDispatch> ado = connection();
};

TEST_F(AdoObjects, TheConnectionIsRecognisedAsOneOfAdo) {
  EXPECT_TRUE(isAdoConnection(ado.get()));
  EXPECT_EQ(textOf(LateBound(ado).call(L"State")), "1");
  EXPECT_EQ(textOf(LateBound(ado).call(L"ConnectionString")), "site");
}

TEST_F(AdoObjects, ARecordsetIsReadByNameByPositionAndToItsEnd) {
  LateBound rows = open(switchers);
  EXPECT_EQ(textOf(rows.object(L"Fields").item(Variant::text("name")).call(L"Value")),
            "Main building switcher");
  EXPECT_EQ(textOf(rows.object(L"Fields", {Variant::int32(0)}).call(L"Value")), "1");
  EXPECT_FALSE(toBoolean(valueOf(rows.call(L"EOF"))));
  rows.call(L"MoveNext");
  rows.call(L"MoveNext");
  EXPECT_TRUE(toBoolean(valueOf(rows.call(L"EOF"))));
  EXPECT_EQ(errorOfCall(rows, L"MoveNext"), 3021);
}

TEST_F(AdoObjects, AFieldThatIsNotThereIsError3265) {
  EXPECT_EQ(errorOfCall(open(switchers), L"Fields", {Variant::text("Colour")}), 3265);
}

TEST_F(AdoObjects, AClosedRecordsetRefusesEverything) {
  LateBound rows = open(switchers);
  rows.call(L"Close");
  EXPECT_EQ(textOf(rows.call(L"State")), "0");
  EXPECT_EQ(errorOfCall(rows, L"EOF"), 3704);
  EXPECT_EQ(errorOfCall(rows, L"Close"), 3704);
}

TEST_F(AdoObjects, AStatementWithoutRowsGivesAClosedRecordset) {
  LateBound rows = open("exec TA_DeleteTrigger 1");
  EXPECT_EQ(textOf(rows.call(L"State")), "0");
}

TEST_F(AdoObjects, ARecordsetOpensItselfOnAConnection) {
  LateBound rows(ComPtr<IDispatch>(host::makeObject<AdoRecordsetObject>().get()));
  rows.call(L"Open", {Variant::text(switchers), Variant::object(ado.get()), Variant::int32(0),
                      Variant::int32(1)});
  EXPECT_EQ(textOf(rows.call(L"State")), "1");
  EXPECT_EQ(errorOfCall(rows, L"Open", {Variant::text(switchers)}), 3705);
}

TEST_F(AdoObjects, TheServersErrorComesWithItsTextAndStaysInTheErrorsCollection) {
  LateBound connection(ado);
  try {
    connection.call(L"Execute", {Variant::text("select Missing from Nowhere")});
    FAIL() << "no error";
  } catch (const RunTimeError& error) {
    EXPECT_LT(error.number(), 0);
    LateBound errors = connection.object(L"Errors");
    EXPECT_EQ(textOf(errors.call(L"Count")), "1");
    EXPECT_EQ(textOf(errors.item(Variant::int32(0)).call(L"Description")), error.description());
  }
  connection.call(L"Execute", {Variant::text(switchers)});
  EXPECT_EQ(textOf(connection.object(L"Errors").call(L"Count")), "0");
}

TEST_F(AdoObjects, AfterCloseTheConnectionIsInvalid) {
  LateBound connection(ado);
  connection.call(L"Close");
  EXPECT_EQ(errorOfCall(connection, L"Execute", {Variant::text(switchers)}), 3709);
}

// The component's own adapter over these objects: both sides of the contract in one process.
class AdapterOverAdoObjects : public AdoObjects {
 protected:
  AdapterOverAdoObjects()
      : commands(ado::commandClass,
                 [] { return ComPtr<IDispatch>(host::makeObject<AdoCommandObject>().get()); }) {}

  host::ClassRegistration commands;
  AdoConnection adapter{connection()};
};

TEST_F(AdapterOverAdoObjects, RowsArriveWithTheirValues) {
  RecordSet rows = adapter.open("select * from DVR_TriggerActions (NOLOCK) where DVRActionID = 4");
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.int32("ID_DVR_Config"), 3);
  EXPECT_EQ(rows.value("RecordRate"), Value(0.8));
  EXPECT_FALSE(rows.next());
}

TEST_F(AdapterOverAdoObjects, ManyRowsArriveInOrder) {
  RecordSet rows = adapter.open("select EventId, Description, DefaultDescription from AlarmEvents");
  int count = 0;
  bool nullSeen = false;
  while (rows.next()) {
    ++count;
    nullSeen = nullSeen || isNull(rows.value("Description"));
  }
  EXPECT_GT(count, 30);
  EXPECT_TRUE(nullSeen);
}

TEST_F(AdapterOverAdoObjects, AnInnerStatementRunsWhileAnOuterResultIsRead) {
  RecordSet outer = adapter.open("SELECT * From Servers");
  ASSERT_TRUE(outer.next());
  RecordSet inner = adapter.open("EXECUTE sp_FetchServerPorts 1");
  ASSERT_TRUE(inner.next());
  EXPECT_EQ(inner.text("PortName"), "Network port 1");
  EXPECT_TRUE(outer.next());
}

TEST_F(AdapterOverAdoObjects, AProcedureGivesBackItsOutputParameter) {
  ProcedureCall call{"DVR_AddAction", {}};
  call.parameters.push_back(
      {"DVRActionID", ParameterType::Integer, ParameterDirection::Output, std::int64_t{0}});
  const auto input = [&](const char* name, std::int64_t value) {
    call.parameters.push_back({name, ParameterType::Integer, ParameterDirection::Input, value});
  };
  input("ID_DVR_Config", 1);
  input("CameraIndex", 2);
  call.parameters.push_back({"RecordRate", ParameterType::Double, ParameterDirection::Input, 6.25});
  for (const char* name :
       {"AlarmDuration", "RecordStandard", "PresetID", "ViewGroupID", "CommandSetID"}) {
    input(name, 0);
  }
  adapter.execute(call);
  const std::string id = toText(call.parameters[0].value);
  RecordSet rows =
      adapter.open("select * from DVR_TriggerActions (NOLOCK) where DVRActionID = " + id);
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.value("RecordRate"), Value(6.25));
}

TEST_F(AdapterOverAdoObjects, NothingIsLeftOpenByAnErrorInAStatement) {
  EXPECT_THROW(adapter.execute("exec CCTV_Update_TA 'broken"), RunTimeError);
  EXPECT_NO_THROW(adapter.execute("exec TA_DeleteTrigger 1"));
}

TEST_F(AdapterOverAdoObjects, TheRegisteredClassServesThisApartmentUntilItIsRevoked) {
  ComPtr<IDispatch> command;
  ASSERT_EQ(CoCreateInstance(ado::commandClass, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                             command.putVoid()),
            S_OK);
  EXPECT_TRUE(LateBound(command).knows(L"CreateParameter"));
}

TEST(RowsBeforeAnError, ArriveAndTheErrorTellsOfTheLostConnection) {
  AdoConnection connection{ComPtr<IDispatch>(
      host::makeObject<AdoConnectionObject>(noConnection, std::make_shared<BrokenOffDatabase>(), "")
          .get())};
  RecordSet rows = connection.open("select ID from Things");
  for (int row = 0; row < 150; ++row) {
    ASSERT_TRUE(rows.next());
    EXPECT_EQ(rows.int32("ID"), row);
  }
  try {
    rows.next();
    FAIL();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.description(), "link failure");
    EXPECT_TRUE(error.connectionLost());
  }
}

}  // namespace
}  // namespace pelorin::test
