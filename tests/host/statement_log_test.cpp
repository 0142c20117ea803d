// A connection that tells what passes through it.
#include "host/core/statement_log.h"

#include <gtest/gtest.h>

#include "host/core/watched_connection.h"

namespace pelorin::host {
namespace {

// Gives two results of one column each; fails what is to fail.
class TwoResults : public ResultConnection {
 public:
  class Results : public ResultCursor {
   public:
    const std::vector<std::string>& columns() const override { return columns_; }
    std::size_t fetch(std::size_t rows, std::vector<Value>& cells) override {
      const std::size_t count = std::min<std::size_t>(rows, left_);
      for (std::size_t i = 0; i < count; ++i) cells.emplace_back(std::int64_t{1});
      left_ -= count;
      return count;
    }
    bool nextResult() override {
      left_ = 2;
      return !std::exchange(second_, true);
    }

   private:
    std::vector<std::string> columns_{"Number"};
    std::size_t left_ = 3;
    bool second_ = false;
  };

  bool failing = false;

  std::unique_ptr<ResultCursor> openResults(std::string_view) override {
    failIfToFail();
    return std::make_unique<Results>();
  }
  std::vector<ServerMessage> messages() const override { return {{"said", 5701, "01000"}}; }

 protected:
  void run(std::string_view) override { failIfToFail(); }
  void call(ProcedureCall& call) override { call.parameters.at(0).value = std::int64_t{12}; }

 private:
  void failIfToFail() const {
    if (failing) throw RunTimeError(7, "refused");
  }
};

class WatchedConnectionTest : public testing::Test {
 protected:
  const Statement& last() const { return log->statements().back(); }

  std::shared_ptr<TwoResults> inner = std::make_shared<TwoResults>();
  std::shared_ptr<StatementLog> log = std::make_shared<StatementLog>();
  WatchedConnection connection{inner, log};
};

TEST_F(WatchedConnectionTest, AStatementIsLoggedWordForWordWhenItIsSent) {
  connection.execute("exec TA_DeleteTrigger  7 ");
  EXPECT_EQ(last().text, "exec TA_DeleteTrigger  7 ");
  EXPECT_EQ(last().error, "");
}

TEST_F(WatchedConnectionTest, RowsAreCountedAsTheyAreRead) {
  RecordSet rows = connection.open("select");
  EXPECT_EQ(last().rows, 0U);
  rows.drain();
  EXPECT_EQ(last().rows, 3U);
}

TEST_F(WatchedConnectionTest, TheRowsOfFurtherResultsCountToo) {
  const std::unique_ptr<ResultCursor> results = connection.openResults("select");
  std::vector<Value> cells;
  results->fetch(10, cells);
  ASSERT_TRUE(results->nextResult());
  results->fetch(10, cells);
  EXPECT_EQ(last().rows, 5U);
  EXPECT_FALSE(results->nextResult());
}

TEST_F(WatchedConnectionTest, AnErrorIsLoggedAndPassedOn) {
  inner->failing = true;
  EXPECT_THROW(connection.execute("exec Nothing"), RunTimeError);
  EXPECT_EQ(last().error, "refused");
  EXPECT_THROW(connection.open("select"), RunTimeError);
  EXPECT_EQ(last().error, "refused");
}

TEST_F(WatchedConnectionTest, AProcedureCallIsShownWithTheValuesThatWereSent) {
  ProcedureCall call{
      "DVR_AddAction",
      {{"DVRActionID", ParameterType::Integer, ParameterDirection::Output, std::int64_t{0}},
       {"RecordRate", ParameterType::Double, ParameterDirection::Input, 0.8},
       {"PresetID", ParameterType::Integer, ParameterDirection::Input, Null{}}}};
  connection.execute(call);
  EXPECT_EQ(last().text, "DVR_AddAction @DVRActionID=0 OUTPUT, @RecordRate=0.8, @PresetID=NULL");
  EXPECT_EQ(toInt32(call.parameters[0].value), 12);
}

TEST_F(WatchedConnectionTest, WhatTheServerSaidIsPassedOn) {
  EXPECT_EQ(connection.messages().at(0).nativeNumber, 5701);
}

TEST_F(WatchedConnectionTest, ReadingOnAfterTheLogWasClearedTouchesNoOtherEntry) {
  RecordSet rows = connection.open("first");
  log->clear();
  connection.execute("second");
  rows.drain();
  ASSERT_EQ(log->statements().size(), 1U);
  EXPECT_EQ(last().text, "second");
  EXPECT_EQ(last().rows, 0U);
}

TEST_F(WatchedConnectionTest, TheViewIsToldOfEachChange) {
  int changes = 0;
  log->onChange = [&] { ++changes; };
  connection.execute("exec");
  EXPECT_EQ(changes, 2);  // sent, and done
  log->clear();
  EXPECT_EQ(changes, 3);
}

}  // namespace
}  // namespace pelorin::host
