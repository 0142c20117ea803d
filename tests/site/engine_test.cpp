// Statements that are prepared once and run again.
#include "site/engine.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"

namespace pelorin::site {
namespace {

class KeptStatements : public testing::Test {
 protected:
  void SetUp() override {
    engine_->script(
        "create table Door (Id int, Name text); insert into Door values (1, 'A'), (2, 'B')");
  }
  EngineStatement kept() { return EngineStatement::kept(engine_, sql_); }

  const std::string sql_ = "select * from Door where Id >= ?1 order by Id";
  std::shared_ptr<Engine> engine_ = Engine::open("", Engine::Mode::Memory);
};

TEST_F(KeptStatements, BeginAtTheirFirstRowWithoutOldValues) {
  {
    EngineStatement first = kept();
    first.bind(1, Value{std::int64_t{2}});
    ASSERT_TRUE(first.step());
    EXPECT_EQ(toText(first.value(1)), "B");
  }
  EngineStatement again = kept();
  EXPECT_FALSE(again.step()) << "nothing is bound";
}

TEST_F(KeptStatements, AreReadSideBySide) {
  EngineStatement outer = kept();
  outer.bind(1, Value{std::int64_t{1}});
  ASSERT_TRUE(outer.step());
  {
    EngineStatement inner = kept();
    inner.bind(1, Value{std::int64_t{2}});
    ASSERT_TRUE(inner.step());
    EXPECT_EQ(toText(inner.value(1)), "B");
  }
  EXPECT_EQ(toText(outer.value(1)), "A");
  ASSERT_TRUE(outer.step());
  EXPECT_EQ(toText(outer.value(1)), "B");
}

TEST_F(KeptStatements, SeeATableThatWasMadeAnew) {
  kept().step();
  engine_->script(
      "drop table Door; create table Door (Id int, Open bit, Name text);"
      "insert into Door values (3, 1, 'C')");
  EngineStatement again = kept();
  again.bind(1, Value{std::int64_t{1}});
  ASSERT_TRUE(again.step());
  EXPECT_EQ(again.columns(), (std::vector<std::string>{"Id", "Open", "Name"}));
  EXPECT_EQ(again.value(1), Value{true});
}

TEST_F(KeptStatements, GoOnAfterOneThatFailed) {
  engine_->script("create table Once (Id int primary key)");
  const std::string insert = "insert into Once values (?1)";
  const auto run = [&](std::int64_t id) {
    EngineStatement statement = EngineStatement::kept(engine_, insert);
    statement.bind(1, Value{id});
    statement.step();
  };
  run(1);
  EXPECT_THROW(run(1), RunTimeError);
  run(2);
  EXPECT_EQ(engine_->changes(), 1);
}

}  // namespace
}  // namespace pelorin::site
