// The ADO adapter over ADO-shaped objects.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/windows/com/class_object.h"
#include "tests/windows/com/fake_ado.h"
#include "win32/ado/ado_connection.h"
#include "win32/com/ado_ids.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

struct AdoTest : ::testing::Test {
  FakeAdo ado;
  std::shared_ptr<Connection> connection =
      std::make_shared<AdoConnection>(ComPtr<IDispatch>(ado.connection.get()));

  static FakeResult numbers(int count) {
    FakeResult result{{"ID"}, {}};
    for (int i = 0; i < count; ++i) result.rows.push_back({Variant::int32(i)});
    return result;
  }
};

TEST_F(AdoTest, ReadsRowsByNameAndPosition) {
  ado.give("select",
           {{"ID", "Name"},
            {{Variant::int32(1), Variant::text("one")}, {Variant::int32(2), Variant::null()}}});
  RecordSet rows = connection->open("select");
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.int32("id"), 1);
  EXPECT_EQ(rows.text("NAME"), "one");
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.int32(0), 2);
  EXPECT_EQ(rows.text(1), "");
  EXPECT_FALSE(rows.next());
}

TEST_F(AdoTest, ResultWithoutRowsHasItsColumns) {
  ado.give("select", {{"ID"}, {}});
  RecordSet rows = connection->open("select");
  EXPECT_FALSE(rows.next());
  EXPECT_EQ(*ado.openRecordsets, 0);
}

TEST_F(AdoTest, ReadsInBlocks) {
  ado.give("select", numbers(1201));
  RecordSet rows = connection->open("select");
  int count = 0;
  while (rows.next()) EXPECT_EQ(rows.int32("ID"), count++);
  EXPECT_EQ(count, 1201);
  EXPECT_THAT(*ado.blockSizes, SizeIs(3));
}

TEST_F(AdoTest, StatementIsSentAsText) {
  connection->open("exec A 1");
  EXPECT_THAT(ado.connection->calls(), ElementsAre("Execute(BSTR exec A 1, MISSING, I4 1)"));
}

TEST_F(AdoTest, StatementWithoutResultAsksForNone) {
  connection->execute("exec A 1");
  EXPECT_THAT(ado.connection->calls(), ElementsAre("Execute(BSTR exec A 1, MISSING, I4 129)"));
}

TEST_F(AdoTest, ClosesTheRecordSetWhenAllOrNothingWasRead) {
  ado.give("select", numbers(3));
  {
    RecordSet rows = connection->open("select");
    rows.next();
    EXPECT_EQ(*ado.openRecordsets, 1);
  }
  EXPECT_EQ(*ado.openRecordsets, 0);
}

TEST_F(AdoTest, ClosesTheRecordSetWhenItsColumnsCannotBeRead) {
  auto broken = FakeObject::make();
  int closed = 0;
  broken->on(L"State", answer(Variant::int32(1)))
      .on(L"Fields", fail(E_FAIL, L"gone"))
      .on(L"Close", [&](Call&) {
        ++closed;
        return S_OK;
      });
  auto object = FakeObject::make();
  object->on(L"Execute", answerObject(broken));
  AdoConnection other{ComPtr<IDispatch>(object.get())};
  EXPECT_THROW(other.open("select"), RunTimeError);
  EXPECT_EQ(closed, 1);
}

TEST_F(AdoTest, ClosesTheRecordSetWhenAFetchFails) {
  auto object = FakeObject::make();
  auto rowsObject = FakeObject::make();
  auto fields = FakeObject::make();
  int closed = 0;
  fields->on(L"Count", answer(Variant::int32(0)));
  rowsObject->on(L"State", answer(Variant::int32(1)))
      .on(L"Fields", answerObject(fields))
      .on(L"EOF", answer(Variant::int16(0)))
      .on(L"GetRows", fail(E_FAIL, L"connection lost"))
      .on(L"Close", [&](Call&) {
        ++closed;
        return E_FAIL;
      });
  object->on(L"Execute", answerObject(rowsObject));
  AdoConnection other{ComPtr<IDispatch>(object.get())};
  {
    RecordSet rows = other.open("select");
    EXPECT_THROW(rows.next(), RunTimeError);
  }
  EXPECT_EQ(closed, 1);
}

TEST_F(AdoTest, SkipsRowCountsInFrontOfTheRows) {
  auto counts = FakeObject::make();
  counts->on(L"State", answer(Variant::int32(0)))
      .on(L"NextRecordset", answerObject(ado.recordset(numbers(1))));
  auto object = FakeObject::make();
  object->on(L"Execute", answerObject(counts));
  AdoConnection other{ComPtr<IDispatch>(object.get())};
  RecordSet rows = other.open("exec WritesFirst");
  EXPECT_TRUE(rows.next());
}

TEST_F(AdoTest, StatementWithoutRowsCannotBeRead) {
  auto counts = FakeObject::make();
  counts->on(L"State", answer(Variant::int32(0)))
      .on(L"NextRecordset", answer(Variant::object(nullptr)));
  auto object = FakeObject::make();
  object->on(L"Execute", answerObject(counts));
  AdoConnection other{ComPtr<IDispatch>(object.get())};
  try {
    other.open("exec WritesOnly");
    FAIL();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), 3704);
  }
}

TEST_F(AdoTest, DatabaseErrorKeepsNumberTextAndLine) {
  ado.failures["select"] = L"Invalid object name 'T'.";
  try {
    connection->open("select");
    FAIL();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), -2147217900);
    EXPECT_EQ(error.description(), "Invalid object name 'T'.");
    EXPECT_GT(error.line(), 0U);
  }
}

TEST_F(AdoTest, CellOfAnUnknownTypeIsAnErrorOnlyWhereItIsRead) {
  FakeResult result{{"ID", "Shape"}, {}};
  for (int i = 0; i < 600; ++i) {
    result.rows.push_back({Variant::int32(i), Variant::object(ado.connection.get())});
  }
  ado.give("select", result);
  RecordSet rows = connection->open("select");
  int count = 0;
  while (rows.next()) EXPECT_EQ(rows.int32("ID"), count++);
  EXPECT_EQ(count, 600);
  RecordSet again = connection->open("select");
  ASSERT_TRUE(again.next());
  try {
    again.text("Shape");
    FAIL();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), 13);
  }
}

TEST_F(AdoTest, RowsBeforeALostBlockAreRead) {
  ado.failingRow = 700;
  ado.give("select", numbers(900));
  RecordSet rows = connection->open("select");
  int count = 0;
  EXPECT_THROW(
      {
        while (rows.next()) ++count;
      },
      RunTimeError);
  EXPECT_EQ(count, 500);
  EXPECT_EQ(*ado.openRecordsets, 0);
}

TEST_F(AdoTest, EndlessChainOfRowCountsEnds) {
  int followed = 0;
  auto counts = FakeObject::make();
  counts->on(L"State", answer(Variant::int32(0))).on(L"NextRecordset", [&](Call& call) {
    const bool ends = ++followed == 20'000;
    return ends ? answer(Variant())(call) : answerObject(counts)(call);
  });
  auto object = FakeObject::make();
  object->on(L"Execute", answerObject(counts));
  AdoConnection other{ComPtr<IDispatch>(object.get())};
  try {
    other.open("exec Endless");
    FAIL();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), 3704);
  }
  EXPECT_EQ(followed, 10'001);
}

struct LostConnectionTest : AdoTest {
  bool lostAfterAnError() {
    ado.failures["select"] = L"failed";
    try {
      connection->open("select");
    } catch (const RunTimeError& error) {
      return error.connectionLost();
    }
    ADD_FAILURE() << "no error";
    return false;
  }
};

TEST_F(LostConnectionTest, IsOpenWithoutErrorsOfItsOwn) {
  EXPECT_FALSE(lostAfterAnError());
  ado.state = 5;  // open and executing
  EXPECT_FALSE(lostAfterAnError());
}

TEST_F(LostConnectionTest, IsOneThatIsNoLongerOpen) {
  ado.state = 0;
  EXPECT_TRUE(lostAfterAnError());
}

TEST_F(LostConnectionTest, IsOneWhoseFirstErrorIsOfTheConnection) {
  ado.sqlStates = {"08S01"};
  EXPECT_TRUE(lostAfterAnError());
  ado.sqlStates = {"42S02", "08S01"};
  EXPECT_FALSE(lostAfterAnError());
}

TEST_F(LostConnectionTest, IsNotOneThatTellsNothing) {
  auto object = FakeObject::make();
  object->on(L"Execute", fail(E_FAIL, L"failed"));
  AdoConnection silent{ComPtr<IDispatch>(object.get())};
  try {
    silent.execute("delete");
    FAIL();
  } catch (const RunTimeError& error) {
    EXPECT_FALSE(error.connectionLost());
  }
}

TEST_F(LostConnectionTest, IsNoticedByStatementsAndProcedures) {
  ado.failures["delete"] = L"failed";
  ado.state = 0;
  ProcedureCall procedure{"DVR_AddAction", {}};
  const auto lost = [](auto&& work) {
    try {
      work();
    } catch (const RunTimeError& error) {
      return error.connectionLost();
    }
    return false;
  };
  EXPECT_TRUE(lost([&] { connection->execute("delete"); }));
  EXPECT_TRUE(lost([&] { connection->execute(procedure); }));
}

TEST_F(LostConnectionTest, IsNoticedByAFetch) {
  ado.failingRow = 0;
  ado.give("select", numbers(3));
  RecordSet rows = connection->open("select");
  ado.state = 0;
  try {
    rows.next();
    FAIL();
  } catch (const RunTimeError& error) {
    EXPECT_TRUE(error.connectionLost());
  }
}

TEST_F(AdoTest, NeverClosesTheLentConnectionAndGivesItBack) {
  ado.connection->on(L"Close", answer(Variant()));
  ado.give("select", numbers(2));
  {
    RecordSet rows = connection->open("select");
    while (rows.next()) continue;
  }
  connection.reset();
  EXPECT_EQ(ado.connection->references(), 1U);
  for (const std::string& call : ado.connection->calls()) EXPECT_NE(call, "Close()");
}

struct ProcedureTest : AdoTest {
  ComPtr<FakeObject> command = FakeObject::make();
  ComPtr<FakeObject> parameters = FakeObject::make();
  std::vector<ComPtr<FakeObject>> made;
  ClassObject commands{ado::commandClass, [this] { return command; }};

  ProcedureTest() {
    parameters->on(L"Append", answer(Variant()));
    command->on(L"ActiveConnection", answer(Variant()))
        .on(L"CommandText", answer(Variant()))
        .on(L"CommandType", answer(Variant()))
        .on(L"Parameters", answerObject(parameters))
        .on(L"CreateParameter",
            [this](Call& create) {
              made.push_back(FakeObject::make());
              made.back()->on(L"Value", answer(Variant::int32(4711)));
              return answerObject(made.back())(create);
            })
        .on(L"Execute", answer(Variant()));
  }

  ProcedureCall call{
      "DVR_AddAction",
      {{"DVRActionID", ParameterType::Integer, ParameterDirection::Output, std::int64_t{0}},
       {"RecordRate", ParameterType::Double, ParameterDirection::Input, 7.5},
       {"PresetID", ParameterType::Integer, ParameterDirection::Input, Null{}}}};
};

TEST_F(ProcedureTest, RunsAsAStoredProcedureCommandOnTheLentConnection) {
  connection->execute(call);
  EXPECT_THAT(command->calls(),
              ElementsAre("putref ActiveConnection(OBJECT)", "put CommandText(BSTR DVR_AddAction)",
                          "put CommandType(I4 4)", "Parameters()",
                          "CreateParameter(BSTR DVRActionID, I4 3, I4 2, I4 0, I4 0)",
                          "CreateParameter(BSTR RecordRate, I4 5, I4 1, I4 0, R8 7.5)",
                          "CreateParameter(BSTR PresetID, I4 3, I4 1, I4 0, NULL)",
                          "Execute(MISSING, MISSING, I4 128)"));
  EXPECT_THAT(parameters->calls(),
              ElementsAre("Append(OBJECT)", "Append(OBJECT)", "Append(OBJECT)"));
}

TEST_F(ProcedureTest, ReadsTheOutputParameterOnly) {
  connection->execute(call);
  EXPECT_EQ(toInt32(call.parameters[0].value), 4711);
  EXPECT_THAT(made[0]->calls(), ElementsAre("Value()"));
  EXPECT_THAT(made[1]->calls(), IsEmpty());
}

TEST_F(ProcedureTest, GivesCommandAndParametersBack) {
  connection->execute(call);
  EXPECT_EQ(made[0]->references(), 1U);
  EXPECT_EQ(command->references(), 1U);
}

TEST_F(ProcedureTest, MachineWithoutAdoIsAnError) {
  commands.revoke();
  EXPECT_THROW(connection->execute(call), RunTimeError);
}

}  // namespace
}  // namespace pelorin::test
