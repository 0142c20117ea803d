// Reading and deleting trigger actions of both kinds.
#include "catalog/trigger_store.h"

#include <gmock/gmock.h>

#include "tests/fakes/surroundings.h"

namespace pelorin::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::SizeIs;

class TriggerStoreTest : public testing::Test {
 protected:
  std::vector<std::string> boxes() const { return surroundings.screen.boxTexts(); }

  Surroundings surroundings;
  ScriptedConnection& database = *surroundings.database;
  Module1& module = surroundings.module;
};

using DeleteCctvTest = TriggerStoreTest;

TEST_F(DeleteCctvTest, DeletesTheOneRow) {
  EXPECT_TRUE(DeleteCCTVTriggerAction(module, 12));
  EXPECT_THAT(database.statements(),
              ElementsAre("delete from CCTV_TriggerAction where TA_ID = 12"));
}

TEST_F(DeleteCctvTest, FailureIsReportedAndHandedBack) {
  database.fail("delete from CCTV_TriggerAction where TA_ID = 12");
  EXPECT_FALSE(DeleteCCTVTriggerAction(module, 12));
  EXPECT_THAT(boxes(), ElementsAre(MatchesRegex("Module1.DeleteCCTVTriggerAction: Line: "
                                                "[1-9][0-9]* :statement failed")));
}

class DeleteTriggerTest : public TriggerStoreTest {
 protected:
  void answerTrigger(Value actionId, Value deviceClass) {
    database.answer(query, {{"ActionId", "IntegratedDeviceClassId"},
                            {{std::move(actionId), std::move(deviceClass)}}});
  }

  const std::string query =
      "select ActionId, IntegratedDeviceClassId from IntegratedDevicetriggers where TriggerId = 7";
  const std::string deleteAction = "Delete from DVR_TriggerActions where DVRActionID = 31";
  const std::string deleteTrigger = "exec TA_DeleteTrigger 7";
};

TEST_F(DeleteTriggerTest, OfTheDvrClassDeletesItsActionThenItself) {
  answerTrigger(std::int64_t{31}, std::int64_t{1});
  EXPECT_TRUE(DeleteTriggerAction(module, 7));
  EXPECT_THAT(database.statements(), ElementsAre(query, deleteAction, deleteTrigger));
}

TEST_F(DeleteTriggerTest, OfAnotherClassLeavesItsActionAlone) {
  answerTrigger(std::int64_t{31}, std::int64_t{2});
  EXPECT_TRUE(DeleteTriggerAction(module, 7));
  EXPECT_THAT(database.statements(), ElementsAre(query, deleteTrigger));
}

TEST_F(DeleteTriggerTest, ThatDoesNotExistStillRunsTheProcedure) {
  EXPECT_TRUE(DeleteTriggerAction(module, 7));
  EXPECT_THAT(database.statements(), ElementsAre(query, deleteTrigger));
}

TEST_F(DeleteTriggerTest, WithoutActionDeletesActionZero) {
  answerTrigger(Null{}, std::int64_t{1});
  DeleteTriggerAction(module, 7);
  EXPECT_THAT(
      database.statements(),
      ElementsAre(query, "Delete from DVR_TriggerActions where DVRActionID = 0", deleteTrigger));
}

TEST_F(DeleteTriggerTest, OfAnUnknownClassLeavesItsActionAlone) {
  answerTrigger(std::int64_t{31}, Null{});
  DeleteTriggerAction(module, 7);
  EXPECT_THAT(database.statements(), ElementsAre(query, deleteTrigger));
}

// Notes how many results are open when a statement that writes runs.
class WatchedConnection : public ScriptedConnection {
 public:
  using ScriptedConnection::ScriptedConnection;
  std::vector<int> openDuringWrites;

 protected:
  void run(std::string_view sql) override {
    openDuringWrites.push_back(openCursors());
    ScriptedConnection::run(sql);
  }
};

TEST_F(DeleteTriggerTest, NoResultIsOpenWhileItDeletes) {
  const auto watched = std::make_shared<WatchedConnection>(surroundings.journal);
  watched->answer(query,
                  {{"ActionId", "IntegratedDeviceClassId"}, {{std::int64_t{31}, std::int64_t{1}}}});
  module.setDBConnection(watched);
  DeleteTriggerAction(module, 7);
  EXPECT_THAT(watched->openDuringWrites, ElementsAre(0, 0));
}

TEST_F(DeleteTriggerTest, FailureStopsAtThatPointAndIsReportedOnce) {
  answerTrigger(std::int64_t{31}, std::int64_t{1});
  const std::vector<std::string> all = {query, deleteAction, deleteTrigger};
  for (std::size_t failing = 0; failing < all.size(); ++failing) {
    Surroundings fresh;
    fresh.database->answer(
        query, {{"ActionId", "IntegratedDeviceClassId"}, {{std::int64_t{31}, std::int64_t{1}}}});
    fresh.database->fail(all[failing]);
    EXPECT_FALSE(DeleteTriggerAction(fresh.module, 7));
    EXPECT_THAT(fresh.database->statements(), SizeIs(failing + 1));
    EXPECT_THAT(fresh.screen.boxTexts(),
                ElementsAre(MatchesRegex(
                    "Module1.DeleteTriggerAction: Line: [1-9][0-9]* :statement failed")));
    EXPECT_EQ(fresh.database->openCursors(), 0);
  }
}

TEST_F(DeleteTriggerTest, FailingFetchDeletesNothing) {
  answerTrigger(std::int64_t{31}, std::int64_t{1});
  database.failFetch(query, 0);
  EXPECT_FALSE(DeleteTriggerAction(module, 7));
  EXPECT_THAT(database.statements(), ElementsAre(query));
  EXPECT_THAT(boxes(), SizeIs(1));
}

class ReadTriggerTest : public TriggerStoreTest {
 protected:
  TriggerData data{"old address", 1, 2, 3};
};

class ReadCctvTest : public ReadTriggerTest {
 protected:
  void answerRow(Value address, Value event, Value id) {
    database.answer(query,
                    {{"TA_ID", "T_Address", "T_EventID", "SwitcherID"},
                     {{std::move(id), std::move(address), std::move(event), std::int64_t{4}}}});
  }
  const std::string query = "select * from CCTV_TriggerAction where TA_ID = 12";
};

TEST_F(ReadCctvTest, GivesAddressEventIdAndClass999) {
  answerRow("1.2.3", std::int64_t{42}, std::int64_t{12});
  EXPECT_TRUE(GetCCTVTriggerData(module, 12, data));
  EXPECT_THAT(database.statements(), ElementsAre(query));
  EXPECT_EQ(data.address, "1.2.3");
  EXPECT_EQ(data.eventId, 42);
  EXPECT_EQ(data.actionId, 12);
  EXPECT_EQ(data.deviceClassId, 999);
  EXPECT_EQ(database.openCursors(), 0);
}

TEST_F(ReadCctvTest, WithoutRowEmptiesTheAddressAndKeepsTheRest) {
  EXPECT_TRUE(GetCCTVTriggerData(module, 12, data));
  EXPECT_EQ(data.address, "");
  EXPECT_EQ(data.eventId, 1);
  EXPECT_EQ(data.actionId, 2);
  EXPECT_EQ(data.deviceClassId, 3);
}

TEST_F(ReadCctvTest, NullsAreEmptyAndZero) {
  answerRow(Null{}, Null{}, Null{});
  EXPECT_TRUE(GetCCTVTriggerData(module, 12, data));
  EXPECT_EQ(data.address, "");
  EXPECT_EQ(data.eventId, 0);
  EXPECT_EQ(data.actionId, 0);
  EXPECT_EQ(data.deviceClassId, 999);
}

TEST_F(ReadCctvTest, FailureIsReportedAndTold) {
  database.fail(query);
  EXPECT_FALSE(GetCCTVTriggerData(module, 12, data));
  EXPECT_EQ(data.address, "");
  EXPECT_THAT(
      boxes(),
      ElementsAre(MatchesRegex("Module1.GetCCTVTriggerData: Line: [1-9][0-9]* :statement failed")));
}

TEST_F(ReadCctvTest, HalfReadRecordIsTold) {
  answerRow("1.2.3", std::int64_t{2147483648}, std::int64_t{12});
  EXPECT_FALSE(GetCCTVTriggerData(module, 12, data));
  EXPECT_EQ(data.address, "1.2.3");
  EXPECT_EQ(data.deviceClassId, 3);
  EXPECT_THAT(boxes(), ElementsAre(MatchesRegex("Module1.GetCCTVTriggerData: .*:Overflow")));
  EXPECT_EQ(database.openCursors(), 0);
}

class ReadDeviceTriggerTest : public ReadTriggerTest {
 protected:
  void answerRow(Value address, Value event, Value action, Value deviceClass) {
    database.answer(query, {{"TriggerID", "TriggerAddress", "TriggerEventID", "ActionID",
                             "IntegratedDeviceClassId"},
                            {{std::int64_t{7}, std::move(address), std::move(event),
                              std::move(action), std::move(deviceClass)}}});
  }
  const std::string query = "select * from IntegratedDeviceTriggers where TriggerID = 7";
};

TEST_F(ReadDeviceTriggerTest, GivesAddressEventActionAndClass) {
  answerRow("5.6", std::int64_t{5001}, std::int64_t{31}, std::int64_t{1});
  EXPECT_TRUE(GetTriggerData(module, 7, data));
  EXPECT_THAT(database.statements(), ElementsAre(query));
  EXPECT_EQ(data.address, "5.6");
  EXPECT_EQ(data.eventId, 5001);
  EXPECT_EQ(data.actionId, 31);
  EXPECT_EQ(data.deviceClassId, 1);
}

TEST_F(ReadDeviceTriggerTest, WithoutRowEmptiesTheAddressAndKeepsTheRest) {
  EXPECT_TRUE(GetTriggerData(module, 7, data));
  EXPECT_EQ(data.address, "");
  EXPECT_EQ(data.eventId, 1);
  EXPECT_EQ(data.actionId, 2);
  EXPECT_EQ(data.deviceClassId, 3);
}

TEST_F(ReadDeviceTriggerTest, MissingActionIsZero) {
  answerRow("5.6", std::int64_t{5001}, Null{}, std::int64_t{1});
  EXPECT_TRUE(GetTriggerData(module, 7, data));
  EXPECT_EQ(data.actionId, 0);
}

TEST_F(ReadDeviceTriggerTest, FailingFetchIsReportedAndTold) {
  answerRow("5.6", std::int64_t{5001}, std::int64_t{31}, std::int64_t{1});
  database.failFetch(query, 0);
  EXPECT_FALSE(GetTriggerData(module, 7, data));
  EXPECT_THAT(boxes(),
              ElementsAre(MatchesRegex("Module1.GetTriggerData: Line: [1-9][0-9]* :fetch failed")));
  EXPECT_EQ(database.openCursors(), 0);
}

TEST_F(ReadDeviceTriggerTest, WithoutConnectionIsReportedAndTold) {
  module.setDBConnection(nullptr);
  EXPECT_FALSE(GetTriggerData(module, 7, data));
  EXPECT_THAT(boxes(), SizeIs(1));
}

}  // namespace
}  // namespace pelorin::test
