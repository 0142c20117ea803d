// Generated sites of any size.
#include "site/large_site.h"

#include <gmock/gmock.h>

#include <set>

#include "site/batch_reader.h"
#include "site/engine.h"
#include "site/fill_database.h"
#include "site/procedure.h"
#include "site/statement_table.h"
#include "tests/site/site_fixture.h"

namespace pelorin {
namespace {

using testing::HasSubstr;
using testing::Not;

std::int32_t number(Connection& connection, const std::string& sql) {
  RecordSet rows = connection.open(sql);
  return rows.next() ? rows.int32(0) : -1;
}

std::int32_t count(Connection& connection, const std::string& rest) {
  return number(connection, "select count(*) from " + rest);
}

class LargeSite : public testing::Test {
 protected:
  static constexpr SiteSize size{100, 1003, 201, 70};
  std::unique_ptr<Connection> connection_ = SiteDatabase::inMemory(largeSite(size)).connect();
};

TEST_F(LargeSite, HasAsManyOfEverythingAsWanted) {
  EXPECT_EQ(count(*connection_, "Controllers"), 100);
  EXPECT_EQ(count(*connection_, "Doors") + count(*connection_, "Inputs") +
                count(*connection_, "Outputs") + count(*connection_, "Readers"),
            1003);
  EXPECT_EQ(
      count(*connection_, "CCTV_TriggerAction") + count(*connection_, "IntegratedDeviceTriggers"),
      201);
  int events = 0;
  for (const char* table : {"AlarmEvents", "AccessEvents", "SystemEvents", "OperatorEvents",
                            "CommunicationEvents", "ExternalEvents", "GuardTourEvents"}) {
    events += count(*connection_, std::string(table) + " where EventId >= 20000");
  }
  EXPECT_EQ(events, 70);
}

TEST_F(LargeSite, EveryLocationIsOfferedUnderItsController) {
  int offered = 0;
  for (int id = 1; id <= size.controllers; ++id) {
    const std::string controller = "ControllerID = " + std::to_string(id);
    offered += count(*connection_, "Doors where Active = 1 and Visible = 1 and " + controller);
    offered +=
        count(*connection_, "Inputs where BelongToDoor = 0 and Visible = 1 and " + controller);
    offered +=
        count(*connection_, "Outputs where BelongToDoor = 0 and Visible = 1 and " + controller);
    offered += count(*connection_, "Readers where BelongToDoor = 0 and " + controller);
  }
  EXPECT_EQ(offered, 1003);
}

TEST_F(LargeSite, EveryControllerHangsOnOnePortOrMultiplexer) {
  std::set<int> controllers;
  RecordSet ports = connection_->open("select PortID from ServerPorts");
  while (ports.next()) {
    RecordSet panels = connection_->open("EXECUTE sp_FetchPortPanels " + ports.text(0));
    while (panels.next()) EXPECT_TRUE(controllers.insert(panels.int32(0)).second);
    RecordSet multiplexers = connection_->open("sp_FetchKumbos " + ports.text(0));
    while (multiplexers.next()) {
      RecordSet behind =
          connection_->open("EXECUTE sp_FetchKumboControllers " + multiplexers.text("KumboID"));
      while (behind.next()) EXPECT_TRUE(controllers.insert(behind.int32(0)).second);
    }
  }
  EXPECT_EQ(controllers.size(), 100U);
}

TEST_F(LargeSite, EveryTriggerStandsAtALocationThatExists) {
  for (const char* trigger :
       {"CCTV_TriggerAction where T_Address", "IntegratedDeviceTriggers where TriggerAddress"}) {
    EXPECT_EQ(count(*connection_, std::string(trigger) +
                                      " not in (select Address from Doors union select Address "
                                      "from Inputs union select Address from Outputs union select "
                                      "Address from Readers)"),
              0);
  }
}

TEST_F(LargeSite, EveryRecorderTriggerHasItsAction) {
  EXPECT_EQ(count(*connection_,
                  "IntegratedDeviceTriggers inner join DVR_TriggerActions on "
                  "DVR_TriggerActions.DVRActionID = ActionID"),
            100);
}

// Takes the rows down as text.
class Transcript final : public site::RowSink {
 public:
  void begin(const site::Table& table, const site::ColumnNames&) override { text_ += table.name; }
  void row(const site::Row& row) override {
    for (const Value& value : row) text_ += toText(value) + "|";
  }
  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

TEST_F(LargeSite, IsTheSameEachTime) {
  Transcript first;
  Transcript second;
  largeSite(size)(first);
  largeSite(size)(second);
  EXPECT_EQ(first.text(), second.text());
  EXPECT_GT(first.text().size(), 10000U);
}

TEST(LargeSiteSize, NothingWantedIsTheBareSite) {
  Transcript bare;
  Transcript generated;
  bareSite(bare);
  largeSite({})(generated);
  EXPECT_EQ(generated.text().find(bare.text()), 0U);
  const auto connection = SiteDatabase::inMemory(largeSite({})).connect();
  EXPECT_EQ(count(*connection, "Controllers") + count(*connection, "CCTV_TriggerAction"), 0);
}

TEST(LargeSiteSize, ImpossibleSizesAreRefused) {
  EXPECT_THROW(largeSite({-1, 0, 0, 0}), RunTimeError);
  EXPECT_THROW(largeSite({0, 10, 0, 0}), RunTimeError);
  EXPECT_THROW(largeSite({1, 1, 1, 60000}), RunTimeError);
}

TEST(LargeSiteSize, TwentyThousandEventsFitIntoTheirCategories) {
  const auto connection = SiteDatabase::inMemory(largeSite({0, 0, 0, 20000})).connect();
  RecordSet types = connection->open("exec TA_FetchAllEventTypeInfo");
  int events = 0;
  while (types.next()) {
    if (types.int32("MinEventID") < 20000 || types.int32("MinEventID") > 79999) continue;
    events += count(*connection, types.text("TableName") +
                                     " where EventId >= " + types.text("MinEventID") +
                                     " and EventId <= " + types.text("MaxEventID"));
  }
  EXPECT_EQ(events, 20000);
}

// The engine's plan for a statement, in its own words.
std::string plan(const std::shared_ptr<site::Engine>& engine, const std::string& sql) {
  site::EngineStatement explain(engine, "explain query plan " + sql);
  std::string text;
  while (explain.step()) text += toText(explain.value(3)) + "\n";
  return text;
}

std::string engineText(const std::string& sql) {
  const site::Batch batch = site::readBatch(sql);
  if (const auto* statement = std::get_if<site::EngineText>(&batch)) return statement->sql;
  return site::findProcedure(std::get<site::CallText>(batch).procedure).embeddedBody;
}

TEST(Indexes, NoStatementWithAConditionReadsAWholeTable) {
  const auto engine = site::Engine::open(":memory:", site::Engine::Mode::Memory);
  site::createTables(*engine);
  for (const site::SiteStatement& statement : site::siteStatements()) {
    const std::string sql = engineText(statement.text);
    if (sql.find("where") == std::string::npos) continue;
    EXPECT_THAT(plan(engine, sql), Not(HasSubstr("SCAN "))) << statement.name;
  }
}

}  // namespace
}  // namespace pelorin
