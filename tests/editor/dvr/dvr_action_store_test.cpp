// A recorder's action on its way into the database.
#include "editor/dvr/dvr_action_store.h"

#include "tests/editor/editor_site.h"

namespace pelorin::test {
namespace {

using ::testing::ElementsAre;
using ::testing::StartsWith;

class DvrActionStoreTest : public ::testing::Test, protected Surroundings {
 protected:
  DvrActionStore store{module};
  const Arguments values{{1, {"ID_DVR_Config", 21}}, {2, {"CameraIndex", 2}},
                         {3, {"RecordRate", 7.5}},   {4, {"AlarmDuration", 45}},
                         {5, {"RecordStandard", 1}}, {6, {"PresetID", 43}},
                         {7, {"ViewGroupID", 52}},   {8, {"CommandSetID", 61}}};
  std::int32_t newId = 0;

  void answerId(Value id) {
    database->onCall = [id](ProcedureCall& call) { call.parameters.front().value = id; };
  }
};

TEST_F(DvrActionStoreTest, AddsThroughACommandWithNineParametersInOrder) {
  std::vector<ProcedureParameter> seen;
  database->onCall = [&](ProcedureCall& call) {
    seen = call.parameters;
    EXPECT_EQ(call.procedure, "DVR_AddAction");
    call.parameters.front().value = std::int64_t{901};
  };
  EXPECT_TRUE(store.AddDVRAction(values, newId));
  EXPECT_EQ(newId, 901);
  EXPECT_THAT(database->statements(),
              ElementsAre("call DVR_AddAction DVRActionID=0 ID_DVR_Config=21 CameraIndex=2 "
                          "RecordRate=7.5 AlarmDuration=45 RecordStandard=1 PresetID=43 "
                          "ViewGroupID=52 CommandSetID=61"));
  ASSERT_EQ(seen.size(), 9U);
  for (std::size_t i = 0; i < seen.size(); ++i) {
    EXPECT_EQ(seen[i].direction == ParameterDirection::Output, i == 0) << seen[i].name;
    EXPECT_EQ(seen[i].type == ParameterType::Double, i == 3) << seen[i].name;
  }
}

TEST_F(DvrActionStoreTest, AnIdBelowOneIsAFailure) {
  for (const Value& id : std::vector<Value>{0, -1, Null()}) {
    screen.boxes.clear();
    answerId(id);
    EXPECT_FALSE(store.AddDVRAction(values, newId));
    ASSERT_EQ(screen.boxes.size(), 1U);
    EXPECT_THAT(screen.boxes[0].text, StartsWith("frmTriggerAction.AddDVRAction: "));
  }
}

TEST_F(DvrActionStoreTest, UpdatesByPositionalText) {
  EXPECT_TRUE(store.UpdateDVRAction(300, values));
  EXPECT_THAT(database->statements(),
              ElementsAre("DVR_UpdateAction 300, 21, 2, 7.5, 45, 1, 43, 52, 61"));
}

TEST_F(DvrActionStoreTest, WritesTheRateWithoutAFixedNumberOfDecimals) {
  for (const double rate : {0.8, 2.0, 6.25, 15.0, 60.0}) {
    Arguments other = values;
    other[3].value = rate;
    store.UpdateDVRAction(1, other);
  }
  EXPECT_THAT(database->statements(),
              ElementsAre("DVR_UpdateAction 1, 21, 2, 0.8, 45, 1, 43, 52, 61",
                          "DVR_UpdateAction 1, 21, 2, 2, 45, 1, 43, 52, 61",
                          "DVR_UpdateAction 1, 21, 2, 6.25, 45, 1, 43, 52, 61",
                          "DVR_UpdateAction 1, 21, 2, 15, 45, 1, 43, 52, 61",
                          "DVR_UpdateAction 1, 21, 2, 60, 45, 1, 43, 52, 61"));
}

TEST_F(DvrActionStoreTest, AFailingStatementIsReportedUnderTheProceduresName) {
  database->fail("DVR_UpdateAction 300, 21, 2, 7.5, 45, 1, 43, 52, 61", "locked");
  EXPECT_FALSE(store.UpdateDVRAction(300, values));
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_THAT(screen.boxes[0].text, StartsWith("frmTriggerAction.UpdateDVRAction: Line: "));
}

}  // namespace
}  // namespace pelorin::test
